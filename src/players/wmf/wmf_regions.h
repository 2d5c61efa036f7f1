#pragma once

#include <cstdint>

#include "metafile/array_view.h"
#include "metafile/gdi_types.h"
#include "players/wmf/wmf_playback.h"

namespace kelvane {

/// Keeps a region under its index.
void KeepRegion(WmfPlayback& playback, std::uint16_t index, const std::vector<RectangleL>& region);

/// Hands the region of an index on; where there is none, nothing is painted on Windows either.
/// @param use  takes the region's rectangles.
template <class Use>
void WithRegion(WmfPlayback& playback, std::uint16_t index, Use use) {
  const auto found = playback.regions.find(index);
  if (found == playback.regions.end()) return;
  const std::vector<unsigned char>& bytes = found->second;
  use(ArrayView<RectangleL>(bytes.data(), bytes.size() / kStoredSize<RectangleL>));
}

}  // namespace kelvane
