#include "metafile/emf/emf_object_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

using Numbers = std::vector<std::uint32_t>;
using Uchars = std::vector<unsigned char>;

TEST(ObjectRecord, HasAnIndex) {
  EXPECT_EQ(Decode(DecodeObject, Bytes().U32(0x80000005))->ihObject, NULL_BRUSH);
}

TEST(CreatePenRecord, HasAPen) {
  const auto record = Decode(DecodeCreatePen, Bytes().U32(1).U32(2).PointL(3, 4).U32(0x332211));
  EXPECT_EQ(record->ihPen, 1U);
  EXPECT_EQ(record->pen, (LogPen{PS_DOT, {3, 4}, {0x332211}}));
}

/// A pen of the table's entry 1, whose pattern lies at the offsets.
Bytes ExtPen(const Numbers& place, const Numbers& styleEntries) {
  Bytes bytes = Bytes().U32(1);
  for (const std::uint32_t number : place)
    bytes.U32(number);
  bytes.U32(0x10007).U32(5).U32(2).U32(0x332211).U32(4);
  bytes.U32(static_cast<std::uint32_t>(styleEntries.size()));
  for (const std::uint32_t entry : styleEntries)
    bytes.U32(entry);
  return bytes;
}

TEST(ExtCreatePenRecord, HasAPenAndTheLengthsOfItsDashes) {
  const auto record = Decode(DecodeExtCreatePen, ExtPen({0, 0, 0, 0}, {6, 7, 8}));
  EXPECT_EQ(record->ihPen, 1U);
  EXPECT_EQ(record->pen,
            (LogPenEx{PenStyle{PS_GEOMETRIC | PS_USERSTYLE}, 5, BS_HATCHED, {0x332211}, 4, 3}));
  EXPECT_EQ(Elements(record->styleEntries), (Numbers{6, 7, 8}));
  EXPECT_TRUE(record->pattern.IsEmpty());
}

TEST(ExtCreatePenRecord, MayHaveAPatternBehindASpareEntry) {
  const auto record =
      Decode(DecodeExtCreatePen, ExtPen({56, 3, 60, 2}, {}).U32(0).Each({1, 2, 3, 0}).Each({4, 5}));
  EXPECT_TRUE(record->styleEntries.empty());
  EXPECT_EQ(BytesOf(record->pattern.header), (Uchars{1, 2, 3}));
  EXPECT_EQ(BytesOf(record->pattern.pixels), (Uchars{4, 5}));
}

TEST(ExtCreatePenRecord, MayHaveTheSpareEntryOrNot) {
  const auto record = Decode(DecodeExtCreatePen, ExtPen({0, 0, 0, 0}, {}).U32(0), 44);
  EXPECT_TRUE(record->styleEntries.empty());
}

TEST(CreateBrushIndirectRecord, HasABrush) {
  const auto record = Decode(DecodeCreateBrushIndirect, Bytes().U32(1).U32(2).U32(0x332211).U32(3));
  EXPECT_EQ(record->ihBrush, 1U);
  EXPECT_EQ(record->brush, (LogBrush{BS_HATCHED, {0x332211}, HS_BDIAGONAL}));
}

TEST(CreatePatternBrushRecord, HasABitmap) {
  const auto record =
      Decode(DecodeCreatePatternBrush,
             Bytes().U32(1).U32(2).U32(36).U32(4).U32(40).U32(1).U32(0).Each({1, 2, 3, 4}).U8(5));
  EXPECT_EQ(record->ihBrush, 1U);
  EXPECT_EQ(record->usage, DIB_PAL_INDICES);
  EXPECT_EQ(BytesOf(record->pattern.header), (Uchars{1, 2, 3, 4}));
  EXPECT_EQ(BytesOf(record->pattern.pixels), (Uchars{5}));
}

}  // namespace
}  // namespace kelvane::test
