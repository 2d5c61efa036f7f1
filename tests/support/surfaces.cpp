#include "support/surfaces.h"

#include "platform/quartz/cg_pdf_context.h"
#include "platform/quartz/cg_trace_context.h"
#include "support/files.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

constexpr CGRect kPage = {{0, 0}, {100, 100}};

void DrawPage(CGContextRef surface, const Drawing& draw) {
  CGContextBeginPage(surface, &kPage);
  draw(surface);
  CGContextEndPage(surface);
}

}  // namespace

std::string TraceOf(const Drawing& draw) {
  std::string trace;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  DrawPage(surface.get(), draw);
  const std::size_t first = trace.find('\n') + 1;
  return trace.substr(first, trace.rfind("end-page\n") - first);
}

std::string PdfOf(const Drawing& draw) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(CGPDFContextCreate(consumer.get(), &kPage, nullptr));
  DrawPage(surface.get(), draw);
  CGPDFContextClose(surface.get());
  return {data->bytes.begin(), data->bytes.end()};
}

std::string TextIn(const std::string& pdf) {
  const TemporaryFolder folder;
  WriteFile(folder / "text.pdf", pdf);
  std::string text = Run({"pdftotext", "-raw", folder / "text.pdf", "-"}).output;
  while (text.ends_with('\n') || text.ends_with('\f'))
    text.pop_back();
  return text;
}

}  // namespace kelvane::test
