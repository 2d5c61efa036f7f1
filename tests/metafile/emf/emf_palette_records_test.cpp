#include "metafile/emf/emf_palette_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

using Entries = std::vector<PaletteEntry>;

TEST(SelectPaletteRecord, HasAnIndex) {
  EXPECT_EQ(Decode(DecodeSelectPalette, Bytes().U32(3))->ihPal, 3U);
}

TEST(CreatePaletteRecord, HasEntriesWithRedFirst) {
  const auto record =
      Decode(DecodeCreatePalette, Bytes().U32(1).U16(0x300).U16(2).U32(0x04030201).U32(8));
  EXPECT_EQ(record->ihPal, 1U);
  EXPECT_EQ(Elements(record->entries), (Entries{{1, 2, 3, 4}, {8, 0, 0, 0}}));
}

TEST(CreatePaletteRecord, HasNoEntriesOfAnotherVersion) {
  const auto record = Decode(DecodeCreatePalette, Bytes().U32(1).U16(0x1234).U16(0xFFFF));
  EXPECT_EQ(record->version, 0x1234);
  EXPECT_TRUE(record->entries.empty());
}

TEST(SetPaletteEntriesRecord, HasEntriesFromAStart) {
  const auto record = Decode(DecodeSetPaletteEntries, Bytes().U32(1).U32(2).U32(1).U32(0x04030201));
  EXPECT_EQ(record->ihPal, 1U);
  EXPECT_EQ(record->start, 2U);
  EXPECT_EQ(Elements(record->entries), (Entries{{1, 2, 3, 4}}));
}

TEST(ResizePaletteRecord, HasACount) {
  const auto record = Decode(DecodeResizePalette, Bytes().U32(1).U32(2));
  EXPECT_EQ(record->ihPal, 1U);
  EXPECT_EQ(record->entries, 2U);
}

TEST(ColorCorrectPaletteRecord, HasARangeOfEntries) {
  const auto record = Decode(DecodeColorCorrectPalette, Bytes().U32(1).U32(2).U32(3).U32(4));
  EXPECT_EQ(record->ihPal, 1U);
  EXPECT_EQ(record->firstEntry, 2U);
  EXPECT_EQ(record->entries, 3U);
}

}  // namespace
}  // namespace kelvane::test
