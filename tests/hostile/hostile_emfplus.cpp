#include "hostile/hostile_emfplus.h"

namespace kelvane::test {

std::vector<HostileEmfPlus> HostileEmfPlusRows() {
  std::vector<HostileEmfPlus> all;
  for (const auto& group : {EmfPlusOfBadRecords(), EmfPlusOfBadNumbers(), EmfPlusOfMetafiles(),
                            EmfPlusThatAsksForMuch()}) {
    all.insert(all.end(), group.begin(), group.end());
  }
  return all;
}

// Records.

PlusRecords DrawLine(std::uint32_t pen, At from, At to) {
  return PlusRecords().Record(0x400D, kPlusSmall | pen,
                              Bytes().U32(2).Point(from.x, from.y).Point(to.x, to.y));
}

PlusRecords FillSquare(std::uint32_t brush) {
  return PlusRecords().FillWithBrush(brush, {0, 0}, {9, 9});
}

PlusRecords DrawImage(std::uint32_t image) {
  Bytes source = Bytes().U32(kNoAttributes).U32(2).F32(0).F32(0).F32(9).F32(9);
  return PlusRecords().Record(0x401A, kPlusSmall | image, source.Point(0, 0).Point(9, 9));
}

PlusRecords Repeated(const PlusRecords& records, int times) {
  PlusRecords all;
  for (int i = 0; i < times; ++i)
    all.Append(records);
  return all;
}

PlusRecords Joined(const std::vector<PlusRecords>& parts) {
  PlusRecords all;
  for (const PlusRecords& part : parts)
    all.Append(part);
  return all;
}

PlusRecords Object(std::uint32_t kind, std::uint32_t slot, const Bytes& object) {
  return PlusRecords().Object(kind, slot, object);
}

// Objects.

Bytes SolidBrush() {
  return Bytes().U32(0).U32(kBlue);
}

Bytes Pen(float width, std::uint32_t flags, const Bytes& fields) {
  Bytes pen = Bytes().U32(0).U32(flags).U32(0).F32(width).Append(fields.Data());
  return pen.U32(kPlusVersion).Append(SolidBrush().Data());
}

Bytes DashedPen(float width, const std::vector<float>& dashes) {
  constexpr std::uint32_t kCustomStyle = 5;
  constexpr std::uint32_t kRoundEnds = 2;
  Bytes fields = Bytes().U32(kCustomStyle).U32(kRoundEnds);
  fields.U32(static_cast<std::uint32_t>(dashes.size()));
  for (const float dash : dashes)
    fields.F32(dash);
  return Pen(width, 0x20 | 0x40 | 0x100, fields);
}

Bytes ImageOf(const std::vector<unsigned char>& file, std::uint32_t type) {
  if (type == 0) return Bytes().U32(1).Zeros(16).U32(1).Append(file);
  return Bytes().U32(2).U32(type).U32(static_cast<std::uint32_t>(file.size())).Append(file);
}

std::vector<unsigned char> FileOf(const PlusRecords& records) {
  Metafile metafile;
  return Joined({PlusRecords().Header(), records}).AddTo(metafile).Build();
}

}  // namespace kelvane::test
