#pragma once

#include <cstdint>

#include "gdi/device_context.h"

namespace kelvane {

inline bool SetMapMode(DeviceContext& device, MapMode mode) {
  return device.state.mapping.SetMode(mode);
}

inline void SetWindowOrgEx(DeviceContext& device, PointL origin) {
  device.state.mapping.SetWindowOrigin(origin);
}

inline void SetViewportOrgEx(DeviceContext& device, PointL origin) {
  device.state.mapping.SetViewportOrigin(origin);
}

inline void OffsetWindowOrgEx(DeviceContext& device, PointL offset) {
  device.state.mapping.OffsetWindowOrigin(offset);
}

inline void OffsetViewportOrgEx(DeviceContext& device, PointL offset) {
  device.state.mapping.OffsetViewportOrigin(offset);
}

inline bool SetWindowExtEx(DeviceContext& device, SizeL extent) {
  return device.state.mapping.SetWindowExtent(extent);
}

inline bool SetViewportExtEx(DeviceContext& device, SizeL extent) {
  return device.state.mapping.SetViewportExtent(extent);
}

inline bool ScaleWindowExtEx(DeviceContext& device, std::int32_t xNum, std::int32_t xDenom,
                             std::int32_t yNum, std::int32_t yDenom) {
  return device.state.mapping.ScaleWindowExtent(xNum, xDenom, yNum, yDenom);
}

inline bool ScaleViewportExtEx(DeviceContext& device, std::int32_t xNum, std::int32_t xDenom,
                               std::int32_t yNum, std::int32_t yDenom) {
  return device.state.mapping.ScaleViewportExtent(xNum, xDenom, yNum, yDenom);
}

inline bool SetWorldTransform(DeviceContext& device, const XForm& transform) {
  return device.state.mapping.SetWorld(transform);
}

inline bool ModifyWorldTransform(DeviceContext& device, const XForm& transform,
                                 WorldTransformMode mode) {
  return device.state.mapping.ModifyWorld(transform, mode);
}

inline void SetLayout(DeviceContext& device, Layout layout) {
  device.state.mapping.SetLayout(layout);
}

/// Logical to device units, not rounded.
inline PointD LPtoDP(const DeviceContext& device, PointD point) {
  return device.state.mapping.ToDevice().Map(point);
}

/// Device to logical units; nullopt where many logical points share a device point.
inline std::optional<PointD> DPtoLP(const DeviceContext& device, PointD point) {
  const auto toLogical = device.state.mapping.ToLogical();
  if (!toLogical) return std::nullopt;
  return toLogical->Map(point);
}

}  // namespace kelvane
