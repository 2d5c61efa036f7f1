#include "gdi/mapping.h"

#include <algorithm>
#include <cmath>

namespace kelvane {
namespace {

constexpr double kMillimetersPerInch = 25.4;

TransformD Exactly(const XForm& t) {
  return {t.eM11, t.eM12, t.eM21, t.eM22, t.eDx, t.eDy};
}

/// Units per millimetre of the modes whose unit is a length.
double UnitsPerMillimeter(MapMode mode) {
  switch (mode) {
    case MM_LOMETRIC:
      return 10;
    case MM_HIMETRIC:
      return 100;
    case MM_LOENGLISH:
      return 100 / kMillimetersPerInch;
    case MM_HIENGLISH:
      return 1000 / kMillimetersPerInch;
    case MM_TWIPS:
      return 1440 / kMillimetersPerInch;
    default:
      return 10;  // MM_ISOTROPIC starts as MM_LOMETRIC
  }
}

/// @return the extent in whole units, at least one of them.
double Shrunk(double extent, double factor) {
  const double whole = std::trunc(extent * factor);
  return whole != 0 ? whole : std::copysign(1, extent);
}

/// Numbers go around as they do on Windows.
PointL Moved(PointL point, PointL offset) {
  const auto sum = [](std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
  };
  return {sum(point.x, offset.x), sum(point.y, offset.y)};
}

}  // namespace

Mapping::Mapping(const ReferenceDevice& device) : device_(device) {
  const auto [cx, cy] = device_.pixels;
  const auto [mmx, mmy] = device_.millimeters;
  if (cx <= 0 || cy <= 0 || mmx <= 0 || mmy <= 0) {
    device_.pixels = {960, 960};
    device_.millimeters = {254, 254};
  }
}

bool Mapping::SetMode(MapMode mode) {
  if (mode < MM_TEXT || mode > MM_ANISOTROPIC) return false;
  if (mode == mode_) return true;  // what was set for it stays
  mode_ = mode;
  if (mode == MM_TEXT) {
    window_ = {};
    viewport_ = {};
  } else if (mode != MM_ANISOTROPIC) {
    window_ = MetricWindow();
    viewport_ = {static_cast<double>(device_.pixels.cx), -static_cast<double>(device_.pixels.cy)};
  }
  Update();
  return true;
}

void Mapping::SetWindowOrigin(PointL origin) {
  windowOrigin_ = origin;
  Update();
}

void Mapping::SetViewportOrigin(PointL origin) {
  viewportOrigin_ = origin;
  Update();
}

void Mapping::OffsetWindowOrigin(PointL offset) {
  SetWindowOrigin(Moved(windowOrigin_, offset));
}

void Mapping::OffsetViewportOrigin(PointL offset) {
  SetViewportOrigin(Moved(viewportOrigin_, offset));
}

bool Mapping::SetWindowExtent(SizeL extent) {
  return SetExtent(window_, extent.cx, extent.cy);
}

bool Mapping::SetViewportExtent(SizeL extent) {
  return SetExtent(viewport_, extent.cx, extent.cy);
}

bool Mapping::ScaleWindowExtent(std::int32_t xNum, std::int32_t xDenom, std::int32_t yNum,
                                std::int32_t yDenom) {
  if (xDenom == 0 || yDenom == 0) return false;
  return SetExtent(window_, std::trunc(window_.x * xNum / xDenom),
                   std::trunc(window_.y * yNum / yDenom));
}

bool Mapping::ScaleViewportExtent(std::int32_t xNum, std::int32_t xDenom, std::int32_t yNum,
                                  std::int32_t yDenom) {
  if (xDenom == 0 || yDenom == 0) return false;
  return SetExtent(viewport_, std::trunc(viewport_.x * xNum / xDenom),
                   std::trunc(viewport_.y * yNum / yDenom));
}

bool Mapping::SetWorld(const XForm& transform) {
  return TakeWorld(Exactly(transform));
}

bool Mapping::ModifyWorld(const XForm& transform, WorldTransformMode mode) {
  switch (mode) {
    case MWT_IDENTITY:
      return TakeWorld(TransformD());
    case MWT_LEFTMULTIPLY:
      return TakeWorld(Exactly(transform).Then(world_));
    case MWT_RIGHTMULTIPLY:
      return TakeWorld(world_.Then(Exactly(transform)));
    case MWT_SET:
      return TakeWorld(Exactly(transform));
  }
  return false;
}

void Mapping::SetLayout(Layout layout) {
  layout_ = layout;
  Update();
}

double Mapping::HorizontalScale() const {
  return std::hypot(toDevice_.m11, toDevice_.m12);
}

bool Mapping::TakesExtents() const {
  return mode_ == MM_ISOTROPIC || mode_ == MM_ANISOTROPIC;
}

Mapping::Extent Mapping::MetricWindow() const {
  const double units = UnitsPerMillimeter(mode_);
  return {device_.millimeters.cx * units, device_.millimeters.cy * units};
}

bool Mapping::SetExtent(Extent& extent, double x, double y) {
  if (!TakesExtents()) return true;
  constexpr double kMost = 2147483648.0;
  if (x == 0 || y == 0 || std::abs(x) > kMost || std::abs(y) > kMost) return false;
  extent = {x, y};
  if (mode_ == MM_ISOTROPIC) MakeIsotropic();
  Update();
  return true;
}

/// Takes from the viewport where a unit is longer than in the other direction. What is taken stays
/// taken, even when the window changes back.
void Mapping::MakeIsotropic() {
  const double x = std::abs(viewport_.x / window_.x) * device_.millimeters.cx / device_.pixels.cx;
  const double y = std::abs(viewport_.y / window_.y) * device_.millimeters.cy / device_.pixels.cy;
  if (x > y) viewport_.x = Shrunk(viewport_.x, y / x);
  if (y > x) viewport_.y = Shrunk(viewport_.y, x / y);
}

bool Mapping::TakeWorld(const TransformD& transform) {
  if (!transform.IsFinite()) return false;
  world_ = transform;
  Update();
  return true;
}

void Mapping::Update() {
  const double scaleX = viewport_.x / window_.x;
  const double scaleY = viewport_.y / window_.y;
  TransformD page = {scaleX,
                     0,
                     0,
                     scaleY,
                     viewportOrigin_.x - windowOrigin_.x * scaleX,
                     viewportOrigin_.y - windowOrigin_.y * scaleY};
  if ((layout_ & LAYOUT_RTL) != 0) {
    page = page.Then({-1, 0, 0, 1, device_.pageLeft + device_.pageRight, 0});
  }
  toDevice_ = world_.Then(page);
}

}  // namespace kelvane
