#pragma once

#include <optional>

#include "gdi/geometry.h"
#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_brush.h"
#include "platform/quartz/cg_context.h"

namespace kelvane::gdiplus {

/// A brush as the surface takes it: a plain colour with its alpha, or a pattern of whatever kind.
struct Paint {
  CGColor color;
  CGSharedPattern pattern;  // in place of the colour, whose alpha counts all the same
};

/// @param bounds  of what is to be coloured, device units; brushes that repeat do so no farther.
/// @return nullopt for a brush that leaves no mark. What comes out only nearly is told the
///         graphics.
std::optional<Paint> PaintOf(Graphics& graphics, const EmfPlusBrush& brush,
                             const RectangleD& bounds);

// They set the surface's alpha and blend mode, too.
void SetFill(CGContext& surface, const Paint& paint);
void SetStroke(CGContext& surface, const Paint& paint);

}  // namespace kelvane::gdiplus
