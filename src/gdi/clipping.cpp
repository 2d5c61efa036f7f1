#include "gdi/clipping.h"

#include <utility>
#include <vector>

#include "gdi/exactly.h"
namespace kelvane {
namespace {

// What calls bring along: a little for a few rectangles on a few, and in proportion to what they
// say for all else.
constexpr std::uint64_t kStepsOfACall = 256;
constexpr std::uint64_t kStepsOfARectangle = 16;

bool Join(DeviceContext& device, const Area& area, RegionMode mode) {
  device.clipSteps->Add(kStepsOfACall);
  const bool isJoined = device.state.clip.Join(area, mode, *device.clipSteps);
  const bool isMode = mode >= RGN_AND && mode <= RGN_COPY;
  if (!isJoined && isMode) device.shortfalls.Add(Shortfall::kClipTooComplex);
  return isJoined;
}

bool JoinRectangle(DeviceContext& device, const RectangleL& r, RegionMode mode) {
  const auto area = AreaOf(Exactly(r), device.state.mapping.ToDevice());
  return area && Join(device, *area, mode);
}

}  // namespace

bool IntersectClipRect(DeviceContext& device, const RectangleL& rectangle) {
  return JoinRectangle(device, rectangle, RGN_AND);
}

bool ExcludeClipRect(DeviceContext& device, const RectangleL& rectangle) {
  return JoinRectangle(device, rectangle, RGN_DIFF);
}

bool OffsetClipRgn(DeviceContext& device, PointL offset) {
  const TransformD& toDevice = device.state.mapping.ToDevice();
  const PointD moved =
      toDevice.MapVector({static_cast<double>(offset.x), static_cast<double>(offset.y)});
  if (!IsFinite(moved)) return false;
  device.clipSteps->Add(kStepsOfACall);
  const bool isMoved = device.state.clip.Offset(moved.x, moved.y, *device.clipSteps);
  if (!isMoved) device.shortfalls.Add(Shortfall::kClipTooComplex);
  return isMoved;
}

bool ExtSelectClipRgn(DeviceContext& device, std::optional<ArrayView<RectangleL>> rectangles,
                      RegionMode mode) {
  if (!rectangles) {
    if (mode != RGN_COPY) return false;
    device.state.clip.Drop();
    return true;
  }
  std::vector<RectangleD> exact;
  exact.reserve(rectangles->size());
  for (const RectangleL r : *rectangles)
    exact.push_back(Exactly(r));
  device.clipSteps->Add(kStepsOfARectangle * exact.size());
  return Join(device, AreaOf(exact), mode);
}

bool SelectClipPath(DeviceContext& device, RegionMode mode) {
  const auto path = std::exchange(device.state.path, nullptr);
  if (path == nullptr || !path->HasSegments() || !path->IsFinite()) return false;
  return Join(device, Outline{path, device.state.polyFillMode}, mode);
}

void SetMetaRgn(DeviceContext& device) {
  device.state.clip.MoveIntoMeta();
}

}  // namespace kelvane
