#pragma once

#include "gdi/canvas.h"
#include "gdi/geometry.h"
#include "platform/quartz/cg_blend_mode.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_image.h"

namespace kelvane {

/// How an image comes onto what lies below it.
struct ImageBlending {
  CGBlendMode mode = kCGBlendModeNormal;
  CGFloat alpha = 1;
  CGBitOperation operation = {};  // in place of both, where the surface has it
};

/// Draws an image, or paints through a mask in the fill colour that is set.
/// @param unitToDevice  maps the unit square, whose y grows downwards, onto the image's place.
void DrawImage(Canvas& canvas, const CGImage& image, const TransformD& unitToDevice,
               const ImageBlending& blending);

}  // namespace kelvane
