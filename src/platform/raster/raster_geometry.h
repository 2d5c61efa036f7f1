#pragma once

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_path.h"
#include "platform/raster/cairo_library.h"

namespace kelvane {

/// How large a picture is.
struct PixelCount {
  int width = 0;
  int height = 0;
};

inline cairo_matrix_t MatrixOf(const CGAffineTransform& t) {
  return {t.a, t.b, t.c, t.d, t.tx, t.ty};
}

/// Makes a path the current one. @param toPixels  maps its points.
inline void SetPath(cairo_t* drawing, const CGPath& path, const CGAffineTransform& toPixels) {
  cairo_new_path(drawing);
  const auto at = [&toPixels](CGPoint point) {
    return CGPointApplyAffineTransform(point, toPixels);
  };
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    switch (element) {
      case CGPath::Element::kMove: {
        const CGPoint to = at(points[0]);
        return cairo_move_to(drawing, to.x, to.y);
      }
      case CGPath::Element::kLine: {
        const CGPoint to = at(points[0]);
        return cairo_line_to(drawing, to.x, to.y);
      }
      case CGPath::Element::kCurve: {
        const CGPoint one = at(points[0]);
        const CGPoint two = at(points[1]);
        const CGPoint to = at(points[2]);
        return cairo_curve_to(drawing, one.x, one.y, two.x, two.y, to.x, to.y);
      }
      case CGPath::Element::kRectangle: {
        const CGPoint corner = points[0];
        const CGPoint size = points[1];
        const CGPoint corners[] = {at(corner), at({corner.x + size.x, corner.y}),
                                   at({corner.x + size.x, corner.y + size.y}),
                                   at({corner.x, corner.y + size.y})};
        cairo_move_to(drawing, corners[0].x, corners[0].y);
        for (int i = 1; i < 4; ++i)
          cairo_line_to(drawing, corners[i].x, corners[i].y);
        return cairo_close_path(drawing);
      }
      case CGPath::Element::kClose:
        return cairo_close_path(drawing);
    }
  });
}

}  // namespace kelvane
