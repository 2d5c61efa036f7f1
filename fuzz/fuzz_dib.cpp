// Decodes any bytes as a bitmap and draws it: one that has pixels must make an image.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "classic/bitmap/draw_image.h"
#include "classic/reader/reader.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/trace/cg_trace_context.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelvane::Reader reader(data, static_cast<std::int32_t>(size));
  kelvane::DIB dib;
  dib.read(reader);

  std::string trace;
  const kelvane::CFOwned<kelvane::CGContext> surface(kelvane::CGTraceContextCreate(trace));
  const kelvane::CGRect page = {{0, 0}, {100, 100}};
  kelvane::CGContextBeginPage(surface.get(), &page);
  kelvane::AbstractContext context;
  context.context = surface.get();
  kelvane::DrawImageInRect(context, dib, {0, 0, 100, 100});
  if (dib.data.empty() == (trace.find("image") != std::string::npos)) std::abort();
  return 0;
}
