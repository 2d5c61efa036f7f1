#pragma once

#include <cstdint>
#include <optional>

#include "gdi/area.h"
#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_path.h"
#include "metafile/emfplus/emfplus_region.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane::gdiplus {

// Shapes of the world as areas of the device, through the transforms of the moment. They take the
// steps of clips, for a record of a few bytes may name a path of any length.

/// What a call may take that says little.
inline constexpr std::uint64_t kStepsOfACall = 256;

/// @return nullopt for numbers that are not finite.
std::optional<Area> AreaOf(const Graphics& graphics, const RectF& box);

/// @return as of rectangles, and when the steps run out.
std::optional<Area> AreaOf(Graphics& graphics, const EmfPlusPath& path);
std::optional<Area> AreaOf(Graphics& graphics, const EmfPlusRegion& region);

}  // namespace kelvane::gdiplus
