#include "players/page_placement.h"

#include <limits>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

/// A screen of 96 dots an inch in both directions: 0.75 points a device unit.
PictureGeometry OnAScreen(const StoredRectangle& bounds, const StoredRectangle& frame) {
  return {bounds, frame, 960, 480, 254, 127};
}

CGPoint OnPage(const PagePlacement& placement, CGFloat x, CGFloat y) {
  return CGPointApplyAffineTransform({x, y}, placement.deviceToPage);
}

void ExpectNear(CGPoint point, double x, double y) {
  EXPECT_NEAR(point.x, x, 1e-4);
  EXPECT_NEAR(point.y, y, 1e-4);
}

TEST(PageOfTheFrame, HasItsTrueSize) {
  const auto page =
      PlaceOnPage(OnAScreen({0, 0, 95, 47}, {0, 0, 2540, 1270}), PageChoice::kFrame, {});
  ASSERT_TRUE(page);
  EXPECT_FLOAT_EQ(page->size.width, 72);
  EXPECT_FLOAT_EQ(page->size.height, 36);
  EXPECT_EQ(page->trouble, PageTrouble::kNone);
}

TEST(PageOfTheFrame, HasTheFramesCornerAtItsTopLeft) {
  // 508 hundredths of a millimetre are 19.2 device units.
  const auto page =
      PlaceOnPage(OnAScreen({20, 20, 90, 90}, {508, 508, 2540, 2540}), PageChoice::kFrame, {});
  ASSERT_TRUE(page);
  ExpectNear(OnPage(*page, 19.2F, 19.2F), 0, page->size.height);
  ExpectNear(OnPage(*page, 96, 96), page->size.width, 0);
}

TEST(PageOfTheFrame, IsStretchedWhereTheDeviceClaimsUnevenPixels) {
  const PictureGeometry picture = {{0, 0, 99, 99}, {0, 0, 2500, 2400}, 1280, 800, 320, 240};
  const auto page = PlaceOnPage(picture, PageChoice::kFrame, {});
  ASSERT_TRUE(page);
  EXPECT_NEAR(page->deviceToPage.a, 72 / 25.4 * 0.25, 1e-6);
  EXPECT_NEAR(page->deviceToPage.d, -72 / 25.4 * 0.3, 1e-6);
}

TEST(PageOfTheFrame, TakesADeviceWithoutASizeForOneOf96DotsAnInch) {
  for (const double size : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
    const CGSize scale = PointsPerDeviceUnit({{}, {}, size, 480, 254, size});
    EXPECT_EQ(scale.width, 0.75F) << size;
    EXPECT_EQ(scale.height, 0.75F) << size;
  }
}

TEST(PageOfTheFrame, GivesWayToTheBoundsWhenItIsEmpty) {
  const auto page = PlaceOnPage(OnAScreen({10, 20, 109, 69}, {5, 5, 5, 5}), PageChoice::kFrame, {});
  ASSERT_TRUE(page);
  EXPECT_EQ(page->trouble, PageTrouble::kFrameEmpty);
  EXPECT_FLOAT_EQ(page->size.width, 75);  // 100 columns: the last one belongs to the bounds
  EXPECT_FLOAT_EQ(page->size.height, 37.5);
  ExpectNear(OnPage(*page, 10, 20), 0, 37.5);
}

TEST(PageOfTheFrame, GivesWayToTheBoundsWhenTheTwoDoNotMeet) {
  const auto page =
      PlaceOnPage(OnAScreen({500, 500, 599, 599}, {0, 0, 2540, 2540}), PageChoice::kFrame, {});
  ASSERT_TRUE(page);
  EXPECT_EQ(page->trouble, PageTrouble::kFrameAbsurd);
  ExpectNear(OnPage(*page, 500, 600), 0, 0);
}

