#pragma once

#include <string_view>

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_resources.h"
#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// Marks that come onto a page together, mixed with each other first.
/// @param content    of page space.
/// @param resources  what the content names.
/// @param box        nothing beyond it shows.
/// @return a form XObject with a transparency group (ISO 32000-1, 11.6.6), the same one for the
///         same of all three. Throws as the writer does.
QPDFObjectHandle AddGroup(PdfWriter& writer, std::string_view content,
                          const PdfResources& resources, const CGRect& box);

/// @param group  grey, in page space.
/// @return a graphics state that lets marks through where the group is light (ISO 32000-1,
///         11.6.5.3), to be set in page space; the same one for the same group. Throws as the
///         writer does.
QPDFObjectHandle AddMaskState(PdfWriter& writer, const QPDFObjectHandle& group);

}  // namespace kelvane
