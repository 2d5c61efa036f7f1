#include "platform/svg/svg_paint.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>

#include "platform/svg/svg_color.h"
#include "platform/svg/svg_gradient.h"
#include "platform/svg/svg_mesh.h"
#include "platform/svg/svg_path.h"

namespace kelvane {
namespace {

constexpr const char* kCrisp = " shape-rendering=\"crispEdges\"";  // edges that meet leave no seam

/// Where the image of a column or row lies along one axis: scale and shift. The first is at the
/// left or at the bottom, which is where y ends; its neighbour is mirrored.
std::pair<CGFloat, CGFloat> ColumnAt(int column, CGFloat width) {
  return column == 0 ? std::pair(width, 0.0F) : std::pair(-width, 2 * width);
}
std::pair<CGFloat, CGFloat> RowAt(int row, int rows, CGFloat height) {
  return row == 0 ? std::pair(height, static_cast<CGFloat>(rows - 1) * height)
                  : std::pair(-height, height);
}

/// Where Windows smooths, it looks at the upper left corners of a screen's pixels, and takes those
/// of an image to have their colours there. Viewers take the middles for both, which comes to the
/// same only where the pixels are equally large.
bool IsShifted(const CGImage& image, const CGAffineTransform& toPage) {
  constexpr double kScreenPixel = 0.75;  // points
  constexpr double kAlmostNone = 0.01;
  return image.interpolate && std::abs(LengthScale(toPage) / kScreenPixel - 1) > kAlmostNone;
}

/// @return the element of an image of that name without its end; empty when there is none.
std::string UseOf(const std::string& name, const CGAffineTransform& toPage, bool isSharp) {
  if (name.empty()) return {};
  std::string element = "<use xlink:href=\"#" + name + "\"";
  AppendSvgTransform(element, "transform", toPage);
  if (isSharp) element += " style=\"image-rendering:pixelated\"";
  return element;
}

}  // namespace

bool SvgIsSharp(const CGImage& image, const CGAffineTransform& toPage, double scale) {
  constexpr double kEnlarged = 0.6;  // points a pixel: about as many as a screen shows
  return !image.interpolate && LengthScale(toPage) * scale >= kEnlarged;
}

std::string SvgPaints::ImageElement(const CGImage& image, const CGColor& color,
                                    const CGAffineTransform& toPage) {
  if (IsShifted(image, toPage)) return UseOf(images_.AddShifted(image, color), toPage, false);
  const bool isSharp = SvgIsSharp(image, toPage, 1);
  return UseOf(images_.Add(image, color, isSharp), toPage, isSharp);
}

std::string SvgPaints::PaintOf(const CGColor& color, const CGSharedPattern& pattern,
                               const CGAffineTransform& transform) {
  if (pattern == nullptr) return SvgColor(color);
  if (transform != CGAffineTransformIdentity) return PatternPaint(*pattern, transform);
  const auto [paint, isNew] = plain_.try_emplace(pattern);
  if (isNew) paint->second = PatternPaint(*pattern, transform);
  return paint->second;
}

std::string SvgPaints::PatternPaint(const CGPattern& pattern, const CGAffineTransform& transform) {
  const CGAffineTransform toElement = CGAffineTransformInvert(transform);
  const CGAffineTransform matrix =
      CGAffineTransformConcat(CGAffineTransformConcat(pattern.matrix, page_.fromPage), toElement);
  if (!pattern.shading) return TilingPaint(pattern, matrix);
  if (const auto* axial = std::get_if<CGAxialShading>(&*pattern.shading)) {
    return SvgGradient(*axial, matrix, definitions_);
  }
  std::string text = " patternUnits=\"userSpaceOnUse\"";
  AppendSvgAttribute(text, "width", page_.size.width);
  AppendSvgAttribute(text, "height", page_.size.height);
  AppendSvgTransform(text, "patternTransform", toElement);
  text.append(kCrisp).append(">");
  text +=
      SvgMesh(std::get<CGTriangleMesh>(*pattern.shading),
              CGAffineTransformConcat(pattern.matrix, page_.fromPage), page_.grid, definitions_);
  text += "</pattern>";
  return definitions_.Reference("pattern", std::move(text));
}

/// @param matrix  from pattern space.
std::string SvgPaints::TilingPaint(const CGPattern& pattern, const CGAffineTransform& matrix) {
  const CGSize cell = pattern.TileSize();
  std::string text = " patternUnits=\"userSpaceOnUse\"";
  AppendSvgAttribute(text, "width", cell.width + pattern.gap.width);
  AppendSvgAttribute(text, "height", cell.height + pattern.gap.height);
  AppendSvgTransform(text, "patternTransform",
                     CGAffineTransformConcat({1, 0, 0, -1, 0, cell.height}, matrix));
  text += '>';
  text += CellOf(pattern, LengthScale(matrix));
  text += "</pattern>";
  return definitions_.Reference("pattern", std::move(text));
}

/// What is drawn in a cell, y downwards. What lies beyond it would show in a gap.
std::string SvgPaints::CellOf(const CGPattern& pattern, double scale) {
  const CGSize cell = pattern.TileSize();
  const SvgGrid grid(std::max(cell.width, cell.height));
  std::string text;
  for (int row = 0; pattern.image != nullptr && row < pattern.Rows(); ++row) {
    for (int column = 0; column < pattern.Columns(); ++column) {
      const auto [width, left] = ColumnAt(column, pattern.cell.width);
      const auto [height, top] = RowAt(row, pattern.Rows(), pattern.cell.height);
      const auto pixelsAcross = static_cast<CGFloat>(pattern.image->width);
      const auto pixelsDown = static_cast<CGFloat>(pattern.image->height);
      const CGAffineTransform toCell = {width / pixelsAcross, 0, 0, height / pixelsDown, left, top};
      const bool isSharp = SvgIsSharp(*pattern.image, toCell, scale);
      const std::string image = UseOf(images_.Add(*pattern.image, {}, isSharp), toCell, isSharp);
      if (!image.empty()) text += image + "/>";
    }
  }
  for (const CGPatternShape& shape : pattern.shapes) {
    text += "<path fill=\"" + SvgColor(shape.color) + "\"";
    if (shape.color.alpha != 1) AppendSvgAttribute(text, "fill-opacity", shape.color.alpha);
    text += " d=\"" + SvgPathData(shape.path, {1, 0, 0, -1, 0, cell.height}, grid) + "\"/>";
  }
  if (pattern.gap == CGSize{} || pattern.shapes.empty()) return text;
  CGPath edge;
  edge.AddRectangle({0, 0}, cell);
  const std::string clip = definitions_.Reference(
      "clipPath", "><path d=\"" + SvgPathData(edge, {}, grid) + "\"/></clipPath>");
  return "<g clip-path=\"" + clip + "\">" + text + "</g>";
}

std::string SvgPaints::ShadingOverPage(const CGShading& shading) {
  if (const auto* mesh = std::get_if<CGTriangleMesh>(&shading)) {
    return SvgMesh(*mesh, page_.fromPage, page_.grid, definitions_);
  }
  std::string element = "<rect";
  AppendSvgAttribute(element, "width", page_.size.width);
  AppendSvgAttribute(element, "height", page_.size.height);
  return element + " fill=\"" +
         SvgGradient(std::get<CGAxialShading>(shading), page_.fromPage, definitions_) + "\"/>";
}

}  // namespace kelvane
