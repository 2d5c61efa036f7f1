#include "gdiplus/paint.h"

#include <variant>

#include "gdiplus/hatches.h"
#include "gdiplus/linear_gradients.h"
#include "gdiplus/new_patterns.h"
#include "gdiplus/page_colors.h"
#include "gdiplus/path_gradients.h"
#include "gdiplus/textures.h"

namespace kelvane::gdiplus {
namespace {

/// What makes the paint of each kind of brush.
struct PaintMaker {
  Graphics& graphics;
  const RectangleD& bounds;

  std::optional<Paint> operator()(Argb color) const {
    return color.alpha != 0 ? std::optional(Paint{ColorOnPage(color), nullptr}) : std::nullopt;
  }
  std::optional<Paint> operator()(const EmfPlusHatchBrush& brush) const {
    return HatchPaint(graphics, brush);
  }
  std::optional<Paint> operator()(const EmfPlusTextureBrush& brush) const {
    return UnlessTooMany(graphics, TexturePaint(graphics, brush, bounds));
  }
  std::optional<Paint> operator()(const EmfPlusLinearGradientBrush& brush) const {
    return UnlessTooMany(graphics, LinearGradientPaint(graphics, brush, bounds));
  }
  std::optional<Paint> operator()(const EmfPlusPathGradientBrush& brush) const {
    return UnlessTooMany(graphics, PathGradientPaint(graphics, brush, bounds));
  }
};

void SetCompositing(CGContext& surface, const Paint& paint) {
  surface.SetAlpha(paint.color.alpha);
  surface.SetBlendMode(kCGBlendModeNormal);
}

}  // namespace

std::optional<Paint> PaintOf(Graphics& graphics, const EmfPlusBrush& brush,
                             const RectangleD& bounds) {
  if (graphics.canvas == nullptr) return std::nullopt;
  return std::visit(PaintMaker{graphics, bounds}, brush);
}

void SetFill(CGContext& surface, const Paint& paint) {
  surface.SetFillColor(paint.color);
  surface.SetFillPattern(paint.pattern);
  SetCompositing(surface, paint);
}

void SetStroke(CGContext& surface, const Paint& paint) {
  surface.SetStrokeColor(paint.color);
  surface.SetStrokePattern(paint.pattern);
  SetCompositing(surface, paint);
}

}  // namespace kelvane::gdiplus
