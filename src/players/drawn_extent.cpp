#include "players/drawn_extent.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>
#include <variant>

namespace kelvane {
namespace {

/// @return the box of its points, with the control points of curves; turned inside out for an empty
/// path.
StoredRectangle BoxOf(const CGPath& path) {
  constexpr double kFar = std::numeric_limits<double>::infinity();
  StoredRectangle box = {kFar, kFar, -kFar, -kFar};
  const auto add = [&box](double x, double y) {
    box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x),
           std::max(box.bottom, y)};
  };
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    if (element == CGPath::Element::kRectangle) {
      add(points[0].x, points[0].y);
      add(points[0].x + points[1].x, points[0].y + points[1].y);
      return;
    }
    for (std::size_t i = 0; i < CGPath::PointCount(element); ++i)
      add(points[i].x, points[i].y);
  });
  return box;
}

/// @return the box that all clips leave.
StoredRectangle BoxOf(std::span<const CGClip> clips) {
  StoredRectangle left = BoxOf(clips.front().area);
  for (const CGClip& clip : clips.subspan(1)) {
    const StoredRectangle box = BoxOf(clip.area);
    left = {std::max(left.left, box.left), std::max(left.top, box.top),
            std::min(left.right, box.right), std::min(left.bottom, box.bottom)};
  }
  return left;
}

}  // namespace

void DrawnExtent::Add(CGPoint point, double margin) {
  AddBox({point.x, point.y, point.x, point.y}, margin);
}

void DrawnExtent::AddBox(const StoredRectangle& box, double margin) {
  if (!area_) area_ = box;
  area_->left = std::min(area_->left, box.left - margin);
  area_->top = std::min(area_->top, box.top - margin);
  area_->right = std::max(area_->right, box.right + margin);
  area_->bottom = std::max(area_->bottom, box.bottom + margin);
}

void DrawnExtent::PathPainted(const CGPath& path, CGPathDrawingMode mode) {
  double margin = 0;
  if (Strokes(mode)) {
    const CGAffineTransform& t = State().ctm;
    margin = State().lineWidth / 2.0 * std::max(std::hypot(t.a, t.b), std::hypot(t.c, t.d));
  }
  AddBox(BoxOf(path), margin);
}

void DrawnExtent::ImageDrawn(const CGImage& /*image*/, const CGAffineTransform& matrix) {
  const CGRect box = CGRectApplyAffineTransform({{0, 0}, {1, 1}}, matrix);
  Add(box.origin, 0);
  Add({box.origin.x + box.size.width, box.origin.y + box.size.height}, 0);
}

// A line of colour has no end but the clip's.
void DrawnExtent::ShadingDrawn(const CGShading& shading) {
  if (const auto* const mesh = std::get_if<CGTriangleMesh>(&shading)) {
    for (const CGMeshVertex& vertex : mesh->vertices)
      Add(vertex.point, 0);
  } else if (!Clips().empty()) {
    const StoredRectangle box = BoxOf(Clips());
    if (box.left <= box.right && box.top <= box.bottom) AddBox(box, 0);
  }
}

void DrawnExtent::GlyphsDrawn(const CGGlyphRun& run) {
  for (const CGPositionedGlyph& glyph : run.glyphs)
    Add(CGPointApplyAffineTransform(glyph.origin, run.matrix), run.size);
}

}  // namespace kelvane
