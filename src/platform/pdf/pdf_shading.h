#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {

/// @param shading  page space; one that shows something.
/// @return the shading as an object of the document, the same one for an equal shading (ISO
///         32000-1, 8.7.4.5). Throws as the writer does.
QPDFObjectHandle AddShading(PdfWriter& writer, const CGShading& shading);

}  // namespace kelvane
