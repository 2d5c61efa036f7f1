#include "players/drawn_extent.h"

#include <algorithm>
#include <cmath>

namespace kelvane {

void DrawnExtent::Add(CGPoint point, double margin) {
  const double x = point.x;
  const double y = point.y;
  if (!area_) area_ = StoredRectangle{x, y, x, y};
  area_->left = std::min(area_->left, x - margin);
  area_->top = std::min(area_->top, y - margin);
  area_->right = std::max(area_->right, x + margin);
  area_->bottom = std::max(area_->bottom, y + margin);
}

void DrawnExtent::PathPainted(const CGPath& path, CGPathDrawingMode mode) {
  double margin = 0;
  if (Strokes(mode)) {
    const CGAffineTransform& t = State().ctm;
    margin = State().lineWidth / 2.0 * std::max(std::hypot(t.a, t.b), std::hypot(t.c, t.d));
  }
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    if (element == CGPath::Element::kRectangle) {
      Add(points[0], margin);
      Add({points[0].x + points[1].x, points[0].y + points[1].y}, margin);
      return;
    }
    for (std::size_t i = 0; i < CGPath::PointCount(element); ++i)
      Add(points[i], margin);
  });
}

void DrawnExtent::ImageDrawn(const CGImage& /*image*/, const CGAffineTransform& matrix) {
  const CGRect box = CGRectApplyAffineTransform({{0, 0}, {1, 1}}, matrix);
  Add(box.origin, 0);
  Add({box.origin.x + box.size.width, box.origin.y + box.size.height}, 0);
}

void DrawnExtent::GlyphsDrawn(const CGGlyphRun& run) {
  for (const CGPositionedGlyph& glyph : run.glyphs)
    Add(CGPointApplyAffineTransform(glyph.origin, run.matrix), run.size);
}

}  // namespace kelvane
