#pragma once

#include <cstddef>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_image.h"
#include "platform/quartz/cg_pattern.h"
#include "platform/quartz/cg_shading.h"
#include "platform/raster/cairo_library.h"
#include "platform/raster/raster_geometry.h"
#include "platform/raster/raster_image.h"

namespace kelvane {

/// What marks are filled with, as Cairo has it.
class RasterPaints {
 public:
  /// @param toPixels  from page space. @param page  nothing is painted beyond it.
  /// @param images    borrowed.
  RasterPaints(const CGAffineTransform& toPixels, const PixelCount& page, RasterImages& images)
      : toPixels_(toPixels), page_(page), images_(images) {}

  /// @return whether a pattern shows anything. Null shows nothing.
  static bool Shows(cairo_pattern_t* pattern);

  /// Makes a pattern the source, or nothing in place of one that does not show.
  static void SetSource(cairo_t* drawing, cairo_pattern_t* pattern);

  /// Makes a colour, or a pattern in its place, the source.
  void SetSource(cairo_t* drawing, const CGColor& color, const CGSharedPattern& pattern);

  /// @param shading  page space.
  void SetSource(cairo_t* drawing, const CGShading& shading);

  /// @param pixels     of an image. @param toTarget  from its pixels, y downwards.
  /// @param image      says how it is enlarged.
  /// @param halfPixel  from the upper left corner of a pixel of the page to its middle, as the
  ///                   target has it.
  static CairoOwned<cairo_pattern_t> ImagePattern(cairo_surface_t* pixels, const CGImage& image,
                                                  const CGAffineTransform& toTarget,
                                                  CGPoint halfPixel = {0.5F, 0.5F});

 private:
  /// @param toTarget  from the shading's space to the page's pixels. @return null for nothing.
  [[nodiscard]] CairoOwned<cairo_pattern_t> Shaded(const CGShading& shading,
                                                   const CGAffineTransform& toTarget) const;
  CairoOwned<cairo_pattern_t> PatternOf(const CGPattern& pattern);
  CairoOwned<cairo_pattern_t> Tiling(const CGPattern& pattern);
  void DrawCell(cairo_t* drawing, const CGPattern& pattern, const CGAffineTransform& toTile);
  void DrawCellImages(cairo_t* drawing, const CGPattern& pattern, const CGAffineTransform& toTile);

  CGAffineTransform toPixels_;
  PixelCount page_;
  RasterImages& images_;
  std::size_t tilePixelsLeft_ = std::size_t{1} << 27;  // before tiles are made small
  CGSharedPattern lastShared_;                         // patterns are used again and again
  CairoOwned<cairo_pattern_t> last_;
};

}  // namespace kelvane
