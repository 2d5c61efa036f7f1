#include "platform/pdf/pdf_pattern.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "platform/pdf/pdf_content.h"
#include "platform/pdf/pdf_number.h"
#include "platform/pdf/pdf_resources.h"
#include "platform/pdf/pdf_shading.h"

namespace kelvane {
namespace {

enum PatternType : std::uint8_t { kTiling = 1, kShading = 2 };

QPDFObjectHandle NewPattern(PatternType type, const CGAffineTransform& m) {
  auto dictionary = QPDFObjectHandle::newDictionary();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/Pattern"));
  dictionary.replaceKey("/PatternType", QPDFObjectHandle::newInteger(type));
  dictionary.replaceKey(
      "/Matrix", QPDFObjectHandle::newArray({PdfNumber(m.a), PdfNumber(m.b), PdfNumber(m.c),
                                             PdfNumber(m.d), PdfNumber(m.tx), PdfNumber(m.ty)}));
  return dictionary;
}

/// Viewers give an image every pixel that it touches, and mirror images touch each other: each is
/// taken in by less than anyone can see.
/// @return what maps the unit square to a column's or row's part along one axis: scale and shift.
std::pair<CGFloat, CGFloat> PartAt(int index, int parts, CGFloat size) {
  const CGFloat hair = parts == 1 ? 0 : size / 4096;
  const CGFloat seen = size - 2 * hair;
  return index == 0 ? std::pair(seen, hair) : std::pair(-seen, 2 * size - hair);
}

void DrawImages(const CGPattern& pattern, QPDFObjectHandle image, PdfResources& resources,
                PdfContent& content) {
  if (image.isNull()) return;
  const std::string& name = resources.NameOf(image, kPdfImage);
  for (int row = 0; row < pattern.Rows(); ++row) {
    for (int column = 0; column < pattern.Columns(); ++column) {
      const auto [width, left] = PartAt(column, pattern.Columns(), pattern.cell.width);
      const auto [height, bottom] = PartAt(row, pattern.Rows(), pattern.cell.height);
      content.Save();
      content.Concat({width, 0, 0, height, left, bottom});
      content.DrawXObject(name);
      content.Restore();
    }
  }
}

void FillShapes(PdfWriter& writer, const CGPattern& pattern, PdfResources& resources,
                PdfContent& content) {
  for (const CGPatternShape& shape : pattern.shapes) {
    const bool isOpaque = shape.color.alpha == 1;
    if (!isOpaque) {
      const auto state = writer.AddGraphicsState({shape.color.alpha, kCGBlendModeNormal});
      content.Save();
      content.GraphicsState(resources.NameOf(state, kPdfGraphicsState));
    }
    content.FillColor(shape.color);
    content.Path(shape.path);
    content.Paint(kCGPathFill);
    if (!isOpaque) content.Restore();
  }
}

QPDFObjectHandle AddTiling(PdfWriter& writer, const CGPattern& pattern, PdfImages& images) {
  std::string text;
  PdfContent content([&text](std::string_view piece) { text += piece; });
  PdfResources resources;
  if (pattern.image != nullptr) {
    DrawImages(pattern, images.Add(*pattern.image), resources, content);
  }
  FillShapes(writer, pattern, resources, content);
  content.Finish();

  constexpr int kColored = 1;
  constexpr int kConstantSpacing = 1;
  const CGSize cell = pattern.TileSize();
  auto dictionary = NewPattern(kTiling, pattern.matrix);
  dictionary.replaceKey("/PaintType", QPDFObjectHandle::newInteger(kColored));
  dictionary.replaceKey("/TilingType", QPDFObjectHandle::newInteger(kConstantSpacing));
  dictionary.replaceKey("/BBox", PdfBox({{0, 0}, cell}));
  dictionary.replaceKey("/XStep", PdfNumber(cell.width + pattern.gap.width));
  dictionary.replaceKey("/YStep", PdfNumber(cell.height + pattern.gap.height));
  dictionary.replaceKey("/Resources", resources.Dictionary());
  return writer.AddSharedStream(dictionary,
                                {reinterpret_cast<const unsigned char*>(text.data()), text.size()});
}

}  // namespace

QPDFObjectHandle AddPattern(PdfWriter& writer, const CGPattern& pattern, PdfImages& images) {
  if (!pattern.shading) return AddTiling(writer, pattern, images);
  auto dictionary = NewPattern(kShading, pattern.matrix);
  dictionary.replaceKey("/Shading", AddShading(writer, *pattern.shading));
  return writer.AddSharedObject(dictionary);
}

}  // namespace kelvane
