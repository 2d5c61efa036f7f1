#pragma once

#include "platform/raster/cairo_library.h"
#include "platform/raster/raster_extent.h"

namespace kelvane {

/// How much of each pixel of a part of a picture is painted; nothing at first.
class RasterMask {
 public:
  /// @param box  the part, which may be empty. @param drawing  nothing beyond its clip is in it.
  RasterMask(cairo_t* drawing, const RasterBox& box);

  [[nodiscard]] int Left() const { return left_; }
  [[nodiscard]] int Top() const { return top_; }
  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] bool IsEmpty() const { return width_ == 0 || height_ == 0; }

  [[nodiscard]] cairo_surface_t* Pixels() const { return pixels_.get(); }

  /// Paints the source of a drawing through it.
  void Paint(cairo_t* drawing) const;

 private:
  int left_;
  int top_;
  int width_;
  int height_;
  CairoOwned<cairo_surface_t> pixels_;
};

}  // namespace kelvane
