#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// A number as an object, with the digits that a single-precision value needs; more where a double
/// needs them, so long as these count for anything.
QPDFObjectHandle PdfNumber(double value);

/// A rectangle as an array of its left, lower, right and upper edge.
QPDFObjectHandle PdfBox(const CGRect& box);

}  // namespace kelvane
