#include "metafile/jpeg_header.h"

#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {
namespace {

// Second bytes of markers; the first is 0xFF.
constexpr std::uint8_t kStartOfImage = 0xD8;
constexpr std::uint8_t kEndOfImage = 0xD9;
constexpr std::uint8_t kStartOfScan = 0xDA;
constexpr std::uint8_t kTemporary = 0x01;
constexpr std::uint8_t kFirstRestart = 0xD0;
constexpr std::uint8_t kLastRestart = 0xD7;
constexpr std::uint8_t kFirstFrame = 0xC0;
constexpr std::uint8_t kLastFrame = 0xCF;
constexpr std::uint8_t kProgressive = 0xC2;  // baseline and extended come before it

// Among those of frames, and of something else.
constexpr std::uint8_t kHuffmanTables = 0xC4;
constexpr std::uint8_t kReserved = 0xC8;
constexpr std::uint8_t kArithmeticConditions = 0xCC;

std::uint16_t ReadBigEndian16(ByteView& bytes) {
  const auto high = bytes.Read<std::uint8_t>();
  const auto low = bytes.Read<std::uint8_t>();
  return static_cast<std::uint16_t>(high << 8 | low);
}

/// @return the second byte of the marker that comes next, 0 when there is none.
std::uint8_t ReadMarker(ByteView& bytes) {
  if (bytes.Read<std::uint8_t>() != 0xFF) return 0;
  auto marker = bytes.Read<std::uint8_t>();
  while (marker == 0xFF)  // any number of them may fill up
    marker = bytes.Read<std::uint8_t>();
  return marker;
}

bool IsFrame(std::uint8_t marker) {
  return marker >= kFirstFrame && marker <= kLastFrame && marker != kHuffmanTables &&
         marker != kReserved && marker != kArithmeticConditions;
}

bool StandsAlone(std::uint8_t marker) {
  return marker == kTemporary || (marker >= kFirstRestart && marker <= kLastRestart);
}

std::optional<JpegHeader> ReadFrame(ByteView bytes) {
  bytes.Skip(sizeof(std::uint16_t));  // length
  const auto precision = bytes.Read<std::uint8_t>();
  JpegHeader header;
  header.height = ReadBigEndian16(bytes);
  header.width = ReadBigEndian16(bytes);
  header.components = bytes.Read<std::uint8_t>();
  if (bytes.IsShort() || precision != 8 || header.width == 0 || header.height == 0) {
    return std::nullopt;
  }
  if (header.components != 1 && header.components != 3) return std::nullopt;
  return header;
}

}  // namespace

std::optional<JpegHeader> ReadJpegHeader(std::span<const unsigned char> file) {
  ByteView bytes(file);
  if (ReadMarker(bytes) != kStartOfImage) return std::nullopt;
  while (!bytes.IsShort()) {
    const std::uint8_t marker = ReadMarker(bytes);
    if (marker == 0 || marker == kStartOfScan || marker == kEndOfImage) return std::nullopt;
    if (StandsAlone(marker)) continue;
    if (IsFrame(marker)) return marker <= kProgressive ? ReadFrame(bytes) : std::nullopt;
    const std::uint16_t length = ReadBigEndian16(bytes);  // of itself, too
    if (length < sizeof(length)) return std::nullopt;
    bytes.Skip(length - sizeof(length));
  }
  return std::nullopt;
}

}  // namespace metafile
}  // namespace kelvane
