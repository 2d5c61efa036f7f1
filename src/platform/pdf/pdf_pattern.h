#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_image.h"
#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_pattern.h"

namespace kelvane {

/// @param images  of the document; gains the pattern's.
/// @return the pattern as a tiling pattern of the document, a coloured one (ISO 32000-1, 8.7.3).
///         Throws as the writer does.
QPDFObjectHandle AddPattern(PdfWriter& writer, const CGPattern& pattern, PdfImages& images);

}  // namespace kelvane
