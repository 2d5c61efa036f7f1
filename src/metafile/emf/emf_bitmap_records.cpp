#include "metafile/emf/emf_bitmap_records.h"

namespace kelvane {
inline namespace metafile {
namespace {

/// A source, and where its bitmap is to be found once all fields are read.
struct SourceFields {
  BlitSource source;
  DibPlace place;
};

/// The fields that every blit has in the same order behind the position of its source.
void ReadTransformToPlace(ByteView& bytes, SourceFields& fields) {
  fields.source.transform = bytes.Read<XForm>();
  fields.source.background = bytes.Read<ColorRef>();
  fields.source.usage = bytes.Read<DibUsage>();
  fields.place = bytes.Read<DibPlace>();
}

SourceFields ReadSource(ByteView& bytes) {
  SourceFields fields;
  fields.source.position = bytes.Read<PointL>();
  ReadTransformToPlace(bytes, fields);
  return fields;
}

BlitSource ReadSourceWithSize(ByteView& bytes) {
  SourceFields fields = ReadSource(bytes);
  fields.source.size = bytes.Read<SizeL>();
  fields.source.dib = DibAt(bytes, fields.place);
  return fields.source;
}

BlitMask ReadMask(ByteView& bytes) {
  BlitMask mask = {bytes.Read<PointL>(), bytes.Read<DibUsage>(), {}};
  const auto place = bytes.Read<DibPlace>();
  mask.dib = DibAt(bytes, place);
  return mask;
}

}  // namespace

BlitRecord DecodeBitBlt(ByteView& bytes) {
  BlitRecord record = {bytes.Read<RectangleL>(),
                       bytes.Read<PointL>(),
                       bytes.Read<SizeL>(),
                       bytes.Read<TernaryRasterOperation>(),
                       {}};
  const SourceFields fields = ReadSource(bytes);
  record.source = fields.source;
  record.source.size = record.size;
  record.source.dib = DibAt(bytes, fields.place);
  return record;
}

BlitRecord DecodeStretchBlt(ByteView& bytes) {
  return {bytes.Read<RectangleL>(), bytes.Read<PointL>(), bytes.Read<SizeL>(),
          bytes.Read<TernaryRasterOperation>(), ReadSourceWithSize(bytes)};
}

MaskBltRecord DecodeMaskBlt(ByteView& bytes) {
  MaskBltRecord record = {bytes.Read<RectangleL>(),
                          bytes.Read<PointL>(),
                          bytes.Read<SizeL>(),
                          bytes.Read<std::uint32_t>(),
                          {},
                          {}};
  const SourceFields fields = ReadSource(bytes);
  record.source = fields.source;
  record.source.size = record.size;
  record.mask = ReadMask(bytes);
  record.source.dib = DibAt(bytes, fields.place);
  return record;
}

PlgBltRecord DecodePlgBlt(ByteView& bytes) {
  PlgBltRecord record = {bytes.Read<RectangleL>(), bytes.Read<std::array<PointL, 3>>(), {}, {}};
  SourceFields fields;
  fields.source.position = bytes.Read<PointL>();
  fields.source.size = bytes.Read<SizeL>();
  ReadTransformToPlace(bytes, fields);
  record.mask = ReadMask(bytes);
  record.source = fields.source;
  record.source.dib = DibAt(bytes, fields.place);
  return record;
}

AlphaBlendRecord DecodeAlphaBlend(ByteView& bytes) {
  return {bytes.Read<RectangleL>(), bytes.Read<PointL>(), bytes.Read<SizeL>(),
          bytes.Read<BlendFunction>(), ReadSourceWithSize(bytes)};
}

TransparentBltRecord DecodeTransparentBlt(ByteView& bytes) {
  return {bytes.Read<RectangleL>(), bytes.Read<PointL>(), bytes.Read<SizeL>(),
          bytes.Read<ColorRef>(), ReadSourceWithSize(bytes)};
}

SetDIBitsToDeviceRecord DecodeSetDIBitsToDevice(ByteView& bytes) {
  SetDIBitsToDeviceRecord record;
  record.bounds = bytes.Read<RectangleL>();
  record.destination = bytes.Read<PointL>();
  record.source = bytes.Read<PointL>();
  record.size = bytes.Read<SizeL>();
  const auto place = bytes.Read<DibPlace>();
  record.usage = bytes.Read<DibUsage>();
  record.startScan = bytes.Read<std::uint32_t>();
  record.scans = bytes.Read<std::uint32_t>();
  record.dib = DibAt(bytes, place);
  return record;
}

StretchDIBitsRecord DecodeStretchDIBits(ByteView& bytes) {
  StretchDIBitsRecord record;
  record.bounds = bytes.Read<RectangleL>();
  record.destination = bytes.Read<PointL>();
  record.source = bytes.Read<PointL>();
  record.sourceSize = bytes.Read<SizeL>();
  const auto place = bytes.Read<DibPlace>();
  record.usage = bytes.Read<DibUsage>();
  record.rop = bytes.Read<TernaryRasterOperation>();
  record.size = bytes.Read<SizeL>();
  record.dib = DibAt(bytes, place);
  return record;
}

}  // namespace metafile
}  // namespace kelvane
