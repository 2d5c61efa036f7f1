#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {

/// @param shading  page space; one that shows something.
/// @return the shading as an object of the document, the same one for an equal shading (ISO
///         32000-1, 8.7.4.5). Throws as the writer does.
QPDFObjectHandle AddShading(PdfWriter& writer, const CGShading& shading);

/// A mesh that is mixed with what lies below it. Readers subdivide its triangles, and mix the parts
/// with each other, unless a group keeps them together.
/// @param mesh  page space; one that shows something.
/// @return a form XObject, the same one for an equal mesh. Throws as the writer does.
QPDFObjectHandle AddMeshGroup(PdfWriter& writer, const CGTriangleMesh& mesh);

}  // namespace kelvane
