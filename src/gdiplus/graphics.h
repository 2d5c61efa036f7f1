#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <tuple>
#include <vector>

#include "gdi/canvas.h"
#include "gdi/shortfall.h"
#include "gdi/steps.h"
#include "gdiplus/graphics_state.h"
#include "platform/quartz/cg_image.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {
class FontBook;
}

namespace kelvane::gdiplus {

/// An image by its bytes and how they are taken: where, how many, width, stride, smoothing.
using ImageKey = std::tuple<const unsigned char*, std::size_t, std::size_t, std::size_t, bool>;

/// What a picture of EMF+ is played on. The functions of gdiplus/ are those of GDI+ by their names.
struct Graphics {
  /// @param target  borrowed; without one nothing is drawn. @param dotsPerInch  of the device.
  Graphics(Canvas* target, PointD dotsPerInch) : canvas(target), resolution(dotsPerInch) {}

  struct Saved {
    std::uint32_t label;  // that the file chose; may be there more than once
    GraphicsState state;
  };

  Canvas* canvas;             // null draws nothing
  FontBook* fonts = nullptr;  // null writes nothing
  bool outlinesText = false;  // glyphs become shapes
  PointD resolution;          // dots per inch

  GraphicsState state;
  std::vector<Saved> saved;  // by Save and by containers, outermost first

  CGPath scratch;  // of the call at hand; kept for its memory

  /// What has not come out as it should, for whoever reports it, and clears it.
  Shortfalls shortfalls;

  std::map<ImageKey, CFOwned<const CGImage>> images;  // that were made, see ImageFrom

  /// What clipping may still take, as in a device context.
  Steps clipSteps{1U << 23};
};

/// From page units to device units, containers included.
TransformD PageToDevice(const Graphics& graphics);

/// From world units to device units.
TransformD WorldToDevice(const Graphics& graphics);

/// Cuts the page to the clip there is. @return false when nothing can be seen.
bool BringClip(Graphics& graphics);

}  // namespace kelvane::gdiplus
