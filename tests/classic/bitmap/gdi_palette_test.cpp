#include "classic/bitmap/gdi_palette.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/bytes.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::ReadStructure;
using testing::ElementsAre;

GDIPalette ReadPalette(std::uint32_t count, const Bytes& bytes) {
  return ReadStructure<GDIPalette>(bytes, {count, {}});
}

TEST(GDIPalette, ReadsBlueGreenRedAndDropsTheFourthByte) {
  EXPECT_THAT(ReadPalette(1, Bytes().Each({0x33, 0x22, 0x11, 0xFF})).colors, ElementsAre(0x112233));
}

TEST(GDIPalette, ReadsNoMoreColorsThanItCounts) {
  EXPECT_THAT(ReadPalette(1, Bytes().Color(1, 2, 3).Color(4, 5, 6)).colors, ElementsAre(0x010203));
}

TEST(GDIPalette, KeepsTheColorsReadBeforeTheDataEnds) {
  const auto palette = ReadPalette(0xFFFFFFFF, Bytes().Color(1, 2, 3).Color(4, 5, 6).Each({7, 8}));
  EXPECT_THAT(palette.colors, ElementsAre(0x010203, 0x040506));
}

TEST(GDIPalette, LooksUpBlackBeyondItsEnd) {
  const auto palette = ReadPalette(2, Bytes().Color(1, 2, 3).Color(4, 5, 6));
  EXPECT_EQ(palette.LookupColor(1), 0x040506U);
  EXPECT_EQ(palette.LookupColor(2), 0U);
}

TEST(GDIPalette, TakesTheIndexForAColorrefWhenItIsEmpty) {
  EXPECT_EQ(GDIPalette().LookupColor(0x00332211), 0x112233U);
}

}  // namespace
}  // namespace kelvane
