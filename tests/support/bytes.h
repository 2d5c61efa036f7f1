#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace kelvane::test {

/// What varies in a BITMAPINFOHEADER.
struct BitmapFields {
  std::int32_t width = 1;
  std::int32_t height = 1;
  std::uint32_t bitCount = 24;
  std::uint32_t compression = 0;  // BI_RGB
  std::uint32_t colorsUsed = 0;
};

/// Bytes written readably, little-endian, in the order of the calls.
class Bytes {
 public:
  Bytes& U8(std::uint32_t value) { return Scalar(value, 1); }
  Bytes& U16(std::uint32_t value) { return Scalar(value, 2); }
  Bytes& U32(std::uint32_t value) { return Scalar(value, 4); }
  Bytes& I16(std::int32_t value) { return Scalar(static_cast<std::uint32_t>(value), 2); }
  Bytes& I32(std::int32_t value) { return Scalar(static_cast<std::uint32_t>(value), 4); }
  Bytes& F32(float value);
  Bytes& Point(std::int32_t x, std::int32_t y) { return I16(x).I16(y); }  // Point16
  Bytes& PointL(std::int32_t x, std::int32_t y) { return I32(x).I32(y); }
  Bytes& Rectangle(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    return I32(left).I32(top).I32(right).I32(bottom);
  }
  Bytes& BitmapHeader(const BitmapFields& fields);                            // BITMAPINFOHEADER
  Bytes& Color(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {  // RGBQuad
    return U8(blue).U8(green).U8(red).U8(0);
  }
  Bytes& Each(std::initializer_list<std::uint32_t> bytes);  // one byte each
  Bytes& Utf16(std::u16string_view text);
  Bytes& Zeros(std::size_t count);
  Bytes& Append(const std::vector<unsigned char>& more);

  [[nodiscard]] const std::vector<unsigned char>& Data() const { return data_; }
  [[nodiscard]] std::size_t Size() const { return data_.size(); }

 private:
  Bytes& Scalar(std::uint32_t value, int width);

  std::vector<unsigned char> data_;
};

}  // namespace kelvane::test
