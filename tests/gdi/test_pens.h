#pragma once

#include <initializer_list>

#include "gdi/pen.h"
#include "gdi/stored_array.h"

namespace kelvane {

/// @param style  of dashes, caps and joins. @param entries  lengths of dashes and gaps.
inline Pen ExtendedPen(std::uint32_t style, std::uint32_t width, ColorRef color = {},
                       std::initializer_list<std::uint32_t> entries = {}) {
  const LogPenEx pen = {.style = static_cast<PenStyle>(style),
                        .width = width,
                        .brushStyle = BS_SOLID,
                        .color = color};
  return ExtCreatePen(pen, StoredNumbers(entries).View(), {}).value();
}

/// A pen as wide as it says, whatever its width.
inline Pen GeometricPen(std::uint32_t style, std::uint32_t width, ColorRef color = {},
                        std::initializer_list<std::uint32_t> entries = {}) {
  return ExtendedPen(PS_GEOMETRIC | style, width, color, entries);
}

/// A pen of CreatePen.
inline Pen OldPen(PenStyle style, std::int32_t width, ColorRef color = {}) {
  return CreatePenIndirect({style, {width, 0}, color});
}

}  // namespace kelvane
