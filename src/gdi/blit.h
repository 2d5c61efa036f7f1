#pragma once

#include <cstdint>
#include <optional>

#include "gdi/clip_state.h"
#include "gdi/geometry.h"
#include "metafile/dib.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_image.h"

namespace kelvane {

/// A part of a bitmap on its way onto the page.
struct Blit {
  Dib dib;
  PixelRectangle part;   // not empty
  TransformD toDevice;   // pixels of the bitmap to device units
  bool isCutOut = false;  // the part lies askew in the bitmap, and only `destination` of it shows
  RectangleD source;      // pixels: the part before it was brought to whole ones
  bool isSmooth = false;  // enlarged, pixels run into each other

  /// What is seen of it; null shows all.
  CFOwned<const CGImage> mask{};
};

}  // namespace kelvane
