#pragma once

#include <map>

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_pattern.h"

namespace kelvane {

/// The images of patterns that were added, which live as long.
using PdfPatternImages = std::map<const CGImage*, QPDFObjectHandle>;

/// @param images  gains the pattern's.
/// @return the pattern as a tiling pattern of the document, a coloured one (ISO 32000-1, 8.7.3).
///         Throws as the writer does.
QPDFObjectHandle AddPattern(PdfWriter& writer, const CGPattern& pattern, PdfPatternImages& images);

}  // namespace kelvane
