#include "metafile/wmf/wmf_object_records.h"

#include <algorithm>
#include <array>

namespace kelvane {
inline namespace metafile {

WmfCreateFontIndirectRecord DecodeWmfCreateFontIndirect(ByteView& bytes) {
  constexpr std::size_t kNumbers = kStoredSize<LogFont16> - sizeof(LogFont16::faceName);
  if (bytes.Remaining() < kNumbers) {
    bytes.Fail();
    return {};
  }
  const ByteView stored = bytes.Split(std::min(bytes.Remaining(), kStoredSize<LogFont16>));
  std::array<unsigned char, kStoredSize<LogFont16>> whole{};
  std::ranges::copy(stored.Bytes(), whole.begin());
  return {ByteView(whole).Read<LogFont16>()};
}

}  // namespace metafile
}  // namespace kelvane
