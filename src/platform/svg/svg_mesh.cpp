#include "platform/svg/svg_mesh.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>

#include "platform/svg/svg_color.h"
#include "platform/svg/svg_gradient.h"
#include "platform/svg/svg_path.h"

namespace kelvane {
namespace {

using Triangle = std::array<CGMeshVertex, 3>;

constexpr double kStepsOfAByte = 255;

/// A colour as a place, in steps of a byte.
using ColorPoint = std::array<double, 4>;

ColorPoint PointOf(const CGColor& color) {
  return {color.red * kStepsOfAByte, color.green * kStepsOfAByte, color.blue * kStepsOfAByte,
          color.alpha * kStepsOfAByte};
}

ColorPoint Difference(const CGColor& from, const CGColor& to) {
  ColorPoint a = PointOf(from);
  const ColorPoint b = PointOf(to);
  for (std::size_t i = 0; i < a.size(); ++i)
    a[i] = b[i] - a[i];
  return a;
}

double Product(const ColorPoint& a, const ColorPoint& b) {
  double sum = 0;
  for (std::size_t i = 0; i < a.size(); ++i)
    sum += a[i] * b[i];
  return sum;
}

double Distance(const CGColor& a, const CGColor& b) {
  const ColorPoint difference = Difference(a, b);
  return std::sqrt(Product(difference, difference));
}

CGPoint Between(CGPoint a, CGPoint b, CGFloat part) {
  return {a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part};
}

CGColor Between(const CGColor& a, const CGColor& b, CGFloat part) {
  return {a.red + (b.red - a.red) * part, a.green + (b.green - a.green) * part,
          a.blue + (b.blue - a.blue) * part, a.alpha + (b.alpha - a.alpha) * part};
}

CGMeshVertex Between(const CGMeshVertex& a, const CGMeshVertex& b, CGFloat part) {
  return {Between(a.point, b.point, part), Between(a.color, b.color, part)};
}

/// The two corners that are furthest from each other in colour, then the third.
Triangle ByColor(const Triangle& triangle) {
  const auto& [a, b, c] = triangle;
  const double ab = Distance(a.color, b.color);
  const double bc = Distance(b.color, c.color);
  const double ca = Distance(c.color, a.color);
  if (ab >= bc && ab >= ca) return {a, b, c};
  return bc >= ca ? Triangle{b, c, a} : Triangle{c, a, b};
}

/// @return a line on which a value lies that is 0 at the first corner, 1 at the second and `third`
///         at the third; nullopt where the corners lie on one line.
std::optional<std::pair<CGPoint, CGPoint>> LineOf(const Triangle& triangle, double third) {
  const auto& [a, b, c] = triangle;
  const double bx = static_cast<double>(b.point.x) - a.point.x;
  const double by = static_cast<double>(b.point.y) - a.point.y;
  const double cx = static_cast<double>(c.point.x) - a.point.x;
  const double cy = static_cast<double>(c.point.y) - a.point.y;
  const double area = bx * cy - by * cx;
  const double slopeX = cy - by * third;  // both times the area
  const double slopeY = bx * third - cx;
  const double slope = slopeX * slopeX + slopeY * slopeY;
  if (area == 0 || !(slope > 0)) return std::nullopt;
  const CGPoint end = {static_cast<CGFloat>(a.point.x + slopeX * area / slope),
                       static_cast<CGFloat>(a.point.y + slopeY * area / slope)};
  if (!IsFinite(end) || end == a.point) return std::nullopt;
  return std::pair(a.point, end);
}

/// Strips of one mesh, text on its way.
class MeshWriter {
 public:
  MeshWriter(const CGAffineTransform& matrix, const SvgGrid& grid, SvgDefinitions& definitions)
      : matrix_(matrix), grid_(grid), definitions_(definitions) {}

  void Write(const Triangle& corners) {
    constexpr double kOneColor = 0.5;
    constexpr double kOnTheLine = 3;
    const Triangle triangle = ByColor(corners);
    const ColorPoint whole = Difference(triangle[0].color, triangle[1].color);
    const ColorPoint third = Difference(triangle[0].color, triangle[2].color);
    const double length = Product(whole, whole);
    const std::array outline = {triangle[0].point, triangle[1].point, triangle[2].point};
    if (length < kOneColor) return Fill(outline, Plain(triangle[0].color));
    const double part = Product(whole, third) / length;
    const CGColor onLine =
        Between(triangle[0].color, triangle[1].color, static_cast<CGFloat>(part));
    if (Distance(onLine, triangle[2].color) > kOnTheLine) return WriteStrips(triangle);
    if (const auto line = LineOf(triangle, part)) {
      Fill(outline, Gradient(*line, triangle[0].color, triangle[1].color));
    }
  }

  std::string TakeText() { return std::move(text_); }

 private:
  /// Cuts a triangle along lines between the pair of corners that are furthest apart in colour.
  void WriteStrips(const Triangle& triangle) {
    constexpr double kStep = 12;
    constexpr double kMostStrips = 32;
    const auto& [a, b, c] = triangle;
    const double change = std::max(Distance(a.color, c.color), Distance(b.color, c.color));
    const auto count = static_cast<int>(std::clamp(std::ceil(change / kStep), 1.0, kMostStrips));
    for (int i = 0; i < count; ++i) {
      const CGFloat near = static_cast<CGFloat>(i) / static_cast<CGFloat>(count);
      const CGFloat far = static_cast<CGFloat>(i + 1) / static_cast<CGFloat>(count);
      const CGFloat middle = (near + far) / 2;
      const CGMeshVertex start = Between(a, c, middle);
      const CGMeshVertex end = Between(b, c, middle);
      const std::array outline = {Between(a.point, c.point, near), Between(b.point, c.point, near),
                                  Between(b.point, c.point, far), Between(a.point, c.point, far)};
      // Colours stay as they are in the direction of the third corner.
      const Triangle across = {start, end,
                               CGMeshVertex{c.point, Between(start.color, end.color, .5F)}};
      if (const auto line = LineOf(across, .5)) {
        Fill(outline, Gradient(*line, start.color, end.color));
      }
    }
  }

  static std::string Plain(const CGColor& color) {
    std::string paint = " fill=\"" + SvgColor(color) + "\"";
    if (color.alpha != 1) AppendSvgAttribute(paint, "fill-opacity", color.alpha);
    return paint;
  }

  std::string Gradient(const std::pair<CGPoint, CGPoint>& line, const CGColor& start,
                       const CGColor& end) {
    return " fill=\"" +
           SvgGradient({line.first, line.second, {{0, start}, {1, end}}}, matrix_, definitions_) +
           "\"";
  }

  void Fill(std::span<const CGPoint> outline, const std::string& paint) {
    CGPath path;
    path.MoveTo(outline.front());
    for (const CGPoint point : outline.subspan(1))
      path.LineTo(point);
    path.Close();
    text_.append("<path d=\"").append(SvgPathData(path, matrix_, grid_));
    text_.append("\"").append(paint).append("/>");
  }

  const CGAffineTransform matrix_;
  const SvgGrid& grid_;
  SvgDefinitions& definitions_;
  std::string text_;
};

}  // namespace

std::string SvgMesh(const CGTriangleMesh& mesh, const CGAffineTransform& matrix,
                    const SvgGrid& grid, SvgDefinitions& definitions) {
  MeshWriter writer(matrix, grid, definitions);
  for (std::size_t at = 0; at + 2 < mesh.vertices.size(); at += 3)
    writer.Write({mesh.vertices[at], mesh.vertices[at + 1], mesh.vertices[at + 2]});
  return writer.TakeText();
}

}  // namespace kelvane
