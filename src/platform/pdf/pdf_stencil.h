#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// What lets marks through where a stencil does, for paint that readers cannot be trusted to bring
/// through a stencil themselves: with patterns one of them goes astray from there on.
/// @param stencil  an image mask of the document.
/// @param matrix   maps the unit square, where the stencil lies, to page space.
/// @return a graphics state (ISO 32000-1, 11.6.5.3), to be set in page space; the same one for the
///         same stencil and place. Throws as the writer does.
QPDFObjectHandle AddStencilState(PdfWriter& writer, const QPDFObjectHandle& stencil,
                                 const CGAffineTransform& matrix);

}  // namespace kelvane
