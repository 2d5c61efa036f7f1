#pragma once

#include <optional>

#include "gdi/device_context.h"
#include "metafile/array_view.h"

namespace kelvane {

/// @param rectangle  logical units, edges in any order; right and bottom do not belong to it.
bool IntersectClipRect(DeviceContext& device, const RectangleL& rectangle);
bool ExcludeClipRect(DeviceContext& device, const RectangleL& rectangle);

/// @param offset  logical units. Without a clip nothing moves.
bool OffsetClipRgn(DeviceContext& device, PointL offset);

/// @param rectangles  the region, in device units whatever the mapping; without one RGN_COPY drops
///                    the clip, and all other modes fail.
bool ExtSelectClipRgn(DeviceContext& device, std::optional<ArrayView<RectangleL>> rectangles,
                      RegionMode mode);

/// Uses up the finished path; without one, and with an empty one, it fails.
bool SelectClipPath(DeviceContext& device, RegionMode mode);

/// From now on painting is cut to what it is cut to now, until RestoreDC.
void SetMetaRgn(DeviceContext& device);

}  // namespace kelvane
