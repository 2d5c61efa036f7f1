#include "support/bitmap.h"

#include <span>
#include <stdexcept>

#include "metafile/png_decoder.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane::test {

std::string PngOf(const Drawing& draw, const CGBitmapDescription& description) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(CGBitmapContextCreate(consumer.get(), description));
  CGContextBeginPage(surface.get(), &kPageBox);
  draw(surface.get());
  CGContextEndPage(surface.get());
  surface->Close();
  return {data->bytes.begin(), data->bytes.end()};
}

Raster BitmapOf(const Drawing& draw, int scale) {
  const auto side = static_cast<std::size_t>(100 * scale);
  return RasterOfPng(PngOf(draw, {.width = side, .height = side}));
}

Raster RasterOfPng(const std::string& file) {
  const std::span<const unsigned char> bytes(reinterpret_cast<const unsigned char*>(file.data()),
                                             file.size());
  const auto header = ReadPngHeader(bytes);
  if (!header) throw std::runtime_error("no picture");
  const auto pixels = DecodePng(bytes, {0, 0, header->width, header->height});
  if (!pixels) throw std::runtime_error("no pixels");
  return {static_cast<int>(header->width), static_cast<int>(header->height),
          std::string(pixels->begin(), pixels->end())};
}

}  // namespace kelvane::test
