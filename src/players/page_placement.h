#pragma once

#include <cstdint>
#include <optional>

#include "gdi/geometry.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// A rectangle as a metafile's header stores it.
struct StoredRectangle {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

/// What a header says about where its picture lies ([MS-EMF] 2.2.9).
struct PictureGeometry {
  StoredRectangle bounds;  // what is drawn, device units, right and bottom inclusive
  StoredRectangle frame;   // what is shown, hundredths of a millimetre
  double devicePixelsWide = 0;
  double devicePixelsHigh = 0;
  double deviceMillimetersWide = 0;
  double deviceMillimetersHigh = 0;
};

/// What becomes the page.
enum class PageChoice : std::uint8_t {
  kFrame,   // the frame, at its true size
  kBounds,  // the bounds, a point a device unit, without the last row and column
};

/// Why the page is not the one that was asked for.
enum class PageTrouble : std::uint8_t {
  kNone,
  kFrameEmpty,
  kFrameAbsurd,  // so far from the bounds, or so unlike them in size, that it cannot be meant
};

/// How large the page is to be, whatever the picture says. All in points; absent follows the
/// picture, and a lone width or height keeps its shape.
struct PageSizeWish {
  std::optional<double> width = std::nullopt;
  std::optional<double> height = std::nullopt;
  double scale = 1;  // of a picture that neither is given for
};

/// Where device units lie on a page whose lower left corner is (0, 0), y upwards.
struct PagePlacement {
  CGSize size;                     // points, above 0
  CGAffineTransform deviceToPage;  // device units, y downwards, to points
  PageTrouble trouble = PageTrouble::kNone;
};

/// @return what of the device a page shows, device units.
RectangleD AreaOf(const PagePlacement& page);

/// @return points a device unit. A device without a size counts as one of 96 dots an inch.
CGSize PointsPerDeviceUnit(const PictureGeometry& picture);

/// Puts a picture onto a page. A frame that cannot be meant gives way to the bounds.
/// @return nothing when the bounds are empty, too: only what is drawn can tell then.
std::optional<PagePlacement> PlaceOnPage(const PictureGeometry& picture, PageChoice choice,
                                         const PageSizeWish& wish);

/// Puts an area of device units onto a page at its true size.
/// @return nothing for an area that is empty or not finite.
std::optional<PagePlacement> PlaceAreaOnPage(const PictureGeometry& picture,
                                             const StoredRectangle& area, const PageSizeWish& wish);

}  // namespace kelvane
