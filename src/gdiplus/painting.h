#pragma once

#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_brush.h"
#include "metafile/emfplus/emfplus_pen.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_path.h"

namespace kelvane::gdiplus {

// Paths onto the page, in the state there is. They are in device units and empty afterwards, with
// their memory for the next; those with numbers that are not finite are left out.

void PaintFill(Graphics& graphics, CGPath& path, PolyFillMode fillMode, const EmfPlusBrush& brush);

/// With caps, dashes, bands and all.
void PaintStroke(Graphics& graphics, CGPath& path, const EmfPlusPen& pen);

}  // namespace kelvane::gdiplus
