#include "metafile/bmp_file.h"

#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {

std::optional<DibBytes> ReadBmpFile(std::span<const unsigned char> file) {
  constexpr std::uint16_t kSignature = 0x4D42;  // "BM"
  constexpr std::size_t kFileHeaderSize = 14;
  ByteView bytes(file);
  if (bytes.Read<std::uint16_t>() != kSignature) return std::nullopt;
  bytes.Skip(2 * sizeof(std::uint32_t));  // size of the file, and nothing
  const auto pixels = bytes.Read<std::uint32_t>();
  if (bytes.IsShort() || pixels < kFileHeaderSize || pixels > file.size()) return std::nullopt;
  return DibBytes{file.subspan(kFileHeaderSize, pixels - kFileHeaderSize), file.subspan(pixels)};
}

}  // namespace metafile
}  // namespace kelvane
