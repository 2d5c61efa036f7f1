#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>

#include "gdi/device_context.h"
#include "platform/quartz/cg_blend_mode.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_pattern.h"

namespace kelvane {

/// A colour or a pattern, and how it comes onto the page.
struct Mark {
  CGColor color;
  CGSharedPattern pattern;
  CGBlendMode mode = kCGBlendModeNormal;
  CGBitOperation operation = {};  // in place of the mode, where the surface has it
};

/// The marks that paint makes under a raster operation, one on the other.
struct Marks {
  std::array<Mark, 2> marks;
  std::size_t count = 0;

  [[nodiscard]] std::span<const Mark> All() const { return {marks.data(), count}; }
  [[nodiscard]] bool IsOneOpaque() const {
    return count == 1 && marks[0].mode == kCGBlendModeNormal && !marks[0].operation;
  }
};

/// @param operation  what comes out of paint and what lies below; where that is only near, or a
///                   bitmap cannot be read, the device is told.
/// @param ground     what lies below all of the marks, if that is known and one colour.
Marks MarksOf(DeviceContext& device, const BrushPaint& paint, BinaryRasterOperation operation,
              std::optional<RgbColor> ground);
Marks MarksOf(DeviceContext& device, RgbColor color, BinaryRasterOperation operation,
              std::optional<RgbColor> ground);

void SetFill(CGContext& surface, const Mark& mark);
void SetStroke(CGContext& surface, const Mark& mark);

}  // namespace kelvane
