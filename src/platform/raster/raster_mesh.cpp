#include "platform/raster/raster_mesh.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <span>

#include "platform/raster/raster_pixel.h"

namespace kelvane {
namespace {

/// Alpha, red, green and blue, not multiplied by alpha.
using Channels = std::array<double, 4>;

struct Corner {
  double x;  // pixels, as y
  double y;
  Channels color;
};

Corner CornerOf(const CGMeshVertex& vertex) {
  const CGColor& color = vertex.color;
  return {vertex.point.x, vertex.point.y, {color.alpha, color.red, color.green, color.blue}};
}

/// A way along an edge or a row. @param part  0 to 1.
Channels Between(const Channels& from, const Channels& to, double part) {
  Channels between{};
  for (std::size_t i = 0; i < between.size(); ++i)
    between[i] = from[i] + (to[i] - from[i]) * part;
  return between;
}

/// @return the first pixel whose middle is not before `edge`, within the page.
int FirstPixel(double edge, int least, int most) {
  const double first = std::ceil(edge - 0.5);
  return static_cast<int>(std::clamp(first, double{1} * least, double{1} * most));
}

/// What a triangle's edge has in the middle of a row.
struct Crossing {
  double x;
  Channels color;
};

/// @param above, below  the ends, of which the row's middle lies between.
Crossing CrossingOf(const Corner& above, const Corner& below, double middle) {
  const double part = std::clamp((middle - above.y) / (below.y - above.y), 0.0, 1.0);
  return {above.x + (below.x - above.x) * part, Between(above.color, below.color, part)};
}

/// Whole pixels of a page.
struct PixelBox {
  int left;
  int top;
  int right;  // behind the last
  int bottom;

  [[nodiscard]] bool IsEmpty() const { return left >= right || top >= bottom; }
};

PixelBox BoxAround(const CGTriangleMesh& mesh, const PixelCount& page) {
  constexpr double kFar = std::numeric_limits<double>::max();
  double left = kFar;
  double top = kFar;
  double right = -kFar;
  double bottom = -kFar;
  for (const CGMeshVertex& vertex : mesh.vertices) {
    left = std::min<double>(left, vertex.point.x);
    top = std::min<double>(top, vertex.point.y);
    right = std::max<double>(right, vertex.point.x);
    bottom = std::max<double>(bottom, vertex.point.y);
  }
  return {FirstPixel(left, 0, page.width), FirstPixel(top, 0, page.height),
          FirstPixel(right, 0, page.width), FirstPixel(bottom, 0, page.height)};
}

/// Paints triangles into a picture that shows a part of the page.
class TrianglePainter {
 public:
  TrianglePainter(const PixelRows& rows, const PixelBox& box) : rows_(rows), box_(box) {}

  void Paint(std::array<Corner, 3> corners) {
    std::ranges::sort(corners, {}, &Corner::y);
    const auto& [high, middle, low] = corners;
    const int end = FirstPixel(low.y, box_.top, box_.bottom);
    for (int y = FirstPixel(high.y, box_.top, box_.bottom); y < end; ++y) {
      const double at = y + 0.5;
      const Crossing one = CrossingOf(high, low, at);
      const Crossing other =
          at < middle.y ? CrossingOf(high, middle, at) : CrossingOf(middle, low, at);
      PaintRow(y, one.x < other.x ? one : other, one.x < other.x ? other : one);
    }
  }

 private:
  void PaintRow(int y, const Crossing& left, const Crossing& right) {
    const int first = FirstPixel(left.x, box_.left, box_.right);
    const int end = FirstPixel(right.x, box_.left, box_.right);
    if (first >= end) return;
    std::uint32_t* const row = rows_.Row(static_cast<std::size_t>(y - box_.top));
    const auto part = [&](int x) { return (x + 0.5 - left.x) / (right.x - left.x); };
    PaintPixels(std::span(row + (first - box_.left), row + (end - box_.left)),
                Between(left.color, right.color, part(first)),
                Between(left.color, right.color, part(end - 1)));
  }

  /// A channel from pixel to pixel, from 0 to 255 with a fraction.
  struct Ramp {
    std::int32_t value;
    std::int32_t growth;

    std::uint32_t Next() {
      const auto whole = static_cast<std::uint32_t>(value) >> kFraction;
      value += growth;
      return whole;
    }
  };

  static constexpr int kFraction = 22;

  /// @param from  at the first pixel, as `to` at the last.
  static Ramp RampOf(double from, double to, std::size_t pixels) {
    constexpr double kWhole = 255.0 * (1 << kFraction);
    constexpr std::int32_t kHalf = 1 << (kFraction - 1);
    const double first = std::clamp(from, 0.0, 1.0);
    const double way = std::clamp(to, 0.0, 1.0) - first;
    const auto steps = static_cast<double>(std::max<std::size_t>(pixels - 1, 1));
    return {static_cast<std::int32_t>(first * kWhole) + kHalf,
            static_cast<std::int32_t>(way * kWhole / steps)};
  }

  static void PaintPixels(std::span<std::uint32_t> pixels, const Channels& from,
                          const Channels& to) {
    const auto ramp = [&](std::size_t channel) {
      return RampOf(from[channel], to[channel], pixels.size());
    };
    Ramp red = ramp(1);
    Ramp green = ramp(2);
    Ramp blue = ramp(3);
    for (std::uint32_t& pixel : pixels)
      pixel = 0xFF000000U | red.Next() << 16 | green.Next() << 8 | blue.Next();
    if (from[0] == 1 && to[0] == 1) return;
    Ramp alpha = ramp(0);
    for (std::uint32_t& pixel : pixels)
      pixel = Faded(pixel, static_cast<std::uint8_t>(alpha.Next()));
  }

  const PixelRows& rows_;
  PixelBox box_;
};

}  // namespace

CairoOwned<cairo_pattern_t> MeshPattern(const CGTriangleMesh& mesh, const PixelCount& page) {
  PixelBox box = BoxAround(mesh, page);
  if (box.IsEmpty()) box = {0, 0, 1, 1};
  const CairoOwned<cairo_surface_t> surface(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, box.right - box.left, box.bottom - box.top));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  {
    const PixelRows rows(surface.get());
    TrianglePainter painter(rows, box);
    for (std::size_t at = 0; at + 2 < mesh.vertices.size(); at += 3) {
      painter.Paint({CornerOf(mesh.vertices[at]), CornerOf(mesh.vertices[at + 1]),
                     CornerOf(mesh.vertices[at + 2])});
    }
  }
  CairoOwned<cairo_pattern_t> pattern(cairo_pattern_create_for_surface(surface.get()));
  const cairo_matrix_t toSurface = {1, 0, 0, 1, -double{1} * box.left, -double{1} * box.top};
  cairo_pattern_set_matrix(pattern.get(), &toSurface);
  cairo_pattern_set_filter(pattern.get(), CAIRO_FILTER_NEAREST);
  return pattern;
}

}  // namespace kelvane
