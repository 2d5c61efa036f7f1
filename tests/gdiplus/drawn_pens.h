#pragma once

#include <string>
#include <utility>
#include <vector>

#include "gdiplus/drawing.h"
#include "gdiplus/traced_graphics.h"

namespace kelvane::gdiplus {

using Lines = std::vector<std::string>;

/// 96 dots an inch.
inline constexpr CGAffineTransform kScreen = {0.75F, 0, 0, 0.75F, 0, 0};

inline EmfPlusPen PenOf(float width) {
  EmfPlusPen pen;
  pen.width = width;
  pen.brush = Argb{0, 0, 255, 255};
  return pen;
}

inline EmfPlusPen PenWithCap(float width, EmfPlusCustomLineCap cap) {
  EmfPlusPen pen = PenOf(width);
  pen.endCap = EmfPlusLineCap::kCustom;
  pen.customEndCap = std::move(cap);
  return pen;
}

/// Draws a line to the right.
inline std::string Draw(TracedGraphics& graphics, const EmfPlusPen& pen, float length = 20) {
  DrawLines(graphics, pen, std::vector<PointF>{{0, 0}, {length, 0}}, false);
  return graphics.Take();
}

inline std::string Draw(const EmfPlusPen& pen, const CGAffineTransform& deviceToPage = kScreen) {
  TracedGraphics graphics(deviceToPage);
  return Draw(graphics, pen);
}

/// @return the marks of a line of 20 units, which are points.
inline std::string Marks(const EmfPlusPen& pen, float length = 20) {
  TracedGraphics graphics;
  return TracedDevice::MarksOf(Draw(graphics, pen, length));
}

}  // namespace kelvane::gdiplus
