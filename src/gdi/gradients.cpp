#include "gdi/gradients.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "gdi/exactly.h"
#include "gdi/figures.h"
#include "gdi/page_color.h"
#include "gdi/painting.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {
namespace {

RgbColor ColorOf(const TriVertex& vertex) {
  const auto channel = [](std::uint16_t stored) { return static_cast<std::uint8_t>(stored >> 8); };
  return {channel(vertex.red), channel(vertex.green), channel(vertex.blue)};
}

bool IsThere(const GradientRectangle& rectangle, ArrayView<TriVertex> vertices) {
  return std::max(rectangle.upperLeft, rectangle.lowerRight) < vertices.size();
}

bool IsThere(const GradientTriangle& triangle, ArrayView<TriVertex> vertices) {
  return std::max({triangle.vertex1, triangle.vertex2, triangle.vertex3}) < vertices.size();
}

template <class Shape>
bool AreThere(ArrayView<Shape> shapes, ArrayView<TriVertex> vertices) {
  return std::ranges::all_of(shapes, [&](const Shape& shape) { return IsThere(shape, vertices); });
}

CGPoint OnPage(const Canvas& canvas, PointD point) {
  return canvas.RoundOnPage(Rounded(point));
}

/// A rectangle, logical units, with the colours of two opposite edges.
struct ColoredBox {
  RectangleD box;
  RgbColor from;  // at the left or at the top
  RgbColor to;
};

ColoredBox BoxBetween(const TriVertex& one, const TriVertex& other, GradientFillMode mode) {
  const auto [left, right] = std::minmax(one.position.x, other.position.x);
  const auto [top, bottom] = std::minmax(one.position.y, other.position.y);
  const bool isInOrder =
      mode == GRADIENT_FILL_RECT_H ? one.position.x == left : one.position.y == top;
  return {Exactly(RectangleL{left, top, right, bottom}), ColorOf(isInOrder ? one : other),
          ColorOf(isInOrder ? other : one)};
}

/// The line along which colour runs across a box. Its colours lie along the edges of the box as the
/// mapping leaves them, so on the page it stands upright on two of them. A device takes the colour
/// of a pixel's upper left corner, a page that of its middle: the line is half a pixel further.
/// @return nullopt for a box that has no area on the page.
std::optional<CGAxialShading> ShadingOf(const DeviceContext& device, const ColoredBox& colored,
                                        GradientFillMode mode) {
  constexpr double kHalf = 0.5;
  const Canvas& canvas = *device.canvas;
  const TransformD toPage =
      device.state.mapping.ToDevice().Then({1, 0, 0, 1, kHalf, kHalf}).Then(canvas.ToPage());
  if (!toPage.Inverse()) return std::nullopt;
  const auto& [left, top, right, bottom] = colored.box;
  const bool isHorizontal = mode == GRADIENT_FILL_RECT_H;
  const PointD way =
      toPage.MapVector(isHorizontal ? PointD{right - left, 0} : PointD{0, bottom - top});
  const PointD edge = toPage.MapVector(isHorizontal ? PointD{0, 1} : PointD{1, 0});
  const double slant = (way.x * edge.x + way.y * edge.y) / (edge.x * edge.x + edge.y * edge.y);
  const PointD start = toPage.Map({left, top});
  const PointD end = {start.x + way.x - slant * edge.x, start.y + way.y - slant * edge.y};
  return CGAxialShading{OnPage(canvas, start),
                        OnPage(canvas, end),
                        {{0, ColorOnPage(colored.from)}, {1, ColorOnPage(colored.to)}}};
}

void DrawWithin(Canvas& canvas, CGPath& clip, const CGShading& shading) {
  CGContext& surface = canvas.Surface();
  surface.SaveGState();
  if (canvas.ClipTo(clip)) {
    surface.SetBlendMode(kCGBlendModeNormal);
    surface.DrawShading(shading);
  }
  surface.RestoreGState();
}

void Draw(DeviceContext& device, const ColoredBox& colored, GradientFillMode mode) {
  if (colored.box.IsEmpty()) return;
  const auto shading = ShadingOf(device, colored, mode);
  if (!shading) return;
  FigurePath(device.scratch, device.state.mapping.ToDevice()).AddPlainRectangle(colored.box);
  const bool isPlain = colored.from == colored.to || shading->start == shading->end;
  if (isPlain) return FillWith(device, device.scratch, WINDING, colored.from, R2_COPYPEN);
  DrawWithin(*device.canvas, device.scratch, *shading);
}

/// Triangles on the page. A file may have as many as it likes; they are drawn so many at a time,
/// and take no more memory than that.
class MeshPainter {
 public:
  explicit MeshPainter(const DeviceContext& device)
      : canvas_(*device.canvas),
        toPage_(device.state.mapping.ToDevice().Then(device.canvas->ToPage())) {}

  /// Leaves out a triangle that has no area, or no place on the page.
  void Add(const std::array<TriVertex, 3>& corners) {
    std::array<CGPoint, 3> points;
    std::ranges::transform(corners, points.begin(), [&](const TriVertex& corner) {
      return OnPage(canvas_, toPage_.Map(Exactly(corner.position)));
    });
    if (!HasArea(points)) return;
    for (std::size_t i = 0; i < corners.size(); ++i)
      mesh_.vertices.push_back({points[i], ColorOnPage(ColorOf(corners[i]))});
    if (mesh_.vertices.size() >= kMostVertices) Draw();
  }

  void Draw() {
    if (mesh_.vertices.empty()) return;
    canvas_.Surface().SetBlendMode(kCGBlendModeNormal);
    canvas_.Surface().DrawShading(std::exchange(mesh_, {}));
  }

 private:
  static constexpr std::size_t kMostVertices = 3U << 15;

  static bool HasArea(const std::array<CGPoint, 3>& points) {
    const auto side = [&](std::size_t to) {
      return PointD{double{points[to].x} - double{points[0].x},
                    double{points[to].y} - double{points[0].y}};
    };
    const PointD a = side(1);
    const PointD b = side(2);
    return std::ranges::all_of(points, [](CGPoint p) { return IsFinite(p); }) &&
           a.x * b.y != a.y * b.x;
  }

  Canvas& canvas_;
  TransformD toPage_;
  CGTriangleMesh mesh_;
};

}  // namespace

bool GradientFill(DeviceContext& device, ArrayView<TriVertex> vertices,
                  ArrayView<GradientRectangle> rectangles, GradientFillMode mode) {
  if (BringClip(device)) {
    for (const GradientRectangle& r : rectangles) {
      if (!IsThere(r, vertices)) continue;
      Draw(device, BoxBetween(vertices[r.upperLeft], vertices[r.lowerRight], mode), mode);
    }
  }
  return AreThere(rectangles, vertices);
}

bool GradientFill(DeviceContext& device, ArrayView<TriVertex> vertices,
                  ArrayView<GradientTriangle> triangles) {
  if (BringClip(device)) {
    MeshPainter painter(device);
    for (const GradientTriangle& t : triangles) {
      if (!IsThere(t, vertices)) continue;
      painter.Add({vertices[t.vertex1], vertices[t.vertex2], vertices[t.vertex3]});
    }
    painter.Draw();
  }
  return AreThere(triangles, vertices);
}

}  // namespace kelvane
