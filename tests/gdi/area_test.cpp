#include "gdi/area.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "gdi/area_points.h"
#include "gdi/region_grid.h"

namespace kelvane {
namespace {

constexpr std::uint64_t kEnough = 1U << 24;

/// The same area as a path.
Area AsOutline(const Area& area, PolyFillMode mode = ALTERNATE) {
  return Outline{std::make_shared<CGPath>(PathOf(area, kWholePage)), mode};
}

Area Combined(const Area& a, const Area& b, RegionMode mode) {
  Steps steps(kEnough);
  return Combine(a, b, mode, steps).value();
}

Area ComplementOf(const Area& area) {
  Steps steps(kEnough);
  return Complement(area, steps).value();
}

Area Path(std::initializer_list<CGPoint> points, PolyFillMode mode = ALTERNATE) {
  CGPath path;
  for (const CGPoint point : points)
    path.LineTo(point);
  path.Close();
  return Outline{std::make_shared<CGPath>(path), mode};
}

TEST(Area, OfPathsCombinesAsSetsOfPixelsDo) {
  const std::vector<Region> regions = GridRegions(25);
  for (const Region& a : regions) {
    for (const Region& b : regions) {
      for (const RegionMode mode : kRegionModes) {
        const Pixels expected = CombinePixels(PixelsOf(a), PixelsOf(b), mode);
        ASSERT_EQ(PixelsOf(Combined(AsOutline(a), b, mode)), expected) << a << b << mode;
        ASSERT_EQ(PixelsOf(Combined(a, AsOutline(b, WINDING), mode)), expected) << a << b << mode;
        ASSERT_EQ(PixelsOf(Combined(ComplementOf(AsOutline(a)), b, mode)),
                  CombinePixels(~PixelsOf(a), PixelsOf(b), mode))
            << a << b << mode;
      }
    }
  }
}

TEST(Area, OfRectanglesStaysRectangles) {
  for (const RegionMode mode : kRegionModes) {
    const Area combined = Combined(Region({0, 0, 4, 4}), Region({2, 2, 6, 6}), mode);
    EXPECT_TRUE(std::holds_alternative<Region>(combined)) << mode;
  }
}

TEST(Area, HasAComplement) {
  for (const Region& region : GridRegions(25)) {
    ASSERT_EQ(PixelsOf(ComplementOf(region)), ~PixelsOf(region));
    ASSERT_EQ(PixelsOf(ComplementOf(ComplementOf(region))), PixelsOf(region));
    ASSERT_EQ(PixelsOf(ComplementOf(AsOutline(region))), ~PixelsOf(region));
    ASSERT_EQ(PixelsOf(ComplementOf(AsOutline(region, WINDING))), ~PixelsOf(region));
    ASSERT_EQ(PixelsOf(ComplementOf(ComplementOf(AsOutline(region)))), PixelsOf(region));
  }
}

// A square that is wound twice the same way has no hole for WINDING.
TEST(Area, FollowsItsFillMode) {
  const auto rings = {CGPoint{0, 0}, CGPoint{6, 0}, CGPoint{6, 6}, CGPoint{0, 6}, CGPoint{0, 0},
                      CGPoint{2, 2}, CGPoint{4, 2}, CGPoint{4, 4}, CGPoint{2, 4}, CGPoint{2, 2}};
  const Region all({-9, -9, 9, 9});
  EXPECT_FALSE(Contains(Combined(all, Path(rings, ALTERNATE), RGN_AND), {3, 3}));
  EXPECT_TRUE(Contains(Combined(all, Path(rings, WINDING), RGN_AND), {3, 3}));
  EXPECT_FALSE(Contains(ComplementOf(Path(rings, WINDING)), {3, 3}));
  EXPECT_TRUE(Contains(ComplementOf(Path(rings, ALTERNATE)), {3, 3}));
}

TEST(Area, OfARectangleStaysUprightUnderScalesAndRightAngles) {
  const RectangleD rectangle = {1, 2, 3, 5};
  EXPECT_EQ(AreaOf(rectangle, {2, 0, 0, -1, 10, 0}), Area(Region({12, -5, 16, -2})));
  EXPECT_EQ(AreaOf(rectangle, {0, 1, -1, 0, 0, 0}), Area(Region({-5, 1, -2, 3})));
  EXPECT_EQ(AreaOf({3, 5, 1, 2}, TransformD()), Area(Region(rectangle)));
}

TEST(Area, OfARectangleTurnsWithTheTransform) {
  const double s = std::numbers::sqrt2 / 2;
  const Area turned = AreaOf({-1, -1, 1, 1}, {s, s, -s, s, 0, 0}).value();
  EXPECT_TRUE(Contains(turned, {1.3, 0}));
  EXPECT_FALSE(Contains(turned, {0.8, 0.8}));
}

TEST(Area, IsNoneWhereARectangleOverflows) {
  EXPECT_EQ(AreaOf({0, 0, 2147483647, 1}, {1e308, 0, 0, 1, 0, 0}), std::nullopt);
}

TEST(Area, OfTurnedShapesIsExactToAFractionOfAUnit) {
  // Two diamonds around the origin, of 3 and 2 units: a ring of one unit.
  const Area ring = Combined(Path({{3, 0}, {0, 3}, {-3, 0}, {0, -3}}),
                             Path({{2, 0}, {0, 2}, {-2, 0}, {0, -2}}), RGN_DIFF);
  EXPECT_TRUE(Contains(ring, {2.01, 0.01}));
  EXPECT_FALSE(Contains(ring, {1.98, 0.01}));
  EXPECT_TRUE(Contains(ring, {2.98, 0.01}));
  EXPECT_FALSE(Contains(ring, {3.01, 0.01}));
}

TEST(Area, FollowsCurves) {
  constexpr CGFloat kArc = 0.5522848F * 100;
  CGPath circle;
  circle.MoveTo({100, 0});
  circle.CurveTo({100, kArc}, {kArc, 100}, {0, 100});
  circle.CurveTo({-kArc, 100}, {-100, kArc}, {-100, 0});
  circle.CurveTo({-100, -kArc}, {-kArc, -100}, {0, -100});
  circle.CurveTo({kArc, -100}, {100, -kArc}, {100, 0});
  const Area disc = Outline{std::make_shared<CGPath>(circle), WINDING};
  const Area half = Combined(disc, Region({0, -200, 200, 200}), RGN_AND);
  for (double angle = -1.5; angle < 1.5; angle += 0.1) {
    EXPECT_TRUE(Contains(half, {99.9 * std::cos(angle), 99.9 * std::sin(angle)})) << angle;
    EXPECT_FALSE(Contains(half, {100.1 * std::cos(angle), 100.1 * std::sin(angle)})) << angle;
  }
  EXPECT_FALSE(Contains(half, {-1, 0}));
}

TEST(Area, IsARegionWhenNothingIsLeft) {
  const Area triangle = Path({{0, 0}, {4, 0}, {0, 4}});
  EXPECT_EQ(Combined(triangle, Region({10, 10, 20, 20}), RGN_AND), Area(Region()));
  EXPECT_EQ(Combined(triangle, Region(), RGN_COPY), Area(Region()));
}

TEST(Area, Moves) {
  const Area triangle = Path({{0, 0}, {4, 0}, {0, 4}});
  const Area moved = Translated(Translated(triangle, 10, 0), 0, 20);
  EXPECT_TRUE(Contains(moved, {11, 21}));
  EXPECT_FALSE(Contains(moved, {1, 1}));
  EXPECT_EQ(Translated(Region({0, 0, 1, 1}), 2, 3), Area(Region({2, 3, 3, 4})));
  EXPECT_TRUE(Contains(Combined(moved, Region({0, 0, 50, 50}), RGN_AND), {11, 21}));
  EXPECT_FALSE(Contains(Translated(ComplementOf(triangle), 10, 20), {11, 21}));
}

TEST(Area, CutsItsRectanglesToThePage) {
  const CGPath path = PathOf(ComplementOf(Region({0, 0, 1, 1})), {-5, -5, 5, 5});
  path.ForEach([](CGPath::Element element, const CGPoint* points) {
    ASSERT_EQ(element, CGPath::Element::kRectangle);
    EXPECT_GE(points[0].x, -5);
    EXPECT_LE(points[0].x + points[1].x, 5);
  });
}

TEST(Area, OfManyRectanglesIsTheirUnion) {
  const std::vector<RectangleD> rectangles = {{0, 0, 2, 2}, {1, 1, 3, 3}, {5, 5, 5, 9}};
  EXPECT_EQ(AreaOf(rectangles), Area(UnionOf(rectangles)));
  EXPECT_EQ(AreaOf(std::span<const RectangleD>()), Area(Region()));
}

// As bands these would be nine million rectangles.
TEST(Area, OfRectanglesInAGridIsAPathOfThem) {
  std::vector<RectangleD> rectangles;
  for (int i = 0; i < 6000; i += 2) {
    rectangles.push_back({double(i), 0, double(i + 1), 6000});
    rectangles.push_back({0, double(i), 6000, double(i + 1)});
  }
  const Area grid = AreaOf(rectangles);
  ASSERT_TRUE(std::holds_alternative<Outline>(grid));
  const Polygons polygons = Flattened(*std::get<Outline>(grid).path, WINDING, 1);
  EXPECT_EQ(polygons.figures.size(), 6000U);
  EXPECT_TRUE(Contains(polygons, {0.5, 0.5}));
  EXPECT_FALSE(Contains(polygons, {1.5, 1.5}));
}

// A zigzag with 2000 teeth and the same lying down: four million crossings.
TEST(Area, GivesNothingWhenTheStepsRunOut) {
  CGPath standing;
  CGPath lying;
  for (int i = 0; i < 2000; ++i) {
    const auto along = static_cast<CGFloat>(i);
    const CGFloat across = i % 2 == 0 ? 0.F : 2000.F;
    standing.LineTo({along, across});
    lying.LineTo({across, along});
  }
  const Area a = Outline{std::make_shared<CGPath>(standing), ALTERNATE};
  const Area b = Outline{std::make_shared<CGPath>(lying), ALTERNATE};
  Steps steps(1U << 23);
  EXPECT_EQ(Combine(a, b, RGN_XOR, steps), std::nullopt);
}

TEST(Area, SaturatesInPolygons) {
  const Area huge = Path({{-1e30F, -1e30F}, {1e30F, -1e30F}, {1e30F, 1e30F}, {-1e30F, 1e30F}});
  const Area rest = Combined(huge, Path({{0, 0}, {4, 0}, {0, 4}}), RGN_DIFF);
  EXPECT_TRUE(Contains(rest, {-50, -50}));
  EXPECT_FALSE(Contains(rest, {1, 1}));
}

}  // namespace
}  // namespace kelvane
