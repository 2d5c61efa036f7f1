#include "players/drawn_extent.h"

#include <cmath>

#include "platform/quartz/cg_extent.h"

namespace kelvane {

std::optional<StoredRectangle> DrawnExtent::Area() const {
  if (!area_) return std::nullopt;
  return StoredRectangle{area_->left, area_->bottom, area_->right, area_->top};
}

/// @param box  one that holds nothing, or has no end, leaves the area as it is.
void DrawnExtent::Add(const CGBox& box) {
  const bool isThere = box.left <= box.right && box.bottom <= box.top;
  if (isThere && std::isfinite(box.left)) area_ = area_ ? Hull(*area_, box) : box;
}

void DrawnExtent::PathPainted(const CGPath& path, CGPathDrawingMode mode) {
  Add(Grown(BoxOf(path), Strokes(mode) ? StrokeMargin(State()) : 0));
}

void DrawnExtent::ImageDrawn(const CGImage& /*image*/, const CGAffineTransform& matrix) {
  Add(BoxOf(CGRectApplyAffineTransform({{0, 0}, {1, 1}}, matrix)));
}

void DrawnExtent::ShadingDrawn(const CGShading& shading) {
  Add(ExtentOf(shading, Clips()));
}

void DrawnExtent::GlyphsDrawn(const CGGlyphRun& run) {
  Add(ExtentOf(run));
}

}  // namespace kelvane
