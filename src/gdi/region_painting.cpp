#include "gdi/region_painting.h"

#include <cmath>
#include <optional>
#include <vector>

#include "gdi/exactly.h"
#include "gdi/painting.h"
#include "gdi/region.h"

namespace kelvane {
namespace {

constexpr std::uint64_t kStepsOfACall = 4096;
constexpr std::uint64_t kStepsOfARectangle = 64;
constexpr RgbColor kWhite = {255, 255, 255};

std::optional<Region> RegionOf(ArrayView<RectangleL> rectangles, Steps& steps) {
  std::vector<RectangleD> exact;
  exact.reserve(rectangles.size());
  for (const RectangleL r : rectangles)
    exact.push_back(Exactly(r));
  return Region::Union(exact, steps);
}

/// The bands along the sides of a region: the part within reach of what is outside of it, to the
/// side, above or below. Nothing reaches around a corner that points inwards.
std::optional<Region> EdgeOf(const Region& region, double width, double height, Steps& steps) {
  const auto outside = Combine(Region::Everything(), region, RGN_DIFF, steps);
  if (!outside) return std::nullopt;
  std::vector<RectangleD> grown;
  outside->ForEachRectangle([&](const RectangleD& r) {
    grown.push_back({r.left - width, r.top, r.right + width, r.bottom});
    grown.push_back({r.left, r.top - height, r.right, r.bottom + height});
  });
  const auto reached = Region::Union(grown, steps);
  if (!reached) return std::nullopt;
  return Combine(region, *reached, RGN_AND, steps);
}

/// The rectangles of a region as the mapping leaves them.
void AddMapped(const Region& region, const TransformD& toDevice, CGPath& path) {
  const auto mapped = [&](double x, double y) {
    const PointD point = toDevice.Map({x, y});
    return CGPoint{static_cast<CGFloat>(point.x), static_cast<CGFloat>(point.y)};
  };
  region.ForEachRectangle([&](const RectangleD& r) {
    const CGPoint corner = mapped(r.left, r.top);
    const CGPoint opposite = mapped(r.right, r.bottom);
    if (toDevice.m12 == 0 && toDevice.m21 == 0) {
      return path.AddRectangle(corner, {opposite.x - corner.x, opposite.y - corner.y});
    }
    path.MoveTo(corner);
    path.LineTo(mapped(r.right, r.top));
    path.LineTo(opposite);
    path.LineTo(mapped(r.left, r.bottom));
    path.Close();
  });
}

Steps StepsFor(ArrayView<RectangleL> region) {
  return Steps(kStepsOfACall + kStepsOfARectangle * region.size());
}

bool TooComplex(DeviceContext& device) {
  device.shortfalls.Add(Shortfall::kRegionTooComplex);
  return false;
}

/// Makes a path of a region and hands it to `fill`.
template <class Fill>
bool FillRegion(DeviceContext& device, const std::optional<Region>& region, Fill fill) {
  if (!region) return TooComplex(device);
  AddMapped(*region, device.state.mapping.ToDevice(), device.scratch);
  fill(device.scratch);
  return true;
}

}  // namespace

bool FillRgn(DeviceContext& device, ArrayView<RectangleL> region, std::uint32_t brush) {
  const auto found = device.objects.Find<const Brush>(brush);
  if (found == nullptr) return false;
  Steps steps = StepsFor(region);
  return FillRegion(device, RegionOf(region, steps), [&](CGPath& path) {
    FillWith(device, path, WINDING, *found, device.state.rop2);
  });
}

bool FrameRgn(DeviceContext& device, ArrayView<RectangleL> region, std::uint32_t brush,
              SizeL frame) {
  const auto found = device.objects.Find<const Brush>(brush);
  if (found == nullptr) return false;
  Steps steps = StepsFor(region);
  std::optional<Region> edge = RegionOf(region, steps);
  if (edge) {
    edge = EdgeOf(*edge, std::abs(static_cast<double>(frame.cx)),
                  std::abs(static_cast<double>(frame.cy)), steps);
  }
  return FillRegion(device, edge, [&](CGPath& path) {
    FillWith(device, path, WINDING, *found, device.state.rop2);
  });
}

bool PaintRgn(DeviceContext& device, ArrayView<RectangleL> region) {
  Steps steps = StepsFor(region);
  return FillRegion(device, RegionOf(region, steps), [&](CGPath& path) {
    FillWith(device, path, WINDING, *device.state.brush, device.state.rop2);
  });
}

bool InvertRgn(DeviceContext& device, ArrayView<RectangleL> region) {
  Steps steps = StepsFor(region);
  return FillRegion(device, RegionOf(region, steps),
                    [&](CGPath& path) { FillWith(device, path, WINDING, kWhite, R2_XORPEN); });
}

}  // namespace kelvane
