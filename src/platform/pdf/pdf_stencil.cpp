#include "platform/pdf/pdf_stencil.h"

#include <string>
#include <string_view>

#include "platform/pdf/pdf_content.h"
#include "platform/pdf/pdf_group.h"
#include "platform/pdf/pdf_resources.h"

namespace kelvane {
namespace {

constexpr CGRect kUnitSquare = {{0, 0}, {1, 1}};
constexpr CGColor kWhite = {1, 1, 1, 1};

/// @return the stencil in white, as a group; what it leaves bare is black.
QPDFObjectHandle AddStencil(PdfWriter& writer, const QPDFObjectHandle& stencil,
                            const CGAffineTransform& matrix) {
  std::string text;
  PdfContent content([&text](std::string_view piece) { text += piece; });
  PdfResources resources;
  content.FillColor(kWhite);
  content.Concat(matrix);
  content.DrawXObject(resources.NameOf(stencil, kPdfImage));
  content.Finish();

  return AddGroup(writer, text, resources, CGRectApplyAffineTransform(kUnitSquare, matrix));
}

}  // namespace

QPDFObjectHandle AddStencilState(PdfWriter& writer, const QPDFObjectHandle& stencil,
                                 const CGAffineTransform& matrix) {
  return AddMaskState(writer, AddStencil(writer, stencil, matrix));
}

}  // namespace kelvane
