#include "platform/pdf/cg_pdf_document.h"

#include <exception>
#include <new>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

namespace kelvane {

CGPDFDocument::CGPDFDocument(CGDataProviderRef source)
    : provider(CFShare(source)), pdf(std::make_unique<QPDF>()) {
  const auto bytes = provider->Bytes();
  pdf->setSuppressWarnings(true);
  pdf->setImmediateCopyFrom(true);  // a page copied elsewhere outlives this document
  pdf->processMemoryFile("document", reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const std::size_t count = pdf->getAllPages().size();
  for (std::size_t index = 0; index < count; ++index)
    pages.push_back({this, index});
}

CGPDFDocument::~CGPDFDocument() = default;

bool CGPDFDocument::IsSound() const {
  return !pdf->anyWarnings();
}

CGPDFDocumentRef CGPDFDocumentCreateWithProvider(CGDataProviderRef provider) {
  if (provider == nullptr) return nullptr;
  try {
    return new CGPDFDocument(provider);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    return nullptr;  // not a PDF, or one too damaged to read
  }
}

std::size_t CGPDFDocumentGetNumberOfPages(CGPDFDocumentRef document) noexcept {
  return document->pages.size();
}

CGPDFPageRef CGPDFDocumentGetPage(CGPDFDocumentRef document, std::size_t number) noexcept {
  if (number < 1 || number > document->pages.size()) return nullptr;
  return &document->pages[number - 1];
}

CGRect CGPDFPageGetBoxRect(CGPDFPageRef page, CGPDFBox /*box*/) {
  QPDFPageObjectHelper helper(page->document->pdf->getAllPages()[page->index]);
  QPDFObjectHandle box = helper.getAttribute("/MediaBox", false);
  if (!box.isRectangle()) return {};
  const QPDFObjectHandle::Rectangle corners = box.getArrayAsRectangle();
  return CGRectMake(static_cast<CGFloat>(corners.llx), static_cast<CGFloat>(corners.lly),
                    static_cast<CGFloat>(corners.urx - corners.llx),
                    static_cast<CGFloat>(corners.ury - corners.lly));
}

}  // namespace kelvane
