#include "metafile/wmf/wmf_bitmap_records.h"

#include "metafile/dib_header.h"
#include "metafile/wmf/wmf_parameters.h"
#include "metafile/wmf/wmf_record_type.h"

namespace kelvane {
inline namespace metafile {
namespace {

/// The fields before the bits; a record may have others between.
Bitmap16 ReadBitmap16Fields(ByteView& bytes) {
  Bitmap16 bitmap;
  bytes.Skip(sizeof(std::uint16_t));  // 0
  bitmap.width = bytes.Read<std::int16_t>();
  bitmap.height = bytes.Read<std::int16_t>();
  bitmap.widthBytes = bytes.Read<std::int16_t>();
  bitmap.planes = bytes.Read<std::uint8_t>();
  bitmap.bitsPixel = bytes.Read<std::uint8_t>();
  return bitmap;
}

void ReadBits(ByteView& bytes, Bitmap16& bitmap) {
  if (bitmap.widthBytes <= 0 || bitmap.height <= 0) return;
  bitmap.bits = bytes.Split(static_cast<std::size_t>(bitmap.widthBytes) *
                            static_cast<std::size_t>(bitmap.height));
}

void ReadBitmap(ByteView& bytes, WmfBlitRecord<Bitmap16>& record) {
  record.bitmap = ReadBitmap16Fields(bytes);
  ReadBits(bytes, record.bitmap);
}

void ReadBitmap(ByteView& bytes, WmfBlitRecord<StoredDib>& record) {
  record.bitmap = ReadPackedDib(bytes, record.usage);
}

/// The high byte of a type is how many words the arguments took, one of them in place of a bitmap.
bool HasBitmap(const ByteView& bytes, WmfRecordType type) {
  constexpr std::size_t kHeadWords = 3;
  return bytes.Bytes().size() != ((type >> 8U) + kHeadWords) * sizeof(std::uint16_t);
}

template <class Bitmap>
WmfBlitRecord<Bitmap> ReadBlit(ByteView& bytes, WmfRecordType type, bool hasSourceSize) {
  WmfBlitRecord<Bitmap> record;
  const bool hasBitmap = HasBitmap(bytes, type);
  record.rop = bytes.Read<TernaryRasterOperation>();
  if (hasSourceSize) record.sourceSize = ReadReversedSize(bytes);
  record.source = ReadReversedPoint(bytes);
  if (!hasBitmap) bytes.Skip(sizeof(std::uint16_t));
  record.size = ReadReversedSize(bytes);
  record.destination = ReadReversedPoint(bytes);
  if (!hasSourceSize) record.sourceSize = record.size;
  if (hasBitmap) ReadBitmap(bytes, record);
  return record;
}

}  // namespace

WmfBlitRecord<Bitmap16> DecodeWmfBitBlt(ByteView& bytes) {
  return ReadBlit<Bitmap16>(bytes, META_BITBLT, false);
}

WmfBlitRecord<Bitmap16> DecodeWmfStretchBlt(ByteView& bytes) {
  return ReadBlit<Bitmap16>(bytes, META_STRETCHBLT, true);
}

WmfBlitRecord<StoredDib> DecodeWmfDibBitBlt(ByteView& bytes) {
  return ReadBlit<StoredDib>(bytes, META_DIBBITBLT, false);
}

WmfBlitRecord<StoredDib> DecodeWmfDibStretchBlt(ByteView& bytes) {
  return ReadBlit<StoredDib>(bytes, META_DIBSTRETCHBLT, true);
}

WmfBlitRecord<StoredDib> DecodeWmfStretchDib(ByteView& bytes) {
  WmfBlitRecord<StoredDib> record;
  record.rop = bytes.Read<TernaryRasterOperation>();
  record.usage = ReadEnumeration16<DibUsage>(bytes);
  record.sourceSize = ReadReversedSize(bytes);
  record.source = ReadReversedPoint(bytes);
  record.size = ReadReversedSize(bytes);
  record.destination = ReadReversedPoint(bytes);
  record.bitmap = ReadPackedDib(bytes, record.usage);
  return record;
}

WmfSetDibToDevRecord DecodeWmfSetDibToDev(ByteView& bytes) {
  WmfSetDibToDevRecord record;
  record.usage = ReadEnumeration16<DibUsage>(bytes);
  record.scans = bytes.Read<std::uint16_t>();
  record.startScan = bytes.Read<std::uint16_t>();
  record.source = ReadReversedPoint(bytes);
  record.size = ReadReversedSize(bytes);
  record.destination = ReadReversedPoint(bytes);
  record.dib = ReadPackedDib(bytes, record.usage);
  return record;
}

WmfPatBltRecord DecodeWmfPatBlt(ByteView& bytes) {
  const auto rop = bytes.Read<TernaryRasterOperation>();
  const SizeL size = ReadReversedSize(bytes);
  return {ReadReversedPoint(bytes), size, rop};
}

WmfPatternBrushRecord DecodeWmfDibCreatePatternBrush(ByteView& bytes) {
  WmfPatternBrushRecord record;
  record.style = ReadEnumeration16<BrushStyle>(bytes);
  record.usage = ReadEnumeration16<DibUsage>(bytes);
  const auto stored = ByteView(bytes).Split(bytes.Remaining());
  if (record.style == BS_PATTERN && DibHeaderSize(stored.Bytes(), record.usage) == 0) {
    record.bitmap = ReadBitmap16Fields(bytes);
    ReadBits(bytes, record.bitmap);
  } else {
    record.dib = ReadPackedDib(bytes, record.usage);
  }
  return record;
}

WmfPatternBrushRecord DecodeWmfCreatePatternBrush(ByteView& bytes) {
  constexpr std::size_t kPointerAndReserved = 22;
  WmfPatternBrushRecord record;
  record.style = BS_PATTERN;
  record.bitmap = ReadBitmap16Fields(bytes);
  bytes.Skip(kPointerAndReserved);
  ReadBits(bytes, record.bitmap);
  return record;
}

}  // namespace metafile
}  // namespace kelvane
