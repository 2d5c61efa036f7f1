#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "gdi/geometry.h"
#include "metafile/dib.h"
#include "metafile/gdi_types.h"

namespace kelvane {

/// Which pixels of a part are seen: a byte each, 0 or 1, rows top first. Null for all of them.
using ShownPixels = std::shared_ptr<const std::vector<std::uint8_t>>;

/// A part of a bitmap, which is not empty.
struct DibPart {
  Dib dib;
  PixelRectangle rectangle;
};

/// A part of a bitmap on its way onto the page.
struct Blit {
  Dib dib;
  PixelRectangle part;  // not empty
  TransformD toDevice;  // pixels of the bitmap to device units

  /// What shows of a part that lies askew in its bitmap, or begins within a pixel: a
  /// quadrilateral, device units.
  std::optional<std::array<PointD, 4>> cut{};

  ShownPixels shown{};
  bool isSmooth = false;  // pixels run into each other where it is enlarged
};

/// @param unit  maps the unit square, whose y grows downwards.
/// @return where its corners come to lie, from the upper left one on clockwise.
std::array<PointD, 4> CornersOf(const TransformD& unit);

/// @return what maps the unit square, whose y grows downwards, onto the part on the device.
TransformD UnitToDevice(const Blit& blit);

/// @param source        pixels; its left and top edge are the destination's, wherever they lie, so
///                      that edges in the other order mirror. What is not in the bitmap is cut off,
///                      and the destination with it.
/// @param toPixels      of the source rectangle, which may be turned.
/// @param unitToDevice  the destination.
/// @return nullopt when there is nothing to be seen.
std::optional<Blit> PlaceBlit(Dib dib, const RectangleD& source, const TransformD& toPixels,
                              const TransformD& unitToDevice);

}  // namespace kelvane
