#include "platform/quartz/pdf_content.h"

#include <algorithm>
#include <array>

#include "platform/quartz/pdf_number.h"

namespace kelvane {
namespace {

constexpr std::size_t kPieceSize = std::size_t{1} << 20;

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
  Write("q\n");
}
void PdfContent::Restore() {
  Write("Q\n");
}

void PdfContent::Concat(const CGAffineTransform& t) {
  Write({t.a, t.b, t.c, t.d, t.tx, t.ty}, "cm\n");
}

void PdfContent::FillColor(const CGColor& color) {
  Write({color.red, color.green, color.blue}, "rg\n");
}

void PdfContent::StrokeColor(const CGColor& color) {
  Write({color.red, color.green, color.blue}, "RG\n");
}

void PdfContent::LineWidth(CGFloat width) {
  Write({width}, "w\n");
}

void PdfContent::MiterLimit(CGFloat limit) {
  Write({std::max(limit, CGFloat{1})}, "M\n");
}

void PdfContent::TextMode(CGTextDrawingMode mode) {
  Write({static_cast<CGFloat>(mode)}, "Tr\n");
}

void PdfContent::Path(const CGPath& path) {
  path.ForEach([this](CGPath::Element element, const CGPoint* points) {
    std::array<char, 6 * kNumberRoom> text;
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
  Write(name);
  Write(" Do\n");
}

void PdfContent::ShowText(std::string_view font, const CGTextRun& run) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  Write("BT\n");
  Write(font);
  Write(" ");
  Write({run.size}, "Tf\n");
  const CGAffineTransform& t = run.matrix;
  Write({t.a, t.b, t.c, t.d, t.tx, t.ty}, "Tm\n");
  std::string codes = "<";
  for (const char code : run.codes) {
    codes += kHex[static_cast<unsigned char>(code) >> 4];
    codes += kHex[static_cast<unsigned char>(code) & 15];
  }
  Write(codes);
  Write("> Tj\nET\n");
}

void PdfContent::Finish() {
  if (buffer_.empty()) return;
  sink_(buffer_);
  buffer_.clear();
}

void PdfContent::Write(std::initializer_list<CGFloat> operands, std::string_view op) {
  std::array<char, kNumberRoom> text;
  for (const CGFloat operand : operands) {
    char* end = WriteNumber(text.data(), operand);
    *end++ = ' ';
    buffer_.append(text.data(), end);
  }
  Write(op);
}

// Every operator ends with the text that is written last, so a piece never ends inside one.
void PdfContent::Write(std::string_view text) {
  buffer_ += text;
  if (buffer_.size() >= kPieceSize && text.ends_with('\n')) Finish();
}

}  // namespace kelvane
