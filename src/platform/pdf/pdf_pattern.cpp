#include "platform/pdf/pdf_pattern.h"

#include <string>
#include <string_view>

#include "platform/pdf/pdf_content.h"
#include "platform/pdf/pdf_number.h"
#include "platform/pdf/pdf_resources.h"

namespace kelvane {
namespace {

void DrawImage(const CGPattern& pattern, QPDFObjectHandle image, PdfResources& resources,
               PdfContent& content) {
  if (image.isNull()) return;
  content.Save();
  content.Concat({pattern.cell.width, 0, 0, pattern.cell.height, 0, 0});
  content.DrawXObject(resources.NameOf(image, kPdfImage));
  content.Restore();
}

void FillShapes(const CGPattern& pattern, PdfContent& content) {
  for (const CGPatternShape& shape : pattern.shapes) {
    content.FillColor(shape.color);
    content.Path(shape.path);
    content.Paint(kCGPathFill);
  }
}

}  // namespace

QPDFObjectHandle AddPattern(PdfWriter& writer, const CGPattern& pattern, PdfImages& images) {
  std::string text;
  PdfContent content([&text](std::string_view piece) { text += piece; });
  PdfResources resources;
  if (pattern.image != nullptr) {
    DrawImage(pattern, images.Add(*pattern.image), resources, content);
  }
  FillShapes(pattern, content);
  content.Finish();

  constexpr int kTiling = 1;
  constexpr int kColored = 1;
  constexpr int kConstantSpacing = 1;
  const CGAffineTransform& m = pattern.matrix;
  QPDFObjectHandle stream = writer.AddStream(text);
  auto dictionary = stream.getDict();
  const auto set = [&](const char* key, const QPDFObjectHandle& value) {
    dictionary.replaceKey(key, value);
  };
  set("/Type", QPDFObjectHandle::newName("/Pattern"));
  set("/PatternType", QPDFObjectHandle::newInteger(kTiling));
  set("/PaintType", QPDFObjectHandle::newInteger(kColored));
  set("/TilingType", QPDFObjectHandle::newInteger(kConstantSpacing));
  set("/BBox", PdfBox({{0, 0}, pattern.cell}));
  set("/XStep", PdfNumber(pattern.cell.width));
  set("/YStep", PdfNumber(pattern.cell.height));
  set("/Matrix", QPDFObjectHandle::newArray({PdfNumber(m.a), PdfNumber(m.b), PdfNumber(m.c),
                                             PdfNumber(m.d), PdfNumber(m.tx), PdfNumber(m.ty)}));
  set("/Resources", resources.Dictionary());
  return stream;
}

}  // namespace kelvane
