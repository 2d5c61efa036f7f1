#pragma once

#include "metafile/emf/emf_region_data.h"
#include "players/emf/emf_handler.h"

namespace kelvane {

/// @return the rectangles of a region. The report tells when some are missing.
inline ArrayView<RectangleL> RectanglesOf(EmfPlayback& playback, const RegionData& region) {
  if (!region.isWhole) playback.Damaged("its region has fewer rectangles than it counts");
  return region.rectangles;
}

}  // namespace kelvane
