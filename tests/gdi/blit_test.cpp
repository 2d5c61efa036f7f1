#include "gdi/blit.h"

#include <gtest/gtest.h>

#include "gdi/stored_dib.h"

namespace kelvane {
namespace {

/// Three pixels wide, two high.
Dib Small() {
  static const StoredBitmap kBitmap = StoredBitmap::Mono({"010", "110"});
  return kBitmap.Read();
}

constexpr TransformD kSixtyByForty = {60, 0, 0, 40, 100, 200};  // at (100, 200)

void ExpectPart(const std::optional<Blit>& blit, const PixelRectangle& part) {
  ASSERT_TRUE(blit);
  EXPECT_EQ(blit->part.left, part.left);
  EXPECT_EQ(blit->part.top, part.top);
  EXPECT_EQ(blit->part.width, part.width);
  EXPECT_EQ(blit->part.height, part.height);
}

void ExpectMaps(const Blit& blit, PointD pixel, PointD device) {
  const PointD mapped = blit.toDevice.Map(pixel);
  EXPECT_NEAR(mapped.x, device.x, 1e-9);
  EXPECT_NEAR(mapped.y, device.y, 1e-9);
}

TEST(PlaceBlit, StretchesTheSourceOverTheDestination) {
  const auto blit = PlaceBlit(Small(), {0, 0, 3, 2}, {}, kSixtyByForty);
  ExpectPart(blit, {0, 0, 3, 2});
  ExpectMaps(*blit, {0, 0}, {100, 200});
  ExpectMaps(*blit, {3, 2}, {160, 240});
  EXPECT_FALSE(blit->cut);
}

TEST(PlaceBlit, TakesAPartOfTheBitmap) {
  const auto blit = PlaceBlit(Small(), {1, 1, 3, 2}, {}, kSixtyByForty);
  ExpectPart(blit, {1, 1, 2, 1});
  ExpectMaps(*blit, {1, 1}, {100, 200});
  ExpectMaps(*blit, {3, 2}, {160, 240});
}

TEST(PlaceBlit, MirrorsASourceWhoseEdgesAreInTheOtherOrder) {
  const auto blit = PlaceBlit(Small(), {3, 0, 0, 2}, {}, kSixtyByForty);
  ExpectPart(blit, {0, 0, 3, 2});
  ExpectMaps(*blit, {0, 0}, {160, 200});
  ExpectMaps(*blit, {3, 2}, {100, 240});
}

TEST(PlaceBlit, CutsTheDestinationWhereTheBitmapEnds) {
  // Six columns are asked for, of which the middle three are there.
  const auto blit = PlaceBlit(Small(), {-1, 0, 5, 2}, {}, kSixtyByForty);
  ExpectPart(blit, {0, 0, 3, 2});
  ExpectMaps(*blit, {0, 0}, {110, 200});
  ExpectMaps(*blit, {3, 2}, {140, 240});
}

TEST(PlaceBlit, SeesNothingOfASourceBesideTheBitmap) {
  EXPECT_FALSE(PlaceBlit(Small(), {3, 0, 6, 2}, {}, kSixtyByForty));
  EXPECT_FALSE(PlaceBlit(Small(), {0, -2, 3, 0}, {}, kSixtyByForty));
}

TEST(PlaceBlit, SeesNothingWithoutAnArea) {
  EXPECT_FALSE(PlaceBlit(Small(), {0, 0, 0, 2}, {}, kSixtyByForty));
  EXPECT_FALSE(PlaceBlit(Small(), {0, 0, 3, 2}, {}, {60, 0, 0, 0, 100, 200}));
  EXPECT_FALSE(PlaceBlit(Small(), {0, 0, 3, 2}, {0, 0, 0, 0, 0, 0}, kSixtyByForty));
}

TEST(PlaceBlit, TakesTheSourceThroughItsOwnTransform) {
  const auto blit = PlaceBlit(Small(), {0, 0, 1, 1}, {2, 0, 0, 1, 1, 1}, kSixtyByForty);
  ExpectPart(blit, {1, 1, 2, 1});
  ExpectMaps(*blit, {1, 1}, {100, 200});
}

TEST(PlaceBlit, CutsAPartThatBeginsWithinAPixelToTheDestination) {
  const auto blit = PlaceBlit(Small(), {0, 0, 3, 2}, {0.5, 0, 0, 1, 0.25, 0}, kSixtyByForty);
  ExpectPart(blit, {0, 0, 2, 2});
  ASSERT_TRUE(blit->cut);
  EXPECT_EQ((*blit->cut)[0], (PointD{100, 200}));
  EXPECT_EQ((*blit->cut)[2], (PointD{160, 240}));
}

TEST(PlaceBlit, CutsATurnedSourceToTheDestination) {
  const TransformD quarterTurn = {0, 1, -1, 0, 2, 0};
  ExpectPart(PlaceBlit(Small(), {0, 0, 2, 2}, quarterTurn, kSixtyByForty), {0, 0, 2, 2});
  const auto askew = PlaceBlit(Small(), {0, 0, 2, 1}, {1, 1, -1, 1, 1, 0}, kSixtyByForty);
  ASSERT_TRUE(askew);
  EXPECT_TRUE(askew->cut);
}

TEST(UnitToDevice, IsWhereThePartLies) {
  auto blit = PlaceBlit(Small(), {-1, 0, 5, 2}, {}, kSixtyByForty);
  ASSERT_TRUE(blit);
  EXPECT_EQ(UnitToDevice(*blit).Map({0, 0}), (PointD{110, 200}));
  EXPECT_EQ(UnitToDevice(*blit).Map({1, 1}), (PointD{140, 240}));
}

}  // namespace
}  // namespace kelvane
