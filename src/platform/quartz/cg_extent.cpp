#include "platform/quartz/cg_extent.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <variant>

namespace kelvane {
namespace {

constexpr double kBoundless = std::numeric_limits<double>::infinity();
constexpr CGBox kNothing = {kBoundless, kBoundless, -kBoundless, -kBoundless};

void Include(CGBox& box, double x, double y) {
  box = {std::min(box.left, x), std::min(box.bottom, y), std::max(box.right, x),
         std::max(box.top, y)};
}

}  // namespace

CGBox Grown(const CGBox& box, double by) {
  return {box.left - by, box.bottom - by, box.right + by, box.top + by};
}

CGBox Intersection(const CGBox& a, const CGBox& b) {
  return {std::max(a.left, b.left), std::max(a.bottom, b.bottom), std::min(a.right, b.right),
          std::min(a.top, b.top)};
}

CGBox Hull(const CGBox& a, const CGBox& b) {
  return {std::min(a.left, b.left), std::min(a.bottom, b.bottom), std::max(a.right, b.right),
          std::max(a.top, b.top)};
}

CGBox BoxOf(const CGRect& rect) {
  const double left = rect.origin.x;
  const double bottom = rect.origin.y;
  return {left, bottom, left + rect.size.width, bottom + rect.size.height};
}

CGBox BoxOf(const CGPath& path) {
  CGBox box = kNothing;
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    if (element == CGPath::Element::kRectangle) {
      Include(box, points[0].x, points[0].y);
      Include(box, points[0].x + points[1].x, points[0].y + points[1].y);
      return;
    }
    for (std::size_t i = 0; i < CGPath::PointCount(element); ++i)
      Include(box, points[i].x, points[i].y);
  });
  return box;
}

CGBox BoxOf(std::span<const CGClip> clips) {
  CGBox box = BoxOf(clips.front().area);
  for (const CGClip& clip : clips.subspan(1))
    box = Intersection(box, BoxOf(clip.area));
  return box;
}

double StrokeMargin(const CGGraphicsState& state) {
  const CGAffineTransform& t = state.ctm;
  return state.lineWidth / 2.0 * std::max(std::hypot(t.a, t.b), std::hypot(t.c, t.d));
}

double StrokeReach(const CGGraphicsState& state) {
  const double miter = state.lineJoin == kCGLineJoinMiter ? state.miterLimit : 1;
  return StrokeMargin(state) * std::max(miter, std::numbers::sqrt2);
}

CGBox ExtentOf(const CGGlyphRun& run) {
  CGBox box = kNothing;
  for (const CGPositionedGlyph& glyph : run.glyphs) {
    const CGPoint origin = CGPointApplyAffineTransform(glyph.origin, run.matrix);
    Include(box, origin.x, origin.y);
  }
  const CGAffineTransform& t = run.matrix;
  return Grown(box, run.size * std::max(std::hypot(t.a, t.b), std::hypot(t.c, t.d)));
}

CGBox ExtentOf(const CGShading& shading, std::span<const CGClip> clips) {
  if (const auto* const mesh = std::get_if<CGTriangleMesh>(&shading)) {
    CGBox box = kNothing;
    for (const CGMeshVertex& vertex : mesh->vertices)
      Include(box, vertex.point.x, vertex.point.y);
    return box;
  }
  if (clips.empty()) return {-kBoundless, -kBoundless, kBoundless, kBoundless};
  return BoxOf(clips);
}

}  // namespace kelvane
