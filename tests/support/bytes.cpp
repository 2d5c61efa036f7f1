#include "support/bytes.h"

#include <bit>

namespace kelvane::test {

Bytes& Bytes::F32(float value) {
  return U32(std::bit_cast<std::uint32_t>(value));
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
