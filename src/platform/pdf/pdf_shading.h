#pragma once

#include <cstdint>

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {

/// Which numbers of its colours a shading shows.
enum class PdfChannels : std::uint8_t {
  kColors,  // red, green, blue
  kAlpha    // as grey
};

/// @param shading  one that shows something.
/// @return the shading as an object of the document, the same one for an equal shading (ISO
///         32000-1, 8.7.4.5). Throws as the writer does.
QPDFObjectHandle AddShading(PdfWriter& writer, const CGShading& shading,
                            PdfChannels channels = PdfChannels::kColors);

/// A shading where it lies on a page.
struct PdfPlacedShading {
  const CGShading& shading;  // one that shows something
  CGAffineTransform matrix;  // to page space
  CGRect page;               // all that can be seen, page space
};

/// A shading that is mixed with what lies below it. Readers subdivide the triangles of a mesh, and
/// mix the parts with each other, unless a group keeps them together.
/// @return a form XObject in page space, the same one for an equal shading in the same place.
///         Throws as the writer does.
QPDFObjectHandle AddShadingGroup(PdfWriter& writer, const PdfPlacedShading& placed,
                                 PdfChannels channels = PdfChannels::kColors);

}  // namespace kelvane