TEST(PageOfTheFrame, GivesWayToTheBoundsWhenItIsFiftyTimesTheirSizeOrASmallPart) {
  const StoredRectangle bounds = {0, 0, 95, 95};
  const StoredRectangle tooLarge = {0, 0, 2540 * 51, 2540};
  const StoredRectangle tooSmall = {0, 0, 2540, 2540 / 51.0};
  const StoredRectangle wide = {0, 0, 2540 * 49, 2540};
  const auto trouble = [&](const StoredRectangle& frame) {
    return PlaceOnPage(OnAScreen(bounds, frame), PageChoice::kFrame, {})->trouble;
  };
  EXPECT_EQ(trouble(tooLarge), PageTrouble::kFrameAbsurd);
  EXPECT_EQ(trouble(tooSmall), PageTrouble::kFrameAbsurd);
  EXPECT_EQ(trouble(wide), PageTrouble::kNone);
}

TEST(PageOfTheFrame, StandsAloneWhereThereAreNoBounds) {
  const auto page =
      PlaceOnPage(OnAScreen({0, 0, -1, -1}, {0, 0, 2540, 2540}), PageChoice::kFrame, {});
  ASSERT_TRUE(page);
  EXPECT_EQ(page->trouble, PageTrouble::kNone);
}

TEST(PageOfTheFrame, IsUnknownWhereNeitherFrameNorBoundsHaveAnArea) {
  EXPECT_FALSE(PlaceOnPage(OnAScreen({0, 0, -1, -1}, {}), PageChoice::kFrame, {}));
}

TEST(PageOfTheBounds, HasAPointForEachDeviceUnitBetweenTheirEdges) {
  const auto page =
      PlaceOnPage(OnAScreen({10, 20, 110, 70}, {0, 0, 9999, 9999}), PageChoice::kBounds, {});
  ASSERT_TRUE(page);
  EXPECT_EQ(page->size, (CGSize{100, 50}));
  EXPECT_EQ(OnPage(*page, 10, 70), (CGPoint{0, 0}));
  EXPECT_EQ(OnPage(*page, 110, 20), (CGPoint{100, 50}));
}

TEST(PageOfTheBounds, IsTheSameForCornersInAnyOrder) {
  const auto page = PlaceOnPage(OnAScreen({110, 70, 10, 20}, {}), PageChoice::kBounds, {});
  ASSERT_TRUE(page);
  EXPECT_EQ(page->size, (CGSize{100, 50}));
}

TEST(PageSizeWish, OfAWidthOrAHeightKeepsTheShape) {
  const PictureGeometry picture = OnAScreen({0, 0, 100, 50}, {});
  EXPECT_EQ(PlaceOnPage(picture, PageChoice::kBounds, {.width = 200})->size, (CGSize{200, 100}));
  EXPECT_EQ(PlaceOnPage(picture, PageChoice::kBounds, {.height = 25})->size, (CGSize{50, 25}));
}

TEST(PageSizeWish, OfBothStretchesThePicture) {
  const auto page = PlaceOnPage(OnAScreen({0, 0, 100, 50}, {}), PageChoice::kBounds,
                                {.width = 50, .height = 100});
  ASSERT_TRUE(page);
  EXPECT_EQ(page->size, (CGSize{50, 100}));
  EXPECT_EQ(OnPage(*page, 100, 50), (CGPoint{50, 0}));
}

TEST(PageSizeWish, OfAScaleMultipliesBothSides) {
  EXPECT_EQ(PlaceOnPage(OnAScreen({0, 0, 100, 50}, {}), PageChoice::kBounds, {.scale = 2})->size,
            (CGSize{200, 100}));
}

TEST(PageSizeWish, ThatLeavesNoPageIsRefused) {
  const PictureGeometry picture = OnAScreen({0, 0, 100, 50}, {});
  for (const double scale : {0.0, -1.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_FALSE(PlaceOnPage(picture, PageChoice::kBounds, {.scale = scale})) << scale;
  }
}

}  // namespace
}  // namespace kelvane
