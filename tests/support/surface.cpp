#include "support/surface.h"

#include <array>

#include "platform/pdf/cg_pdf_context.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/trace/cg_trace_context.h"
#include "support/pdf.h"

namespace kelvane::test {
namespace {

CFOwned<CFData> DataOf(const void* bytes, std::size_t size) {
  CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  CFDataAppendBytes(data.get(), static_cast<const unsigned char*>(bytes),
                    static_cast<CFIndex>(size));
  return data;
}

CFOwned<const CGColorSpace> ColorSpaceOf(std::size_t components) {
  return CFOwned<const CGColorSpace>(components == 1 ? CGColorSpaceCreateDeviceGray()
                                                     : CGColorSpaceCreateDeviceRGB());
}

}  // namespace

std::string TraceOf(const Drawing& draw) {
  std::string trace;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  CGContextBeginPage(surface.get(), &kPageBox);
  draw(surface.get());
  CGContextEndPage(surface.get());
  const std::size_t first = trace.find('\n') + 1;
  const std::size_t last = trace.rfind("end-page\n");
  return trace.substr(first, last - first);
}

std::string PdfBytesOf(const Drawing& draw, const CGRect& box) {
  return DocumentBytesOf([&](CGContextRef surface) {
    CGContextBeginPage(surface, &box);
    draw(surface);
    CGContextEndPage(surface);
  });
}

std::string DocumentBytesOf(const Drawing& draw) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(CGPDFContextCreate(consumer.get(), &kPageBox, nullptr));
  draw(surface.get());
  CGPDFContextClose(surface.get());
  return {data->bytes.begin(), data->bytes.end()};
}

std::string PdfContentOf(const Drawing& draw) {
  return Pdf(PdfBytesOf(draw)).Content();
}

CFOwned<CGPDFDocument> OpenPdf(const std::string& bytes) {
  const CFOwned<CFData> data = DataOf(bytes.data(), bytes.size());
  const CFOwned<const CGDataProvider> provider(CGDataProviderCreateWithCFData(data.get()));
  return CFOwned<CGPDFDocument>(CGPDFDocumentCreateWithProvider(provider.get()));
}

CFOwned<const CGDataProvider> ProviderOf(const std::vector<unsigned char>& bytes) {
  const CFOwned<CFData> data = DataOf(bytes.data(), bytes.size());
  return CFOwned<const CGDataProvider>(CGDataProviderCreateWithCFData(data.get()));
}

CFOwned<const CGImage> ImageOf(std::size_t width, std::size_t height, std::size_t components,
                               const std::vector<unsigned char>& bytes, std::size_t bytesPerRow) {
  const CFOwned<const CGDataProvider> provider = ProviderOf(bytes);
  const CFOwned<const CGColorSpace> space = ColorSpaceOf(components);
  return CFOwned<const CGImage>(CGImageCreate(
      width, height, 8, 8 * components, bytesPerRow != 0 ? bytesPerRow : width * components,
      space.get(), 0, provider.get(), nullptr, true, kCGRenderingIntentDefault));
}

void SetFill(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue) {
  CGContextSetFillColorSpace(context, ColorSpaceOf(3).get());
  const std::array<CGFloat, 4> components = {red, green, blue, 1};
  CGContextSetFillColor(context, components.data());
}

void SetStroke(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue) {
  CGContextSetStrokeColorSpace(context, ColorSpaceOf(3).get());
  const std::array<CGFloat, 4> components = {red, green, blue, 1};
  CGContextSetStrokeColor(context, components.data());
}

void StrokeLine(CGContextRef context, CGPoint from, CGPoint to) {
  CGContextMoveToPoint(context, from.x, from.y);
  CGContextAddLineToPoint(context, to.x, to.y);
  CGContextDrawPath(context, kCGPathStroke);
}

void FillRect(CGContextRef context, const CGRect& rect) {
  CGContextAddRect(context, rect);
  CGContextDrawPath(context, kCGPathFill);
}

}  // namespace kelvane::test
