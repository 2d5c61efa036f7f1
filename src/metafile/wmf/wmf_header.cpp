#include "metafile/wmf/wmf_header.h"

#include "metafile/byte_view.h"
#include "metafile/wmf/wmf_parameters.h"
#include "metafile/wmf/wmf_record_iterator.h"
#include "metafile/wmf/wmf_record_type.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7;
constexpr std::size_t kPlaceableSize = 22;
constexpr std::size_t kPlainSize16 = 18;

/// @param placeable  that header. The words before the checksum, each XORed with the next, make it.
bool IsChecked(ByteView placeable) {
  std::uint16_t sum = 0;
  for (const std::uint16_t word : placeable.Array<std::uint16_t>(kPlaceableSize / 2))
    sum ^= word;
  return sum == 0;
}

/// @return what a placeable header says; nullopt where there is none.
std::optional<WmfPlaceable> ReadPlaceable(ByteView bytes) {
  WmfPlaceable placeable;
  placeable.isChecked = IsChecked(bytes);
  const auto key = bytes.Read<std::uint32_t>();
  bytes.Skip(sizeof(std::uint16_t));  // a handle
  placeable.box = ReadRectangle16(bytes);
  placeable.unitsPerInch = bytes.Read<std::uint16_t>();
  constexpr std::size_t kReservedAndChecksum = 6;
  bytes.Skip(kReservedAndChecksum);
  if (bytes.IsShort() || key != kPlaceableKey) return std::nullopt;
  return placeable;
}

/// @return what a plain header says; nullopt where there is none.
std::optional<WmfPlainHeader> ReadPlain(ByteView bytes) {
  WmfPlainHeader plain;
  plain.kind = bytes.Read<std::uint16_t>();
  const auto headerWords = bytes.Read<std::uint16_t>();
  plain.version = bytes.Read<std::uint16_t>();
  plain.words = bytes.Read<std::uint32_t>();
  plain.objects = bytes.Read<std::uint16_t>();
  plain.maxRecord = bytes.Read<std::uint32_t>();
  bytes.Skip(sizeof(std::uint16_t));  // 0
  const bool isKind = plain.kind == 1 || plain.kind == 2;
  const bool isVersion = plain.version == 0x100 || plain.version == 0x300;
  if (bytes.IsShort() || !isKind || headerWords != kPlainSize16 / 2 || !isVersion)
    return std::nullopt;
  return plain;
}

bool HasOnlyRecords(std::span<const unsigned char> file) {
  WmfRecordIterator records(file, 0);
  std::size_t count = 0;
  while (const auto record = records.Next()) {
    if (WmfRecordName(record->type).empty()) return false;
    ++count;
  }
  return count > 1 && records.End() == WmfEnd::kEndRecord;
}

}  // namespace

std::optional<WmfHeader> ReadWmfHeader(std::span<const unsigned char> file,
                                       std::span<const unsigned char> placeable) {
  WmfHeader header;
  header.placeable = ReadPlaceable(ByteView(file));
  if (header.placeable) {
    header.records = kPlaceableSize;
  } else {
    header.placeable = ReadPlaceable(ByteView(placeable));
  }
  header.plain = ReadPlain(ByteView(file.subspan(header.records)));
  if (header.plain) header.records += kPlainSize16;
  const bool isSure = header.placeable || header.plain || HasOnlyRecords(file);
  return isSure ? std::optional(header) : std::nullopt;
}

}  // namespace metafile
}  // namespace kelvane
