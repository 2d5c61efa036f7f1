// Windows metafiles: the bytes as they are, and as records whose framing is right, played onto a
// page and printed.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "metafile/wmf/wmf_record_type.h"
#include "playing.h"
#include "support/windows_metafile.h"

namespace {

using Input = std::span<const unsigned char>;

std::uint16_t TypeOf(unsigned lowByte) {
  for (unsigned high = 0; high < 16; ++high) {
    const auto type = static_cast<std::uint16_t>(high << 8U | lowByte);
    if (!kelvane::WmfRecordName(type).empty()) return type;
  }
  return static_cast<std::uint16_t>(lowByte);
}

/// Each record is the low byte of its type, which tells it from all others, how many words its
/// parameters have, and these.
std::vector<unsigned char> Framed(Input input) {
  kelvane::test::WindowsMetafile metafile;
  while (input.size() >= 2) {
    const std::size_t size = std::min(std::size_t{2} * input[1], input.size() - 2);
    kelvane::test::Bytes body;
    for (const unsigned char byte : input.subspan(2, size))
      body.U8(byte);
    metafile.Record(TypeOf(input[0]), body);
    input = input.subspan(2 + size);
  }
  return metafile.Build();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  kelvane::fuzzing::PlayAndPrint({data, size});
  kelvane::fuzzing::PlayAndPrint(Framed({data, size}));
  return 0;
}
