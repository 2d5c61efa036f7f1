#include "players/wmf/wmf_viewport.h"

#include <cmath>

#include "gdi/coordinates.h"

namespace kelvane {

void WmfViewport::Begin(DeviceContext& device) const {
  SetMapMode(device, MM_ANISOTROPIC);
  SetViewportExtEx(device, page_);
  SetWindowExtEx(device, page_);
}

PointL WmfViewport::OnPage(double x, double y) const {
  return {static_cast<std::int32_t>(std::lround(x * xScale_)),
          static_cast<std::int32_t>(std::lround(y * yScale_))};
}

void WmfViewport::SetExtent(DeviceContext& device, SizeL extent) {
  if (extent.cx == 0 || extent.cy == 0) return;
  if (!isScaled_) {
    xScale_ = std::abs(static_cast<double>(page_.cx) / extent.cx);
    yScale_ = std::abs(static_cast<double>(page_.cy) / extent.cy);
    isScaled_ = true;
  }
  const PointL onPage = OnPage(extent.cx, extent.cy);
  SetViewportExtEx(device, {onPage.x, onPage.y});
}

void WmfViewport::SetOrigin(DeviceContext& device, PointL origin) const {
  SetViewportOrgEx(device, OnPage(origin.x, origin.y));
}

void WmfViewport::OffsetOrigin(DeviceContext& device, PointL offset) const {
  OffsetViewportOrgEx(device, OnPage(offset.x, offset.y));
}

}  // namespace kelvane
