#include "platform/pdf/pdf_content.h"

#include <algorithm>
#include <array>

#include "base/number.h"
#include "platform/pdf/pdf_hex.h"

namespace kelvane {
namespace {

constexpr std::size_t kPieceSize = std::size_t{1} << 20;
constexpr std::size_t kMostOperands = 6;  // numbers of one operator

constexpr std::array<std::string_view, 5> kPaintOperators = {"f\n", "f*\n", "S\n", "B\n", "B*\n"};

constexpr std::size_t kOperationRoom = kMostOperands * (kNumberRoom + 1) + 4;  // with its operands

// By element: move, line, curve, close, rectangle.
constexpr std::array<std::string_view, 5> kPathOperators = {"m\n", "l\n", "c\n", "h\n", "re\n"};

char* WritePoint(char* out, CGPoint point) {
  out = WriteNumber(out, point.x);
  *out++ = ' ';
  out = WriteNumber(out, point.y);
  *out++ = ' ';
  return out;
}

}  // namespace

void PdfContent::Save() {
  EndText();
  savedFonts_.push_back(font_);
  Write("q\n");
}

void PdfContent::Restore() {
  EndText();
  font_ = savedFonts_.back();
  savedFonts_.pop_back();
  Write("Q\n");
}

void PdfContent::Concat(const CGAffineTransform& t) {
  EndText();
  Write({t.a, t.b, t.c, t.d, t.tx, t.ty}, "cm\n");
}

void PdfContent::FillColor(const CGColor& color) {
  EndLine();
  Write({color.red, color.green, color.blue}, "rg\n");
}

void PdfContent::StrokeColor(const CGColor& color) {
  EndLine();
  Write({color.red, color.green, color.blue}, "RG\n");
}

void PdfContent::FillPattern(std::string_view name) {
  EndLine();
  Write("/Pattern cs\n");
  WriteNamed(name, " scn\n");
}

void PdfContent::StrokePattern(std::string_view name) {
  EndLine();
  Write("/Pattern CS\n");
  WriteNamed(name, " SCN\n");
}

void PdfContent::LineWidth(CGFloat width) {
  EndLine();
  Write({width}, "w\n");
}

void PdfContent::LineCap(CGLineCap cap) {
  EndLine();
  Write({static_cast<CGFloat>(cap)}, "J\n");
}

void PdfContent::LineJoin(CGLineJoin join) {
  EndLine();
  Write({static_cast<CGFloat>(join)}, "j\n");
}

void PdfContent::LineDash(const CGLineDash& dash) {
  EndLine();
  text_.Append("[");
  for (const CGFloat length : dash.lengths) {
    char* out = WriteNumber(text_.Room(kNumberRoom + 1), length);
    *out++ = ' ';
    text_.EndAt(out);
  }
  text_.Append("] ");
  Write({dash.phase}, "d\n");
}

void PdfContent::MiterLimit(CGFloat limit) {
  EndLine();
  Write({std::max(limit, CGFloat{1})}, "M\n");
}

void PdfContent::TextMode(CGTextDrawingMode mode) {
  EndLine();
  Write({static_cast<CGFloat>(mode)}, "Tr\n");
}

void PdfContent::GraphicsState(std::string_view name) {
  EndLine();
  WriteNamed(name, " gs\n");
}

void PdfContent::Path(const CGPath& path) {
  EndText();
  path.ForEach([this](CGPath::Element element, const CGPoint* points) {
    char* out = text_.Room(kOperationRoom);
    for (std::size_t i = 0; i < CGPath::PointCount(element); ++i) {
      out = WritePoint(out, points[i]);
    }
    for (const char letter : kPathOperators[static_cast<std::size_t>(element)])
      *out++ = letter;
    EndOperatorAt(out);
  });
}

void PdfContent::Paint(CGPathDrawingMode mode) {
  Write(kPaintOperators[mode]);
}

void PdfContent::Clip(bool isEvenOdd) {
  Write(isEvenOdd ? "W* n\n" : "W n\n");
}

void PdfContent::DrawXObject(std::string_view name) {
  EndText();
  WriteNamed(name, " Do\n");
}

void PdfContent::Shade(std::string_view name) {
  EndText();
  WriteNamed(name, " sh\n");
}

void PdfContent::ShowGlyph(const PdfTextStyle& style, CGPoint origin, std::uint16_t code,
                           int width) {
  const auto gap = line_.Gap(style, origin);
  if (!gap) {
    EndLine();
    StartLine(style, origin);
  }
  char* out = text_.Room(kOperationRoom);
  if (gap.value_or(0) != 0) {
    *out++ = '>';
    out = WriteNumber(out, -*gap);
    *out++ = '<';
  }
  text_.EndAt(WriteHex(out, code, style.codeSize));
  line_.Add(gap.value_or(0), width);
}

void PdfContent::StartLine(const PdfTextStyle& style, CGPoint origin) {
  if (!inText_) Write("BT\n");
  inText_ = true;
  line_.Start(style, origin);
  if (font_.name != style.font || font_.size != style.size) {
    font_ = {std::string(style.font), style.size};
    text_.Append(font_.name);
    text_.Append(" ");
    Write({font_.size}, "Tf\n");
  }
  const CGAffineTransform& t = line_.Matrix();
  Write({t.a, t.b, t.c, t.d, t.tx, t.ty}, "Tm\n");
  text_.Append("[<");
}

void PdfContent::EndLine() {
  if (line_.IsEmpty()) return;
  Write(">]TJ\n");
  line_.Clear();
}

void PdfContent::EndText() {
  EndLine();
  if (inText_) Write("ET\n");
  inText_ = false;
}

void PdfContent::Finish() {
  EndText();
  HandOn();
  font_ = {};
}

void PdfContent::HandOn() {
  if (text_.IsEmpty()) return;
  sink_(text_.View());
  text_.Clear();
}

void PdfContent::Write(std::initializer_list<CGFloat> operands, std::string_view op) {
  char* out = text_.Room(kOperationRoom);
  for (const CGFloat operand : operands) {
    out = WriteNumber(out, operand);
    *out++ = ' ';
  }
  EndOperatorAt(std::copy(op.begin(), op.end(), out));
}

void PdfContent::Write(std::string_view op) {
  EndOperatorAt(std::copy(op.begin(), op.end(), text_.Room(op.size())));
}

void PdfContent::WriteNamed(std::string_view name, std::string_view op) {
  text_.Append(name);
  Write(op);
}

void PdfContent::EndOperatorAt(const char* end) {
  text_.EndAt(end);
  if (text_.View().size() >= kPieceSize) HandOn();
}

}  // namespace kelvane
