#pragma once

#include <cstddef>
#include <memory>
#include <span>

#include <poppler.h>

namespace kelvane {

struct GObjectUnref {
  void operator()(gpointer object) const { g_object_unref(object); }
};

/// A reference to a page of an open document, and with it to the document.
using PdfPage = std::unique_ptr<PopplerPage, GObjectUnref>;

/// Opens the first page of a PDF.
/// @param pdf  borrowed for as long as anybody refers to the page or its document.
/// @return null when there is no such page, or no PDF that can be read.
[[nodiscard]] PdfPage OpenFirstPage(std::span<const std::byte> pdf);

/// A page's width and height in points.
struct PageSize {
  double width = 0;
  double height = 0;
};

[[nodiscard]] PageSize SizeOf(PopplerPage* page);

/// The size of a bitmap in pixels, each side from 1 to 32767.
struct BitmapSize {
  int width = 0;
  int height = 0;
};

/// The bitmap that shows a page at its best.
/// @param width, height  the room on the device, in its pixels.
/// @return that room in whole pixels; less when it has more than 16 million, so that the page comes
///         out coarser. {0, 0} when a side is 0, above 32767 or no number.
[[nodiscard]] BitmapSize BitmapSizeFor(double width, double height);

/// Paints a page over the whole of a bitmap, stretched to its sides.
/// @param pixels  size.height rows of size.width pixels, top first and without padding, each the
///                bytes red, green, blue and alpha, premultiplied; cleared before.
/// @return whether it was painted; false when memory runs out.
[[nodiscard]] bool PaintPage(PopplerPage* page, BitmapSize size, std::span<unsigned char> pixels);

}  // namespace kelvane
