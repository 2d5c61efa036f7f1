#include "players/page_placement.h"

#include <algorithm>
#include <cmath>

namespace kelvane {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMillimetersPerInch = 25.4;
constexpr double kFrameUnitsPerInch = 2540;
constexpr double kUsualDotsPerInch = 96;

// No producer leaves margins of such a kind; what looks so is a frame in other units.
constexpr double kMostTimesTheBounds = 50;

struct Scale {
  double x;
  double y;
};

double PointsPerUnit(double pixels, double millimeters) {
  const double points = kPointsPerInch / kMillimetersPerInch * millimeters / pixels;
  return pixels > 0 && millimeters > 0 && std::isfinite(points)
             ? points
             : kPointsPerInch / kUsualDotsPerInch;
}

Scale PointsPerUnit(const PictureGeometry& picture) {
  return {PointsPerUnit(picture.devicePixelsWide, picture.deviceMillimetersWide),
          PointsPerUnit(picture.devicePixelsHigh, picture.deviceMillimetersHigh)};
}

bool HasArea(const StoredRectangle& area) {
  return area.left < area.right && area.top < area.bottom;
}

StoredRectangle Ordered(const StoredRectangle& area) {
  return {std::min(area.left, area.right), std::min(area.top, area.bottom),
          std::max(area.left, area.right), std::max(area.top, area.bottom)};
}

/// The bounds as an area: their last row and column belong to them.
StoredRectangle AreaOfBounds(const StoredRectangle& bounds) {
  return {bounds.left, bounds.top, bounds.right + 1, bounds.bottom + 1};
}

/// The frame in device units.
StoredRectangle AreaOfFrame(const PictureGeometry& picture) {
  constexpr double kPointsPerFrameUnit = kPointsPerInch / kFrameUnitsPerInch;
  const Scale scale = PointsPerUnit(picture);
  const StoredRectangle& frame = picture.frame;
  const double x = kPointsPerFrameUnit / scale.x;
  const double y = kPointsPerFrameUnit / scale.y;
  return {frame.left * x, frame.top * y, frame.right * x, frame.bottom * y};
}

bool Meet(const StoredRectangle& a, const StoredRectangle& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool AreUnlike(double length, double other) {
  return length > other * kMostTimesTheBounds || other > length * kMostTimesTheBounds;
}

PageTrouble TroubleWith(const StoredRectangle& frame, const StoredRectangle& bounds) {
  if (!HasArea(frame)) return PageTrouble::kFrameEmpty;
  if (!HasArea(bounds)) return PageTrouble::kNone;  // nothing to hold against it
  const bool isAbsurd = !Meet(frame, bounds) ||
                        AreUnlike(frame.right - frame.left, bounds.right - bounds.left) ||
                        AreUnlike(frame.bottom - frame.top, bounds.bottom - bounds.top);
  return isAbsurd ? PageTrouble::kFrameAbsurd : PageTrouble::kNone;
}

Scale Enlargement(double width, double height, const PageSizeWish& wish) {
  if (wish.width && wish.height) return {*wish.width / width, *wish.height / height};
  if (wish.width) return {*wish.width / width, *wish.width / width};
  if (wish.height) return {*wish.height / height, *wish.height / height};
  return {wish.scale, wish.scale};
}

/// @param scale  points a device unit, before the wish.
std::optional<PagePlacement> Place(const StoredRectangle& area, Scale scale,
                                   const PageSizeWish& wish) {
  if (!HasArea(area)) return std::nullopt;
  const Scale larger =
      Enlargement((area.right - area.left) * scale.x, (area.bottom - area.top) * scale.y, wish);
  const double x = scale.x * larger.x;
  const double y = scale.y * larger.y;
  PagePlacement placement;
  placement.size = {static_cast<CGFloat>((area.right - area.left) * x),
                    static_cast<CGFloat>((area.bottom - area.top) * y)};
  placement.deviceToPage = {static_cast<CGFloat>(x),
                            0,
                            0,
                            static_cast<CGFloat>(-y),
                            static_cast<CGFloat>(-area.left * x),
                            static_cast<CGFloat>(area.bottom * y)};
  const bool isUsable = placement.size.width > 0 && placement.size.height > 0 &&
                        std::isfinite(placement.size.width) &&
                        std::isfinite(placement.size.height) && IsFinite(placement.deviceToPage);
  if (!isUsable) return std::nullopt;
  return placement;
}

}  // namespace

RectangleD AreaOf(const PagePlacement& page) {
  const CGRect area =
      CGRectApplyAffineTransform({{0, 0}, page.size}, CGAffineTransformInvert(page.deviceToPage));
  return {area.origin.x, area.origin.y, area.origin.x + area.size.width,
          area.origin.y + area.size.height};
}

CGSize PointsPerDeviceUnit(const PictureGeometry& picture) {
  const Scale scale = PointsPerUnit(picture);
  return {static_cast<CGFloat>(scale.x), static_cast<CGFloat>(scale.y)};
}

std::optional<PagePlacement> PlaceOnPage(const PictureGeometry& picture, PageChoice choice,
                                         const PageSizeWish& wish) {
  if (choice == PageChoice::kBounds) {
    constexpr Scale kPointAUnit = {1, 1};
    return Place(Ordered(picture.bounds), kPointAUnit, wish);
  }
  const StoredRectangle frame = AreaOfFrame(picture);
  const StoredRectangle bounds = AreaOfBounds(picture.bounds);
  const PageTrouble trouble = TroubleWith(frame, bounds);
  auto placement = PlaceAreaOnPage(picture, trouble == PageTrouble::kNone ? frame : bounds, wish);
  if (placement) placement->trouble = trouble;
  return placement;
}

std::optional<PagePlacement> PlaceAreaOnPage(const PictureGeometry& picture,
                                             const StoredRectangle& area,
                                             const PageSizeWish& wish) {
  return Place(area, PointsPerUnit(picture), wish);
}

}  // namespace kelvane
