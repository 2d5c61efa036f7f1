#include "support/plus_records.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kObject = 0x4008;
constexpr std::uint32_t kFillRects = 0x400A;
constexpr std::uint32_t kCommentIdentifier = 0x2B464D45;

std::uint32_t SizeOf(const Bytes& bytes) {
  return static_cast<std::uint32_t>(bytes.Size());
}

Bytes OneRectangle(std::uint32_t brush, At corner, At size) {
  return Bytes().U32(brush).U32(1).Point(corner.x, corner.y).Point(size.x, size.y);
}

}  // namespace

PlusRecords& PlusRecords::Record(std::uint32_t type, std::uint32_t flags, const Bytes& data) {
  constexpr std::uint32_t kHeadSize = 12;
  const std::uint32_t filling = (4 - SizeOf(data) % 4) % 4;
  const std::uint32_t size = SizeOf(data) + filling;
  records_.U16(type).U16(flags).U32(kHeadSize + size).U32(size);
  records_.Append(data.Data()).Zeros(filling);
  return *this;
}

PlusRecords& PlusRecords::Header(std::uint32_t flags, std::uint32_t version) {
  return Record(0x4001, flags, Bytes().U32(version).U32(1).U32(96).U32(96));
}

PlusRecords& PlusRecords::Object(std::uint32_t kind, std::uint32_t slot, const Bytes& object) {
  return Record(kObject, kind << 8 | slot, Bytes().U32(kPlusVersion).Append(object.Data()));
}

PlusRecords& PlusRecords::FillRectangle(std::uint32_t argb, At corner, At size) {
  return Record(kFillRects, kPlusColor | kPlusSmall, OneRectangle(argb, corner, size));
}

PlusRecords& PlusRecords::FillWithBrush(std::uint32_t slot, At corner, At size) {
  return Record(kFillRects, kPlusSmall, OneRectangle(slot, corner, size));
}

PlusRecords& PlusRecords::Append(const PlusRecords& more) {
  records_.Append(more.records_.Data());
  return *this;
}

Metafile& PlusRecords::AddTo(Metafile& metafile) const {
  const Bytes identifier = Bytes().U32(kCommentIdentifier);
  return metafile.Record(EMR_GDICOMMENT, Bytes()
                                             .U32(SizeOf(identifier) + SizeOf(records_))
                                             .Append(identifier.Data())
                                             .Append(records_.Data()));
}

}  // namespace kelvane::test
