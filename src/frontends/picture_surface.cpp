#include "frontends/picture_surface.h"

#include "platform/pdf/cg_pdf_context.h"
#include "platform/svg/cg_svg_context.h"

namespace kelvane {

CFOwned<CGContext> SurfaceFor(const ConversionOptions& options, const CGRect& firstPage,
                              const PictureWords& words, CGDataConsumerRef consumer) {
  if (options.format == "svg") {
    return CFOwned<CGContext>(CGSVGContextCreate(consumer, {words.title, options.embedsFonts}));
  }
  CFDictionary information;
  information.texts[kCGPDFContextTitle] = words.title;
  information.texts[kCGPDFContextCreator] = words.creator;
  return CFOwned<CGContext>(CGPDFContextCreate(consumer, &firstPage, &information));
}

bool HasPages(std::string_view format) {
  return format == "pdf";
}

}  // namespace kelvane
