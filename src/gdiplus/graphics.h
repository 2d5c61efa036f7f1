#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <tuple>
#include <unordered_set>
#include <vector>

#include "gdi/canvas.h"
#include "gdi/shortfall.h"
#include "gdi/steps.h"
#include "gdiplus/graphics_state.h"
#include "gdiplus/labelled_states.h"
#include "platform/quartz/cg_image.h"
#include "platform/quartz/cg_path.h"
#include "platform/quartz/cg_pattern.h"

namespace kelvane {
class FontBook;
}

namespace kelvane::gdiplus {

/// An image by its bytes and how they are taken: where, how many, width, stride, smoothing.
using ImageKey = std::tuple<const unsigned char*, std::size_t, std::size_t, std::size_t, bool>;

/// What came of an image.
struct KnownImage {
  CFOwned<const CGImage> image;  // null when there is none
  Shortfall lack;                // why
};

/// A hatch by its style and its two colours.
using HatchKey = std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>;

/// What a picture of EMF+ is played on. The functions of gdiplus/ are those of GDI+ by their names.
struct Graphics {
  /// @param target  borrowed; without one nothing is drawn. @param dotsPerInch  of the device.
  Graphics(Canvas* target, PointD dotsPerInch) : canvas(target), resolution(dotsPerInch) {}

  Canvas* canvas;             // null draws nothing
  FontBook* fonts = nullptr;  // null writes nothing
  bool outlinesText = false;  // glyphs become shapes
  PointD resolution;          // dots per inch

  GraphicsState state;
  LabelledStates saved;  // by Save and by containers

  CGPath scratch;  // of the call at hand; kept for its memory

  /// What has not come out as it should, for whoever reports it, and clears it.
  Shortfalls shortfalls;

  // What was made, see ImageFrom and HatchPaint; null for an image that cannot be.
  std::map<ImageKey, KnownImage> images;
  std::map<HatchKey, CGSharedPattern> hatches;

  std::unordered_set<std::size_t> patterns;  // hashes of the others, see UnlessTooMany

  /// What clipping may still take, as in a device context.
  std::shared_ptr<Steps> clipSteps = std::make_shared<Steps>(1U << 23);
};

/// A matrix of a file in the numbers that geometry is computed in.
TransformD Exactly(const XForm& matrix);

/// Device units in a unit along both axes, without page scale and containers.
PointD PixelsIn(const Graphics& graphics, EmfPlusUnit unit);

/// From lengths of the page in some unit to device units, containers included. World units count
/// as pixels of the page.
TransformD UnitToDevice(const Graphics& graphics, EmfPlusUnit unit);

/// From page units to device units, containers included.
TransformD PageToDevice(const Graphics& graphics);

/// From world units to device units. Where pixels have their middles, which differs by the pixel
/// offset, is less than what can be seen on a page: a coordinate lies where it is, as in GDI.
TransformD WorldToDevice(const Graphics& graphics);

/// Cuts the page to the clip there is. @return false when nothing can be seen.
bool BringClip(Graphics& graphics);

}  // namespace kelvane::gdiplus
