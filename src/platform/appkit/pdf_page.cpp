#include "platform/appkit/pdf_page.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

#include <cairo.h>

namespace kelvane {

namespace {

constexpr double kMaximumSide = 32767;                 // of what is painted on, for cairo as for X
constexpr double kMaximumPixels = 16.0 * 1024 * 1024;  // 64 MiB
constexpr std::size_t kBytesPerPixel = 4;

struct SurfaceDestroy {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};

struct ContextDestroy {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};

struct BytesUnref {
  void operator()(GBytes* bytes) const { g_bytes_unref(bytes); }
};

/// Turns words of alpha, red, green and blue from the highest byte down into bytes of red, green,
/// blue and alpha.
void ArrangeAsBytes(std::span<unsigned char> pixels) {
  for (std::size_t i = 0; i + kBytesPerPixel <= pixels.size(); i += kBytesPerPixel) {
    if constexpr (std::endian::native == std::endian::little) {
      std::swap(pixels[i], pixels[i + 2]);
    } else {
      std::rotate(&pixels[i], &pixels[i + 1], &pixels[i] + kBytesPerPixel);
    }
  }
}

}  // namespace

PdfPage OpenFirstPage(std::span<const std::byte> pdf) {
  const std::unique_ptr<GBytes, BytesUnref> bytes(g_bytes_new_static(pdf.data(), pdf.size()));
  const std::unique_ptr<PopplerDocument, GObjectUnref> document(
      poppler_document_new_from_bytes(bytes.get(), nullptr, nullptr));
  if (document == nullptr) return nullptr;
  return PdfPage(poppler_document_get_page(document.get(), 0));
}

PageSize SizeOf(PopplerPage* page) {
  PageSize size;
  poppler_page_get_size(page, &size.width, &size.height);
  return size;
}

BitmapSize BitmapSizeFor(double width, double height) {
  const auto fits = [](double side) { return side > 0 && side <= kMaximumSide; };
  if (!fits(width) || !fits(height)) return {};
  const double scale = std::min(1.0, std::sqrt(kMaximumPixels / (width * height)));
  const auto whole = [scale](double side) {
    constexpr double kRounding = 1e-3;
    return std::max(1, static_cast<int>(scale < 1 ? side * scale : std::ceil(side - kRounding)));
  };
  return {whole(width), whole(height)};
}

bool PaintPage(PopplerPage* page, BitmapSize size, std::span<unsigned char> pixels) {
  const int stride = size.width * static_cast<int>(kBytesPerPixel);
  const std::unique_ptr<cairo_surface_t, SurfaceDestroy> surface(
      cairo_image_surface_create_for_data(pixels.data(), CAIRO_FORMAT_ARGB32, size.width,
                                          size.height, stride));
  const std::unique_ptr<cairo_t, ContextDestroy> context(cairo_create(surface.get()));
  const PageSize pageSize = SizeOf(page);
  cairo_scale(context.get(), size.width / pageSize.width, size.height / pageSize.height);
  poppler_page_render(page, context.get());
  const bool painted = cairo_status(context.get()) == CAIRO_STATUS_SUCCESS;
  cairo_surface_flush(surface.get());
  ArrangeAsBytes(pixels);
  return painted;
}

}  // namespace kelvane
