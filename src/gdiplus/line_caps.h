#pragma once

#include "gdi/geometry.h"
#include "gdiplus/outline_builder.h"
#include "metafile/emfplus/emfplus_pen.h"

namespace kelvane::gdiplus {

/// What stands at an end of a line.
struct LineCap {
  EmfPlusLineCap kind = EmfPlusLineCap::kFlat;
  const EmfPlusCustomLineCap* custom = nullptr;  // borrowed; of kCustom only, which may lack it
};

LineCap StartCapOf(const EmfPlusPen& pen);
LineCap EndCapOf(const EmfPlusPen& pen);

/// Where a line ends.
struct LineEnd {
  PointD at;
  PointD outward;  // of length 1
};

/// @return how far before its end a line of some width stops for the sake of its cap.
double CutBackOf(const LineCap& cap, double width);

/// Adds all of a cap that stands out from a line with flat ends.
/// @param end     where the line would end without its cap.
void AddCap(OutlineBuilder& outline, const LineCap& cap, const LineEnd& end, double width);

}  // namespace kelvane::gdiplus
