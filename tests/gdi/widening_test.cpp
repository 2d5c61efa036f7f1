#include "gdi/widening.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "gdi/polygons.h"
#include "gdi/test_pens.h"

namespace kelvane {
namespace {

constexpr double kNear = 0.05;
constexpr double kNearRound = 0.2;  // curves are lines that are 1/64 off at most
constexpr TransformD kIdentity = {};

CGPath Corner() {
  CGPath path;
  for (const CGPoint point : {CGPoint{0, 0}, CGPoint{10, 0}, CGPoint{10, 10}})
    path.LineTo(point);
  return path;
}

CGPath Line(CGPoint end) {
  CGPath path;
  path.MoveTo({0, 0});
  path.LineTo(end);
  return path;
}

PenStroke StrokeOf(const Pen& pen) {
  return ResolvePen(pen, 1, TRANSPARENT);
}

/// The area that an outline winds around.
double AreaOf(const CGPath& outline) {
  double twice = 0;
  for (const auto& figure : Flattened(outline, WINDING, 0.001).figures) {
    for (std::size_t i = 0; i < figure.size(); ++i) {
      const PointD a = figure[i];
      const PointD b = figure[(i + 1) % figure.size()];
      twice += a.x * b.y - b.x * a.y;
    }
  }
  return std::abs(twice) / 2;
}

double WidenedArea(const CGPath& path, std::uint32_t style) {
  return AreaOf(Widened(path, StrokeOf(GeometricPen(style, 4)), 10, kIdentity).value());
}

TEST(Widened, IsAsWideAsAnyPageWhereThePenIsWiderThanThat) {
  constexpr double kWiderThanAnyPage = 1e6;
  constexpr TransformD kHuge = {1e17, 0, 0, 1e17, 0, 0};
  const auto outline = Widened(Line({10, 0}), StrokeOf(GeometricPen(PS_ENDCAP_FLAT, 4)), 10, kHuge);
  ASSERT_TRUE(outline.has_value());
  EXPECT_GT(AreaOf(*outline), kWiderThanAnyPage);
}

// A line of 10 units, and 2 more at each end.
TEST(Widened, HasTheCapsOfThePen) {
  EXPECT_NEAR(WidenedArea(Line({10, 0}), PS_ENDCAP_FLAT), 40, kNear);
  EXPECT_NEAR(WidenedArea(Line({10, 0}), PS_ENDCAP_SQUARE), 56, kNear);
  EXPECT_NEAR(WidenedArea(Line({10, 0}), PS_ENDCAP_ROUND), 40 + 4 * std::numbers::pi, kNearRound);
}

// Two lines of 10 by 4, which share a square of 2 by 2; the corner adds up to another one.
TEST(Widened, HasTheJoinsOfThePen) {
  EXPECT_NEAR(WidenedArea(Corner(), PS_ENDCAP_FLAT | PS_JOIN_MITER), 80, kNear);
  EXPECT_NEAR(WidenedArea(Corner(), PS_ENDCAP_FLAT | PS_JOIN_ROUND), 76 + std::numbers::pi,
              kNearRound);
}

// A frame from -2 to 12 around a hole from 2 to 8.
TEST(Widened, IsARingOfAClosedFigure) {
  CGPath path;
  path.AddRectangle({0, 0}, {10, 10});
  EXPECT_NEAR(WidenedArea(path, PS_JOIN_MITER), 160, kNear);
  CGPath lines = Corner();
  lines.LineTo({0, 10});
  lines.Close();
  EXPECT_NEAR(WidenedArea(lines, PS_JOIN_MITER), 160, kNear);
}

TEST(Widened, FollowsCurves) {
  CGPath path;
  constexpr float k = 55.22847F;  // of a quarter of a circle
  path.MoveTo({100, 0});
  path.CurveTo({100, k}, {k, 100}, {0, 100});
  const double area =
      AreaOf(Widened(path, StrokeOf(GeometricPen(PS_ENDCAP_FLAT, 4)), 10, kIdentity).value());
  EXPECT_NEAR(area, 100 * std::numbers::pi / 2 * 4, 1);
}

// The pen is round in logical units, of which the path no longer is.
TEST(Widened, IsSqueezedAsItsPenIs) {
  constexpr TransformD kWide = {2, 0, 0, 1, 50, 50};
  const PenStroke stroke = StrokeOf(GeometricPen(PS_ENDCAP_FLAT, 4));
  EXPECT_NEAR(AreaOf(Widened(Line({10, 0}), stroke, 10, kWide).value()), 10 * 4, kNear);
  EXPECT_NEAR(AreaOf(Widened(Line({0, 10}), stroke, 10, kWide).value()), 10 * 8, kNear);
}

TEST(Widened, IsNoneUnderAMapOntoALine) {
  constexpr TransformD kFlat = {1, 0, 0, 0, 0, 0};
  EXPECT_FALSE(Widened(Corner(), StrokeOf(GeometricPen(PS_SOLID, 4)), 10, kFlat));
}

TEST(Widened, IsNoneOfPointsThatAreNotFinite) {
  const CGPath path = Line({std::numeric_limits<float>::infinity(), 0});
  EXPECT_FALSE(Widened(path, StrokeOf(GeometricPen(PS_SOLID, 4)), 10, kIdentity));
}

TEST(Widened, IsNoneOfMorePointsThanTheTimeAllows) {
  CGPath path;
  for (int i = 0; i <= 1 << 16; ++i)
    path.LineTo({static_cast<float>(i % 100), static_cast<float>(i / 100)});
  EXPECT_FALSE(Widened(path, StrokeOf(GeometricPen(PS_SOLID, 4)), 10, kIdentity));
}

}  // namespace
}  // namespace kelvane
