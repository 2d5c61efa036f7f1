#include "gdi/brush_pattern.h"

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

#include "gdi/page_color.h"
#include "gdi/sample_images.h"
#include "metafile/dib.h"

namespace kelvane {
namespace {

constexpr CGFloat kHatchCell = 8;

void AddPolygon(CGPath& path, std::initializer_list<CGPoint> points) {
  for (const CGPoint point : points) {
    if (point == *points.begin()) {
      path.MoveTo(point);
    } else {
      path.LineTo(point);
    }
  }
  path.Close();
}

/// The band through the pixels from one corner of the cell to the other, and what of its
/// neighbours reaches in at the other two corners. Falling has y upwards here: from the top left.
/// @param h  half of the band, along either axis.
void AddDiagonal(CGPath& path, bool isFalling, CGFloat h) {
  constexpr CGFloat s = kHatchCell;
  const auto at = [isFalling](CGFloat x, CGFloat y) { return CGPoint{x, isFalling ? s - y : y}; };
  AddPolygon(path, {at(0, 0), at(h, 0), at(s, s - h), at(s, s), at(s - h, s), at(0, h)});
  AddPolygon(path, {at(s - h, 0), at(s, 0), at(s, h)});
  AddPolygon(path, {at(0, s - h), at(h, s), at(0, s)});
}

CGPattern HatchPattern(const BrushPaint& paint, RasterStep::Color color) {
  CGPattern pattern;
  pattern.cell = {kHatchCell, kHatchCell};
  if (paint.background) {
    CGPath cell;
    cell.AddRectangle({0, 0}, pattern.cell);
    pattern.shapes.push_back({std::move(cell), ColorOnPage(ColorOf(color, *paint.background))});
  }
  pattern.shapes.push_back({HatchLines(paint.hatch), ColorOnPage(ColorOf(color, paint.color))});
  return pattern;
}

void Recolor(std::vector<unsigned char>& rgb, RasterStep::Color color) {
  for (std::size_t i = 0; i + 2 < rgb.size(); i += 3) {
    const RgbColor changed = ColorOf(color, {rgb[i], rgb[i + 1], rgb[i + 2]});
    rgb[i] = changed.red;
    rgb[i + 1] = changed.green;
    rgb[i + 2] = changed.blue;
  }
}

/// The bits of a bitmap in the two colours of the device; its own do not matter.
std::vector<unsigned char> MonoRgb(const Dib& dib, const PixelRectangle& whole,
                                   const BrushPaint& paint) {
  const RgbColor set = paint.background.value_or(RgbColor{});
  std::vector<unsigned char> rgb;
  rgb.reserve(3 * whole.width * whole.height);
  for (const unsigned char index : DecodeIndexes(dib, whole).indexes) {
    const RgbColor color = index == 0 ? paint.color : set;
    rgb.insert(rgb.end(), {color.red, color.green, color.blue});
  }
  return rgb;
}

std::optional<std::vector<unsigned char>> RgbOf(const Dib& dib, const BrushPaint& paint) {
  const PixelRectangle whole = {0, 0, dib.Width(), dib.Height()};
  const bool isMono = paint.kind == Brush::Kind::kMonoPattern && dib.BitCount() == 1;
  return isMono ? MonoRgb(dib, whole, paint) : DecodeRgb(dib, whole);
}

}  // namespace

// As thick as a pixel: the fourth row, the fifth column, the diagonals.
CGPath HatchLines(HatchStyle hatch, CGFloat halfBand) {
  CGPath path;
  if (hatch == HS_HORIZONTAL || hatch == HS_CROSS) path.AddRectangle({0, 4}, {kHatchCell, 1});
  if (hatch == HS_VERTICAL || hatch == HS_CROSS) path.AddRectangle({4, 0}, {1, kHatchCell});
  if (hatch == HS_FDIAGONAL || hatch == HS_DIAGCROSS) AddDiagonal(path, true, halfBand);
  if (hatch == HS_BDIAGONAL || hatch == HS_DIAGCROSS) AddDiagonal(path, false, halfBand);
  return path;
}

std::uint64_t SizeOfPattern(const BrushPaint& paint) {
  const std::uint64_t stored = paint.pattern.pixels.size();
  const std::optional<Dib> dib = Dib::Read(paint.pattern);
  if (!dib || !dib->IsCompressed()) return stored;
  return std::max(stored, std::uint64_t{dib->Width()} * dib->Height());
}

std::optional<CGPattern> MakePattern(const BrushPaint& paint, RasterStep::Color color) {
  if (paint.kind == Brush::Kind::kHatched) return HatchPattern(paint, color);
  const std::optional<Dib> dib = Dib::Read(paint.pattern, paint.palette);
  if (!dib) return std::nullopt;
  auto rgb = RgbOf(*dib, paint);
  if (!rgb) return std::nullopt;
  Recolor(*rgb, color);
  CGPattern pattern;
  pattern.cell = {static_cast<CGFloat>(dib->Width()), static_cast<CGFloat>(dib->Height())};
  pattern.image = ImageOfRgb(dib->Width(), dib->Height(), *std::move(rgb), false);
  return pattern;
}

}  // namespace kelvane
