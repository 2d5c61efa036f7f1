#pragma once

#include "gdi/device_context.h"

namespace kelvane {

// What later calls paint with. Values without a meaning change nothing.

inline void SetTextColor(DeviceContext& device, ColorRef color) {
  device.state.textColor = color;
}

inline void SetBkColor(DeviceContext& device, ColorRef color) {
  device.state.backgroundColor = color;
}

inline bool SetBkMode(DeviceContext& device, BackgroundMode mode) {
  if (mode != TRANSPARENT && mode != OPAQUE) return false;
  device.state.backgroundMode = mode;
  return true;
}

inline bool SetROP2(DeviceContext& device, BinaryRasterOperation operation) {
  if (operation < R2_BLACK || operation > R2_WHITE) return false;
  device.state.rop2 = operation;
  return true;
}

inline bool SetPolyFillMode(DeviceContext& device, PolyFillMode mode) {
  if (mode != ALTERNATE && mode != WINDING) return false;
  device.state.polyFillMode = mode;
  return true;
}

inline bool SetStretchBltMode(DeviceContext& device, StretchMode mode) {
  if (mode < STRETCH_ANDSCANS || mode > STRETCH_HALFTONE) return false;
  device.state.stretchMode = mode;
  return true;
}

inline bool SetArcDirection(DeviceContext& device, ArcDirection direction) {
  if (direction != AD_COUNTERCLOCKWISE && direction != AD_CLOCKWISE) return false;
  device.state.arcDirection = direction;
  return true;
}

inline void SetTextAlign(DeviceContext& device, TextAlign flags) {
  device.state.textAlign = flags;
}

/// @param limit  how many widths of the line a miter may reach; less than 1 means nothing.
inline bool SetMiterLimit(DeviceContext& device, float limit) {
  if (!(limit >= 1) || !std::isfinite(limit)) return false;
  device.state.miterLimit = limit;
  return true;
}

/// @param origin  device units, not moved by the origins of window and viewport.
inline void SetBrushOrgEx(DeviceContext& device, PointL origin) {
  device.state.brushOrigin = origin;
}

}  // namespace kelvane
