#include "frontends/inspection/shared_fields.h"

namespace kelvane {
namespace {

constexpr std::uint32_t kCoreHeaderSize = 12;

/// BITMAPCOREHEADER ([MS-WMF] 2.2.2.2).
void AddCoreHeader(FieldWriter& fields, const std::string& owner, ByteView& header) {
  fields.Field("Width" + owner, header.Read<std::uint16_t>());
  fields.Field("Height" + owner, header.Read<std::uint16_t>());
  header.Skip(sizeof(std::uint16_t));
  fields.Field("BitCount" + owner, header.Read<std::uint16_t>());
}

/// What all longer headers begin with ([MS-WMF] 2.2.2.3).
void AddInfoHeader(FieldWriter& fields, const std::string& owner, ByteView& header) {
  fields.Field("Width" + owner, header.Read<std::int32_t>());
  fields.Field("Height" + owner, header.Read<std::int32_t>());
  header.Skip(sizeof(std::uint16_t));
  fields.Field("BitCount" + owner, header.Read<std::uint16_t>());
  fields.Field("Compression" + owner, header.Read<DibCompression>());
  constexpr std::size_t kImageSizeAndResolution = 12;
  header.Skip(kImageSizeAndResolution);
  fields.Field("ColorUsed" + owner, header.Read<std::uint32_t>());
}

}  // namespace

void AddRegion(FieldWriter& fields, const RegionData& region) {
  fields.Field("RegionBounds", region.bounds).Field("RgnData", region.rectangles);
}

void AddDib(FieldWriter& fields, const std::string& owner, const StoredDib& dib) {
  if (dib.IsEmpty()) return;
  ByteView header = dib.header;
  const auto size = header.Read<std::uint32_t>();
  fields.Field("HeaderSize" + owner, size);
  if (size == kCoreHeaderSize) {
    AddCoreHeader(fields, owner, header);
  } else {
    AddInfoHeader(fields, owner, header);
  }
  fields.Field("cbBmi" + owner, dib.header.Bytes().size());
  fields.Field("cbBits" + owner, dib.pixels.Bytes().size());
}

}  // namespace kelvane
