#include "frontends/conversion.h"

#include <cerrno>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "classic/document/emf_file.h"
#include "classic/reader/file_reader.h"
#include "frontends/file_consumer.h"
#include "frontends/file_size_signal.h"
#include "platform/corefoundation/cf_string.h"
#include "platform/corefoundation/cf_url.h"
#include "platform/pdf/cg_pdf_context.h"
#include "platform/pdf/cg_pdf_document.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/quartz/cg_data_consumer.h"
#include "platform/quartz/cg_data_provider.h"

namespace kelvane {
namespace {

// The extension is not looked at: whatever the last three characters are, they become "pdf". A
// shorter path throws.
std::string OutputPath(const std::string& path) {
  return std::string(path).replace(path.size() - 3, 3, "pdf");
}

CFOwned<const CFURL> FileURL(const std::string& path) {
  const CFOwned<const CFString> string(
      CFStringCreateWithCString(kCFAllocatorDefault, path.c_str(), kCFStringEncodingMacRoman));
  return CFOwned<const CFURL>(CFURLCreateWithFileSystemPath(kCFAllocatorDefault, string.get(),
                                                            kCFURLPOSIXPathStyle, false));
}

CFOwned<CGPDFDocument> OpenDocument(CFDataRef data) {
  const CFOwned<const CGDataProvider> provider(CGDataProviderCreateWithCFData(data));
  CFOwned<CGPDFDocument> document(CGPDFDocumentCreateWithProvider(provider.get()));
  if (!document) throw std::runtime_error("the metafile made no document");
  return document;
}

/// Copies page 1 of a document into a new file.
void WriteFirstPage(CGPDFDocumentRef document, CFURLRef url) {
  constexpr int kPage = 1;
  const CGPDFPageRef page = CGPDFDocumentGetPage(document, kPage);
  if (page == nullptr) throw std::runtime_error("the metafile made no page");
  const CGRect box = CGPDFPageGetBoxRect(page, kCGPDFMediaBox);

  const FileSizeSignalBlocked signalBlocked;
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithURL(url));
  if (!consumer) throw std::system_error(errno, std::generic_category(), "creating the document");
  const CFOwned<CGContext> surface(CGPDFContextCreate(consumer.get(), &box, nullptr));
  if (!surface) throw std::runtime_error("the page has no area");
  CGContextBeginPage(surface.get(), &box);
  CGContextDrawPDFDocument(surface.get(), box, document, kPage);
  CGContextEndPage(surface.get());
  if (!document->IsSound()) throw std::runtime_error("the document cannot be read back");
  CGPDFContextClose(surface.get());
}

}  // namespace

void ConvertBuffer(const unsigned char* buffer, unsigned long length, CFMutableDataRef output) {
  if (length > static_cast<unsigned long>(std::numeric_limits<std::int32_t>::max())) {
    throw std::length_error("a metafile of 2 GiB or more");
  }
  EMFFile metafile(buffer, static_cast<std::int32_t>(length), CGPDFContextCreate);
  metafile.ParseEMFFile();
  metafile.DrawToPDF(output);
}

void ConvertFile(const char* path) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  {
    const std::vector<unsigned char> block = FileReader(path).readBlock();
    EMFFile metafile(block.data(), static_cast<std::int32_t>(block.size()), CGPDFContextCreate);
    metafile.context.sourcePath = path;
    metafile.ParseEMFFile();
    metafile.DrawToPDF(data.get());
  }
  const CFOwned<CGPDFDocument> document = OpenDocument(data.get());
  const CFOwned<const CFURL> url = FileURL(OutputPath(path));
  WriteFirstPage(document.get(), url.get());
}

}  // namespace kelvane
