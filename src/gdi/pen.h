#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "gdi/brush.h"
#include "metafile/array_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_objects.h"

namespace kelvane {

/// A pen as it was created. What it draws depends on the mapping at the time.
struct Pen {
  PenStyle style = PS_SOLID;  // one of PS_SOLID to PS_ALTERNATE, without flags
  bool isExtended = false;    // by ExtCreatePen: every width takes dashes, and gaps stay unpainted
  bool isGeometric = false;   // of the extended: as wide as it says, not a pixel
  PenStyle endCap = PS_ENDCAP_ROUND;
  PenStyle join = PS_JOIN_ROUND;
  double width = 0;                        // logical units, not negative; 0 is a device pixel
  Brush brush;                             // what lines are made of
  std::vector<std::uint32_t> userEntries;  // of PS_USERSTYLE: dash, gap, …
};

/// A pen of CreatePen. A style that has none of its meanings draws solid.
Pen CreatePenIndirect(const LogPen& pen);

/// @param entries  the lengths of dashes and gaps of PS_USERSTYLE; Windows takes up to 16.
/// @param pattern  the bitmap of a pen of patterns.
/// @return nullopt for a brush style or hatch that is none.
std::optional<Pen> ExtCreatePen(const LogPenEx& pen, ArrayView<std::uint32_t> entries,
                                const DibBytes& pattern);

/// How a pen's lines are drawn. All lengths are logical units but where it says otherwise.
struct PenStroke {
  bool isNull = false;  // no line at all
  double width = 0;     // 0 is a device pixel, whatever the scale
  PenStyle endCap = PS_ENDCAP_ROUND;
  PenStyle join = PS_JOIN_ROUND;
  std::vector<double> dashes{};   // dash, gap, …, an even number; none for a solid line
  bool dashesAreOnPage = false;   // in pixels of 1/96 inch, whatever the scale
  bool paintsGaps = false;        // in the background's colour
  bool staysInsideFrame = false;  // outlines of boxes and ellipses move inwards by half the width
};

/// @param scale  device units in a horizontal logical unit. @param mode  that of the background.
PenStroke ResolvePen(const Pen& pen, double scale, BackgroundMode mode);

}  // namespace kelvane
