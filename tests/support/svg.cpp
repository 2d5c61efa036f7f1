#include "support/svg.h"

#include <stdexcept>

#include "platform/quartz/cg_context_calls.h"
#include "support/bitmap.h"
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

  return RasterOfPng(ReadFile(folder / "page.png"));
}

}  // namespace kelvane::test
