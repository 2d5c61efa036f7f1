#include "support/playback.h"

#include "frontends/conversion.h"
#include "platform/pdf/cg_pdf_context.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/trace/cg_trace_context.h"
#include "support/pdf.h"

namespace kelvane::test {

ParsedMetafile::ParsedMetafile(std::vector<unsigned char> bytes)
    : block_([&] {
        bytes.push_back(0);
        return std::move(bytes);
      }()),
      file_(block_.data(), static_cast<std::int32_t>(block_.size()), CGPDFContextCreate) {
  file_.ParseEMFFile();
}

TracedPage::TracedPage() : surface_(CGTraceContextCreate(trace_)) {
  const CGRect box = {{0, 0}, {100, 100}};
  CGContextBeginPage(surface_.get(), &box);
  context_.context = surface_.get();
}

std::string FullTrace(ParsedMetafile& metafile) {
  std::string trace;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  metafile->DrawToPage(surface.get());
  return trace;
}

std::string FullTrace(const Metafile& metafile) {
  ParsedMetafile parsed(metafile.Build());
  return FullTrace(parsed);
}

std::string Trace(ParsedMetafile& metafile) {
  const std::string trace = FullTrace(metafile);
  const std::size_t first = trace.find('\n') + 1;
  const std::size_t last = trace.rfind("end-page\n");
  return trace.substr(first, last - first);
}

std::string Trace(const Metafile& metafile) {
  ParsedMetafile parsed(metafile.Build());
  return Trace(parsed);
}

std::string ConvertToPdf(const std::vector<unsigned char>& metafile) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  ConvertBuffer(metafile.data(), metafile.size(), data.get());
  return {data->bytes.begin(), data->bytes.end()};
}

std::string PageContent(const Metafile& metafile) {
  return Pdf(ConvertToPdf(metafile.Build())).Content();
}

}  // namespace kelvane::test
