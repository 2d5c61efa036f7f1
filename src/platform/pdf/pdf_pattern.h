#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_image.h"
#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_pattern.h"

namespace kelvane {

/// @param images  of the document; gains the pattern's.
/// @return the pattern as one of the document, a coloured tiling pattern (ISO 32000-1, 8.7.3) or a
///         shading pattern (8.7.4), without the alpha of its shading; the same one for an equal
///         pattern. Throws as the writer does.
QPDFObjectHandle AddPattern(PdfWriter& writer, const CGPattern& pattern, PdfImages& images);

}  // namespace kelvane
