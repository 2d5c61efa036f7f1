#include "platform/pdf/pdf_number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "base/number.h"

namespace kelvane {

QPDFObjectHandle PdfNumber(double value) {
  constexpr double kLastWithFraction = 0x1p52;
  std::array<char, 400> text;
  char* end = text.data();
  const auto single = static_cast<CGFloat>(value);
  if (single == value || std::abs(value) > kLastWithFraction) {
    end = WriteNumber(end, single);
  } else {
    end = std::to_chars(end, end + text.size(), value, std::chars_format::fixed).ptr;
  }
  return QPDFObjectHandle::newReal(std::string(text.data(), end));
}

// The far corner may need more digits than origin and size.
QPDFObjectHandle PdfBox(const CGRect& box) {
  const double x = box.origin.x;
  const double y = box.origin.y;
  return QPDFObjectHandle::newArray(
      {PdfNumber(x), PdfNumber(y), PdfNumber(x + box.size.width), PdfNumber(y + box.size.height)});
}

}  // namespace kelvane
