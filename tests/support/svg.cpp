#include "support/svg.h"

#include <stdexcept>

#include "metafile/png_decoder.h"
#include "platform/quartz/cg_context_calls.h"
#include "support/files.h"
#include "support/process.h"

namespace kelvane::test {

std::string SvgOf(const Drawing& draw, const CGRect& box, const CGSVGDescription& description) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(CGSVGContextCreate(consumer.get(), description));
  CGContextBeginPage(surface.get(), &box);
  draw(surface.get());
  CGContextEndPage(surface.get());
  surface->Close();
  return {data->bytes.begin(), data->bytes.end()};
}

std::string SvgBodyOf(const Drawing& draw) {
  const std::string svg = SvgOf(draw);
  const std::size_t start = svg.find('>', svg.find("<svg")) + 1;
  return svg.substr(start, svg.rfind("</svg>") - start);
}

Raster RasterOfSvg(const std::string& svg, int scale) {
  const TemporaryFolder folder;
  WriteFile(folder / "page.svg", svg);
  const std::string zoom = std::to_string(scale * 0.75);  // a pixel is three quarters of a point
  const ProcessResult result = Run({"rsvg-convert", "--zoom", zoom, "--background-color", "white",
                                    folder / "page.svg", "--output", folder / "page.png"});
  if (result.status != 0 || !result.output.empty()) throw std::runtime_error(result.output);

  const std::string file = ReadFile(folder / "page.png");
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
