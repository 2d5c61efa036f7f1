#pragma once

#include <cstdint>

#include "gdi/palette.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// Marks that are made piece by piece and come onto the page as one: lines from point to point,
/// whose dashes run on and whose page is smaller so, and pixels of one colour.
///
/// They are drawn in the state in which they were made. So whoever plays calls DrawPendingMarks
/// before any function but MoveToEx, LineTo and SetPixelV.
struct PendingMarks {
  enum class Kind : std::uint8_t { kNone, kLines, kPixels };

  Kind kind = Kind::kNone;
  CGPath path;        // device units
  RgbColor color;     // of the pixels
  CGPoint nextPixel;  // right of the last one, which makes it longer
};

}  // namespace kelvane
