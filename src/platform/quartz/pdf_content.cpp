#include "platform/quartz/pdf_content.h"

#include <algorithm>
#include <array>

#include "platform/quartz/pdf_number.h"

namespace kelvane {
namespace {

constexpr std::size_t kPieceSize = std::size_t{1} << 20;
constexpr std::size_t kMostOperands = 6;  // numbers of one operator

constexpr std::array<std::string_view, 5> kPaintOperators = {"f\n", "f*\n", "S\n", "B\n", "B*\n"};

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

void PdfContent::LineWidth(CGFloat width) {
  EndLine();
  Write({width}, "w\n");
}

void PdfContent::MiterLimit(CGFloat limit) {
  EndLine();
  Write({std::max(limit, CGFloat{1})}, "M\n");
}

void PdfContent::TextMode(CGTextDrawingMode mode) {
  EndLine();
  Write({static_cast<CGFloat>(mode)}, "Tr\n");
}

void PdfContent::Path(const CGPath& path) {
  EndText();
  path.ForEach([this](CGPath::Element element, const CGPoint* points) {
    std::array<char, kMostOperands * kNumberRoom> text;
    char* out = text.data();
    for (std::size_t i = 0; i < CGPath::PointCount(element); ++i) {
      out = WritePoint(out, points[i]);
    }
    const std::string_view name = kPathOperators[static_cast<std::size_t>(element)];
    out = std::copy(name.begin(), name.end(), out);
    Write({text.data(), static_cast<std::size_t>(out - text.data())});
  });
}

void PdfContent::Paint(CGPathDrawingMode mode) {
  Write(kPaintOperators[mode]);
}

void PdfContent::Clip() {
  Write("W n\n");
}

void PdfContent::DrawXObject(std::string_view name) {
  EndText();
  Write(name);
  Write(" Do\n");
}

void PdfContent::ShowGlyph(const PdfTextStyle& style, CGPoint origin, std::uint16_t code,
                           CGFloat width) {
  const auto gap = line_.Gap(style, origin);
  if (!gap) {
    EndLine();
    line_.Start(style, origin);
  }
  line_.Add(gap.value_or(0), code, width);
}

void PdfContent::EndLine() {
  if (line_.IsEmpty()) return;
  if (!inText_) Write("BT\n");
  inText_ = true;
  if (font_.name != line_.Font() || font_.size != line_.Size()) {
    font_ = {std::string(line_.Font()), line_.Size()};
    Write(font_.name);
    Write(" ");
    Write({font_.size}, "Tf\n");
  }
  const CGAffineTransform& t = line_.Matrix();
  Write({t.a, t.b, t.c, t.d, t.tx, t.ty}, "Tm\n");
  Write(line_.Operand());
  Write("TJ\n");
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
  if (buffer_.empty()) return;
  sink_(buffer_);
  buffer_.clear();
}

void PdfContent::Write(std::initializer_list<CGFloat> operands, std::string_view op) {
  std::array<char, kMostOperands * kNumberRoom> text;
  char* out = text.data();
  for (const CGFloat operand : operands) {
    out = WriteNumber(out, operand);
    *out++ = ' ';
  }
  buffer_.append(text.data(), out);
  Write(op);
}

// Every operator ends with the text that is written last, so a piece never ends inside one.
void PdfContent::Write(std::string_view text) {
  buffer_ += text;
  if (buffer_.size() >= kPieceSize && text.ends_with('\n')) HandOn();
}

}  // namespace kelvane
