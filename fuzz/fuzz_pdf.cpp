// Opening a document and copying its first page: as a page of its own, and twice onto one page.

#include <exception>

#include "platform/pdf/cg_pdf_context.h"
#include "platform/pdf/cg_pdf_document.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/quartz/cg_data_provider.h"

namespace kelvane {
namespace {

void CopyFirstPage(CGPDFDocumentRef source, int times) {
  const CGPDFPageRef page = CGPDFDocumentGetPage(source, 1);
  if (page == nullptr) return;
  const CGRect box = CGPDFPageGetBoxRect(page, kCGPDFMediaBox);
  const CFOwned<CFData> copy(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(copy.get()));
  const CFOwned<CGContext> surface(CGPDFContextCreate(consumer.get(), &box, nullptr));
  if (!surface) return;
  CGContextBeginPage(surface.get(), &box);
  for (int i = 0; i < times; ++i)
    CGContextDrawPDFDocument(surface.get(), box, source, 1);
  CGPDFContextClose(surface.get());
}

}  // namespace
}  // namespace kelvane

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kelvane;
  const CFOwned<const CGDataProvider> provider(
      CGDataProviderCreateWithData(nullptr, data, size, nullptr));
  try {
    const CFOwned<CGPDFDocument> source(CGPDFDocumentCreateWithProvider(provider.get()));
    if (!source) return 0;
    CopyFirstPage(source.get(), 1);
    CopyFirstPage(source.get(), 2);
  } catch (const std::exception&) {  // a page too damaged to copy
  }
  return 0;
}
