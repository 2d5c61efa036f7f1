#include "platform/raster/raster_paint.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <new>
#include <variant>

#include "platform/raster/raster_geometry.h"
#include "platform/raster/raster_mesh.h"

namespace kelvane {
namespace {

/// @return whole pixels, of which a cell has some, but not more than a page.
int PixelsIn(double length, double most) {
  return length > 1 ? static_cast<int>(std::min(std::round(length), most)) : 1;
}

/// @param toTarget  from the pattern's own space. Of what Cairo cannot count, being too fine or too
///                  far away, nothing shows.
void Place(cairo_pattern_t* pattern, const CGAffineTransform& toTarget) {
  constexpr CGFloat kFinest = 0x1p14F;  // in a pixel
  constexpr CGFloat kFarthest = 0x1p30F;
  const CGAffineTransform t = CGAffineTransformInvert(toTarget);
  const bool isCountable =
      LengthScale(toTarget) > 0 && IsFinite(t) &&
      std::max({std::abs(t.a), std::abs(t.b), std::abs(t.c), std::abs(t.d)}) < kFinest &&
      std::max(std::abs(t.tx), std::abs(t.ty)) < kFarthest;
  const cairo_matrix_t matrix = isCountable ? MatrixOf(t) : cairo_matrix_t{};
  cairo_pattern_set_matrix(pattern, &matrix);
}

/// @param shading  of the target's pixels.
CairoOwned<cairo_pattern_t> Gradient(const CGAxialShading& shading) {
  CairoOwned<cairo_pattern_t> pattern(
      cairo_pattern_create_linear(shading.start.x, shading.start.y, shading.end.x, shading.end.y));
  for (const CGGradientStop& stop : shading.stops) {
    cairo_pattern_add_color_stop_rgba(pattern.get(), stop.location, stop.color.red,
                                      stop.color.green, stop.color.blue, stop.color.alpha);
  }
  cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
  return pattern;
}

/// @return half a pixel down and to the right, in the pixels of a cell.
CGPoint HalfPixelIn(const CGAffineTransform& toTile, const CGAffineTransform& toTarget) {
  CGAffineTransform matrix = CGAffineTransformConcat(CGAffineTransformInvert(toTarget), toTile);
  matrix.tx = 0;
  matrix.ty = 0;
  return CGPointApplyAffineTransform({0.5F, 0.5F}, matrix);
}

}  // namespace

CairoOwned<cairo_pattern_t> RasterPaints::ImagePattern(cairo_surface_t* pixels,
                                                       const CGImage& image,
                                                       const CGAffineTransform& toTarget,
                                                       CGPoint halfPixel) {
  // Where Windows smooths, it looks at the upper left corners of the pixels it paints, and takes
  // those of the image to have their colours there.
  constexpr CGAffineTransform kFromCorner = {1, 0, 0, 1, -0.5F, -0.5F};
  const CGAffineTransform toMiddle = {1, 0, 0, 1, halfPixel.x, halfPixel.y};
  CairoOwned<cairo_pattern_t> pattern(cairo_pattern_create_for_surface(pixels));
  constexpr double kAsLarge = 0.999;  // but for rounding
  const bool isEnlarged = LengthScale(toTarget) >= kAsLarge;
  const bool isSmooth = isEnlarged && image.interpolate;
  const CGAffineTransform cornersToMiddles =
      CGAffineTransformConcat(CGAffineTransformConcat(kFromCorner, toTarget), toMiddle);
  Place(pattern.get(), isSmooth ? cornersToMiddles : toTarget);
  cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(pattern.get(), isSmooth     ? CAIRO_FILTER_BILINEAR
                                          : isEnlarged ? CAIRO_FILTER_NEAREST
                                                       : CAIRO_FILTER_GOOD);  // by area
  return pattern;
}

bool RasterPaints::Shows(cairo_pattern_t* pattern) {
  return pattern != nullptr && cairo_pattern_status(pattern) == CAIRO_STATUS_SUCCESS;
}

// A source that cannot be used would end all drawing.
void RasterPaints::SetSource(cairo_t* drawing, cairo_pattern_t* pattern) {
  if (Shows(pattern)) return cairo_set_source(drawing, pattern);
  cairo_set_source_rgba(drawing, 0, 0, 0, 0);
}

void RasterPaints::SetSource(cairo_t* drawing, const CGColor& color,
                             const CGSharedPattern& pattern) {
  if (pattern == nullptr) {
    return cairo_set_source_rgba(drawing, color.red, color.green, color.blue, 1);
  }
  if (pattern != lastShared_) {
    last_ = PatternOf(*pattern);
    lastShared_ = pattern;
  }
  SetSource(drawing, last_.get());
}

void RasterPaints::SetSource(cairo_t* drawing, const CGShading& shading) {
  SetSource(drawing, Shaded(shading, toPixels_).get());
}

CairoOwned<cairo_pattern_t> RasterPaints::Shaded(const CGShading& shading,
                                                 const CGAffineTransform& toTarget) const {
  const auto placed = Mapped(shading, toTarget);
  if (!placed) return nullptr;
  if (const auto* const mesh = std::get_if<CGTriangleMesh>(&*placed))
    return MeshPattern(*mesh, page_);
  return Gradient(std::get<CGAxialShading>(*placed));
}

CairoOwned<cairo_pattern_t> RasterPaints::PatternOf(const CGPattern& pattern) {
  if (!pattern.shading) return Tiling(pattern);
  return Shaded(*pattern.shading, CGAffineTransformConcat(pattern.matrix, toPixels_));
}

/// A cell is painted once, in whole pixels: so upright ones have edges as sharp as on Windows,
/// wherever they lie.
CairoOwned<cairo_pattern_t> RasterPaints::Tiling(const CGPattern& pattern) {
  const CGAffineTransform toTarget = CGAffineTransformConcat(pattern.matrix, toPixels_);
  const CGSize size = pattern.TileSize();
  const CGSize step = {size.width + pattern.gap.width, size.height + pattern.gap.height};
  // Patterns that take turns are painted each time; in the end, less well.
  const double most = tilePixelsLeft_ > 0 ? 4096 : 256;
  const int across = PixelsIn(step.width * std::hypot(toTarget.a, toTarget.b), most);
  const int down = PixelsIn(step.height * std::hypot(toTarget.c, toTarget.d), most);
  tilePixelsLeft_ -=
      std::min(tilePixelsLeft_, static_cast<std::size_t>(across) * static_cast<std::size_t>(down));
  const CGAffineTransform toTile = {
      static_cast<CGFloat>(across) / step.width, 0, 0,
      -static_cast<CGFloat>(down) / step.height, 0, static_cast<CGFloat>(down)};
  const CairoOwned<cairo_surface_t> tile(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, across, down));
  if (cairo_surface_status(tile.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  const CairoOwned<cairo_t> drawing(cairo_create(tile.get()));
  DrawCell(drawing.get(), pattern, toTile);
  CairoOwned<cairo_pattern_t> tiles(cairo_pattern_create_for_surface(tile.get()));
  cairo_pattern_set_extend(tiles.get(), CAIRO_EXTEND_REPEAT);
  const bool isUpright = toTarget.b == 0 && toTarget.c == 0;
  cairo_pattern_set_filter(tiles.get(), isUpright ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_BILINEAR);
  Place(tiles.get(), CGAffineTransformConcat(CGAffineTransformInvert(toTile), toTarget));
  return tiles;
}

/// @param toTile  from pattern space to the cell's pixels.
void RasterPaints::DrawCell(cairo_t* drawing, const CGPattern& pattern,
                            const CGAffineTransform& toTile) {
  CGPath edge;
  edge.AddRectangle({0, 0}, pattern.TileSize());
  SetPath(drawing, edge, toTile);
  cairo_clip(drawing);
  if (pattern.image != nullptr) DrawCellImages(drawing, pattern, toTile);
  for (const CGPatternShape& shape : pattern.shapes) {
    cairo_set_source_rgba(drawing, shape.color.red, shape.color.green, shape.color.blue,
                          shape.color.alpha);
    SetPath(drawing, shape.path, toTile);
    cairo_fill(drawing);
  }
}

void RasterPaints::DrawCellImages(cairo_t* drawing, const CGPattern& pattern,
                                  const CGAffineTransform& toTile) {
  cairo_surface_t* const pixels = images_.PixelsOf(*pattern.image, {});
  if (pixels == nullptr) return;
  const CGSize cell = pattern.cell;
  const CGAffineTransform toCell =
      CGAffineTransformConcat(PixelsToSquare(pixels), {cell.width, 0, 0, cell.height, 0, 0});
  const CGPoint halfPixel = HalfPixelIn(toTile, CGAffineTransformConcat(pattern.matrix, toPixels_));
  cairo_set_antialias(drawing, CAIRO_ANTIALIAS_NONE);
  for (int row = 0; row < pattern.Rows(); ++row) {
    for (int column = 0; column < pattern.Columns(); ++column) {
      const CGAffineTransform mirrored = {column == 0 ? 1.0F : -1.0F,
                                          0,
                                          0,
                                          row == 0 ? 1.0F : -1.0F,
                                          column == 0 ? 0 : 2 * cell.width,
                                          row == 0 ? 0 : 2 * cell.height};
      const auto image = ImagePattern(
          pixels, *pattern.image,
          CGAffineTransformConcat(CGAffineTransformConcat(toCell, mirrored), toTile), halfPixel);
      CGPath place;
      place.AddRectangle(
          {static_cast<CGFloat>(column) * cell.width, static_cast<CGFloat>(row) * cell.height},
          cell);
      SetSource(drawing, image.get());
      SetPath(drawing, place, toTile);
      cairo_fill(drawing);
    }
  }
  cairo_set_antialias(drawing, CAIRO_ANTIALIAS_DEFAULT);
}

}  // namespace kelvane
