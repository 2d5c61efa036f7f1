#include "metafile/emf/emf_header.h"

#include <algorithm>
#include <cstdlib>

#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
inline namespace metafile {
namespace {

// Bytes of the header, type and size included, by what it is extended with.
constexpr std::uint32_t kPlainSize = 88;
constexpr std::uint32_t kPixelFormatSize = 100;
constexpr std::uint32_t kMicrometersSize = 108;

/// Where a part behind the header lies, in bytes from the start of the record.
struct Place {
  std::uint32_t size = 0;
  std::uint32_t offset = 0;
};

/// The header ends where the first part behind it begins: short ones have the description where the
/// long ones have fields.
std::uint32_t HeaderSize(std::size_t recordSize, std::size_t descriptionOffset, ByteView bytes) {
  std::size_t size = recordSize;
  if (descriptionOffset >= kPlainSize) size = std::min(size, descriptionOffset);
  if (size >= kPixelFormatSize) {
    const Place format = {bytes.Read<std::uint32_t>(), bytes.Read<std::uint32_t>()};
    if (format.size > 0 && format.offset >= kPixelFormatSize)
      size = std::min<std::size_t>(size, format.offset);
  }
  if (size >= kMicrometersSize) return kMicrometersSize;
  return size >= kPixelFormatSize ? kPixelFormatSize : kPlainSize;
}

/// Micrometres may be text or left-overs where a writer was careless.
bool Agree(std::int32_t micrometers, std::int32_t millimeters) {
  const std::int64_t expected = std::int64_t{millimeters} * 1000;
  return std::abs(micrometers - expected) * 100 <= std::abs(expected);
}

/// @return the units up to the first NUL, taken off the front together with it.
ArrayView<char16_t> TakeText(ArrayView<char16_t>& units) {
  const auto length = static_cast<std::size_t>(
      std::distance(units.begin(), std::find(units.begin(), units.end(), u'\0')));
  const ArrayView<char16_t> text = units.Part(0, length);
  const std::size_t taken = std::min(length + 1, units.size());
  units = units.Part(taken, units.size() - taken);
  return text;
}

}  // namespace

EmfHeader DecodeEmfHeader(ByteView& bytes) {
  EmfHeader header;
  header.bounds = bytes.Read<RectangleL>();
  header.frame = bytes.Read<RectangleL>();
  header.signature = bytes.Read<std::uint32_t>();
  header.version = bytes.Read<std::uint32_t>();
  header.bytes = bytes.Read<std::uint32_t>();
  header.records = bytes.Read<std::uint32_t>();
  header.handles = bytes.Read<std::uint16_t>();
  bytes.Skip(2);
  const auto descriptionLength = bytes.Read<std::uint32_t>();
  const auto descriptionOffset = bytes.Read<std::uint32_t>();
  header.palEntries = bytes.Read<std::uint32_t>();
  header.device = bytes.Read<SizeL>();
  header.millimeters = bytes.Read<SizeL>();
  if (bytes.IsShort()) return header;

  ByteView all = bytes;  // what lies astray shortens only this one
  const bool isDescribed = descriptionLength > 0 && descriptionOffset >= kPlainSize;
  header.headerSize = HeaderSize(bytes.Bytes().size(), isDescribed ? descriptionOffset : 0, bytes);
  if (isDescribed) {
    auto description = all.ArrayAt<char16_t>(descriptionOffset, descriptionLength);
    header.creator = TakeText(description);
    header.title = TakeText(description);
  }
  if (header.headerSize >= kPixelFormatSize) {
    const Place format = {bytes.Read<std::uint32_t>(), bytes.Read<std::uint32_t>()};
    header.hasOpenGL = bytes.Read<std::uint32_t>() != 0;
    header.pixelFormat = all.Slice(format.offset, format.size).Read<PixelFormatDescriptor>();
  }
  if (header.headerSize >= kMicrometersSize) {
    const auto micrometers = bytes.Read<SizeL>();
    if (Agree(micrometers.cx, header.millimeters.cx) &&
        Agree(micrometers.cy, header.millimeters.cy))
      header.micrometers = micrometers;
  }
  return header;
}

std::optional<EmfHeader> ReadEmfHeader(std::span<const unsigned char> file) {
  auto record = EmfRecordIterator(file).Next();
  if (!record || record->type != EMR_HEADER) return std::nullopt;
  const EmfHeader header = DecodeEmfHeader(record->bytes);
  if (record->bytes.IsShort() || header.signature != kEmfSignature) return std::nullopt;
  return header;
}

}  // namespace metafile
}  // namespace kelvane
