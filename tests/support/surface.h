#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/pdf/cg_pdf_document.h"
#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_data_provider.h"
#include "platform/quartz/cg_image.h"

namespace kelvane::test {

using Drawing = std::function<void(CGContextRef)>;

/// The box of the pages below, unless another is named.
inline constexpr CGRect kPageBox = {{0, 0}, {100, 100}};

/// @return the trace of what `draw` does on one page, without the page's first line and its last.
std::string TraceOf(const Drawing& draw);

/// @return the bytes of the document of one page on which `draw` drew.
std::string PdfBytesOf(const Drawing& draw, const CGRect& box = kPageBox);

/// @return the bytes of the document that `draw` made, pages included.
std::string DocumentBytesOf(const Drawing& draw);

/// @return the decoded content of the PDF page on which `draw` drew.
std::string PdfContentOf(const Drawing& draw);

/// Opens a document over a copy of the bytes.
/// @return null when they are no PDF.
CFOwned<CGPDFDocument> OpenPdf(const std::string& bytes);

/// @return a provider over a copy of the bytes.
CFOwned<const CGDataProvider> ProviderOf(const std::vector<unsigned char>& bytes);

/// @param bytesPerRow  0: rows without padding.
/// @return an image of 8-bit components, 1 (grey) or 3 (RGB) a pixel, over a copy of the bytes;
///         null when they do not suffice.
CFOwned<const CGImage> ImageOf(std::size_t width, std::size_t height, std::size_t components,
                               const std::vector<unsigned char>& bytes,
                               std::size_t bytesPerRow = 0);

/// Sets the RGB fill or stroke colour.
void SetFill(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue);
void SetStroke(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue);

/// Strokes a line of its own.
void StrokeLine(CGContextRef context, CGPoint from, CGPoint to);

/// Fills a rectangle of its own.
void FillRect(CGContextRef context, const CGRect& rect);

}  // namespace kelvane::test
