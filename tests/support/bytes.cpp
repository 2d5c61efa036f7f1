#include "support/bytes.h"

#include <bit>

namespace kelvane::test {

Bytes& Bytes::F32(float value) {
  return U32(std::bit_cast<std::uint32_t>(value));
}

Bytes& Bytes::BitmapHeader(const BitmapFields& fields) {
  I32(40).I32(fields.width).I32(fields.height).U16(1).U16(fields.bitCount);
  return U32(fields.compression).U32(0).I32(0).I32(0).U32(fields.colorsUsed).U32(0);
}

Bytes& Bytes::Each(std::initializer_list<std::uint32_t> bytes) {
  for (const std::uint32_t byte : bytes)
    U8(byte);
  return *this;
}

Bytes& Bytes::Utf16(std::u16string_view text) {
  for (const char16_t unit : text)
    U16(unit);
  return *this;
}

Bytes& Bytes::Zeros(std::size_t count) {
  data_.insert(data_.end(), count, 0);
  return *this;
}

Bytes& Bytes::Append(const std::vector<unsigned char>& more) {
  data_.insert(data_.end(), more.begin(), more.end());
  return *this;
}

Bytes& Bytes::Scalar(std::uint32_t value, int width) {
  for (int i = 0; i < width; ++i)
    data_.push_back(static_cast<unsigned char>(value >> (8 * i)));
  return *this;
}

}  // namespace kelvane::test
