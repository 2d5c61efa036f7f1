#include "gdi/palette.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

constexpr RgbColor kRed = {255, 0, 0};
constexpr RgbColor kBlue = {0, 0, 255};
constexpr RgbColor kBlack = {};

TEST(Palette, GivesItsFirstEntryForNumbersTooLarge) {
  const Palette palette({kRed, kBlue});
  EXPECT_EQ(palette.At(1), kBlue);
  EXPECT_EQ(palette.At(2), kRed);
  EXPECT_EQ(Palette({}).At(0), kBlack);
}

TEST(Palette, SetsTheEntriesItHas) {
  Palette palette({kBlack, kBlack, kBlack});
  palette.SetEntries(2, std::vector<PaletteEntry>{{255, 0, 0, 0}, {0, 0, 255, 0}});
  EXPECT_EQ(palette.At(2), kRed);
  EXPECT_EQ(palette.Size(), 3U);
  palette.SetEntries(0xFFFFFFFF, std::vector<PaletteEntry>{{0, 0, 255, 0}});
  EXPECT_EQ(palette.At(0), kBlack);
}

TEST(Palette, GrowsByBlackEntries) {
  Palette palette({kRed});
  ASSERT_TRUE(palette.Resize(1000));
  EXPECT_EQ(palette.At(999), kBlack);
  EXPECT_EQ(palette.At(1000), kRed);
  palette.SetEntries(999, std::vector<PaletteEntry>{{0, 0, 255, 0}});
  EXPECT_EQ(palette.At(999), kBlue);
}

TEST(Palette, ForgetsWhatIsCutOff) {
  Palette palette({kRed, kBlue});
  ASSERT_TRUE(palette.Resize(1));
  ASSERT_TRUE(palette.Resize(2));
  EXPECT_EQ(palette.At(1), kBlack);
}

TEST(Palette, HasASizeWithinLimits) {
  Palette palette({kRed});
  EXPECT_FALSE(palette.Resize(0));
  EXPECT_FALSE(palette.Resize(Palette::kMostEntries + 1));
  EXPECT_EQ(palette.Size(), 1U);
  EXPECT_EQ(Palette(std::vector<RgbColor>(5000)).Size(), Palette::kMostEntries);
}

TEST(ResolveColor, TakesRedFromTheLowestByte) {
  EXPECT_EQ(ResolveColor({0x00332211}, Palette({})), (RgbColor{0x11, 0x22, 0x33}));
}

TEST(ResolveColor, TakesOnlyATopByteOf1ForANumber) {
  const Palette palette({kRed, kBlue});
  EXPECT_EQ(ResolveColor({0x01000001}, palette), kBlue);
  EXPECT_EQ(ResolveColor({0x01000007}, palette), kRed);
  EXPECT_EQ(ResolveColor({0x02000000}, palette), kBlack);
  EXPECT_EQ(ResolveColor({0xFF0000FF}, palette), kRed);
}

TEST(ResolveColor, HasTwentyColorsWithoutAPalette) {
  const Palette palette = Palette::Default();
  EXPECT_EQ(palette.Size(), 20U);
  EXPECT_EQ(ResolveColor({0x01000013}, palette), (RgbColor{255, 255, 255}));
  EXPECT_EQ(ResolveColor({0x01000007}, palette), (RgbColor{0xC0, 0xC0, 0xC0}));
}

}  // namespace
}  // namespace kelvane
