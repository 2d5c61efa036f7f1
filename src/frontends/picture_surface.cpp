#include "frontends/picture_surface.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "platform/pdf/cg_pdf_context.h"
#include "platform/raster/cg_bitmap_context.h"
#include "platform/svg/cg_svg_context.h"

namespace kelvane {
namespace {

constexpr double kPointsAnInch = 72;

struct PixelSize {
  double width;
  double height;
};

/// @param page  points.
PixelSize PixelsOf(const ConversionOptions& options, CGSize page) {
  const PageSizeWish& wish = options.size;
  if (wish.width && wish.height) return {*wish.width, *wish.height};
  if (wish.width) return {*wish.width, *wish.width * page.height / page.width};
  if (wish.height) return {*wish.height * page.width / page.height, *wish.height};
  const double scale = options.dotsPerInch / kPointsAnInch;
  return {page.width * scale, page.height * scale};
}

CFOwned<CGContext> BitmapSurface(const ConversionOptions& options, CGSize page,
                                 CGDataConsumerRef consumer) {
  constexpr double kMostASide = kCGBitmapMostASide;
  constexpr double kMostPixels = 1U << 28;
  const PixelSize exact = PixelsOf(options, page);
  const double width = std::max(std::round(exact.width), 1.0);
  const double height = std::max(std::round(exact.height), 1.0);
  if (!(width <= kMostASide && height <= kMostASide && width * height <= kMostPixels)) {
    throw std::runtime_error(
        "the picture would have more than 32767 pixels a side, or 2^28 in all");
  }
  return CFOwned<CGContext>(CGBitmapContextCreate(
      consumer, {static_cast<std::size_t>(width), static_cast<std::size_t>(height),
                 options.background, width / page.width * kPointsAnInch}));
}

}  // namespace

CFOwned<CGContext> SurfaceFor(const ConversionOptions& options, const CGRect& firstPage,
                              const PictureWords& words, CGDataConsumerRef consumer) {
  if (options.format == "svg") {
    return CFOwned<CGContext>(CGSVGContextCreate(consumer, {words.title, options.embedsFonts}));
  }
  if (options.format == "png") return BitmapSurface(options, firstPage.size, consumer);
  CFDictionary information;
  information.texts[kCGPDFContextTitle] = words.title;
  information.texts[kCGPDFContextCreator] = words.creator;
  return CFOwned<CGContext>(CGPDFContextCreate(consumer, &firstPage, &information));
}

PageSizeWish PageWishOf(const ConversionOptions& options) {
  if (options.format != "png") return options.size;
  PageSizeWish wish;
  wish.scale = options.size.scale;
  return wish;
}

bool HasPages(std::string_view format) {
  return format == "pdf";
}

}  // namespace kelvane
