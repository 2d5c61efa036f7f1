#include "gdi/figures.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

constexpr TransformD kIdentity;
constexpr RectangleD kBox = {10, 20, 110, 70};  // centre (60, 45), radii 50 and 25

std::vector<CGPoint> PointsOf(const CGPath& path) {
  std::vector<CGPoint> points;
  path.ForEach([&](CGPath::Element element, const CGPoint* from) {
    points.insert(points.end(), from, from + CGPath::PointCount(element));
  });
  return points;
}

std::string ElementsOf(const CGPath& path) {
  std::string letters;
  path.ForEach([&](CGPath::Element element, const CGPoint*) {
    letters += "mlchr"[static_cast<std::size_t>(element)];
  });
  return letters;
}

template <class Draw>
CGPath Drawn(const Draw& draw, const TransformD& toDevice = kIdentity) {
  CGPath path;
  FigurePath figures(path, toDevice);
  draw(figures);
  return path;
}

void ExpectNear(CGPoint point, double x, double y) {
  EXPECT_NEAR(point.x, x, 1e-3);
  EXPECT_NEAR(point.y, y, 1e-3);
}

/// The farthest that a point of the path's curves, ends and middles, lies from an ellipse in radii.
double DistanceFromEllipse(const CGPath& path, CGPoint center, double xRadius, double yRadius) {
  double farthest = 0;
  const auto look = [&](double x, double y) {
    farthest = std::max(
        farthest, std::abs(std::hypot((x - center.x) / xRadius, (y - center.y) / yRadius) - 1));
  };
  CGPoint last;
  path.ForEach([&](CGPath::Element element, const CGPoint* p) {
    if (element == CGPath::Element::kMove || element == CGPath::Element::kLine) last = p[0];
    if (element != CGPath::Element::kCurve) return;
    look((last.x + 3.0 * p[0].x + 3.0 * p[1].x + p[2].x) / 8,
         (last.y + 3.0 * p[0].y + 3.0 * p[1].y + p[2].y) / 8);
    look(p[2].x, p[2].y);
    last = p[2];
  });
  return farthest;
}

TEST(Rectangle, StartsAtItsTopRightCornerAndGoesLeft) {
  const CGPath path = Drawn([](FigurePath& figures) {
    figures.AddRectangle({110, 70, 10, 20}, AD_COUNTERCLOCKWISE);
  });
  EXPECT_EQ(ElementsOf(path), "mlllh");
  EXPECT_EQ(PointsOf(path), (std::vector<CGPoint>{{110, 20}, {10, 20}, {10, 70}, {110, 70}}));
}

TEST(Rectangle, GoesDownFirstWhenOutlinesRunClockwise) {
  const CGPath path = Drawn([](FigurePath& figures) { figures.AddRectangle(kBox, AD_CLOCKWISE); });
  EXPECT_EQ(PointsOf(path), (std::vector<CGPoint>{{110, 20}, {110, 70}, {10, 70}, {10, 20}}));
}

TEST(Rectangle, TurnsWithItsSpace) {
  const TransformD quarterTurn = {0, 1, -1, 0, 100, 0};
  const CGPath path =
      Drawn([](FigurePath& figures) { figures.AddRectangle(kBox, AD_CLOCKWISE); }, quarterTurn);
  EXPECT_EQ(PointsOf(path).front(), (CGPoint{80, 110}));
}

TEST(Ellipse, RunsFromItsRightmostPointUpwards) {
  const CGPath path =
      Drawn([](FigurePath& figures) { figures.AddEllipse(kBox, AD_COUNTERCLOCKWISE); });
  EXPECT_EQ(ElementsOf(path), "mcccch");
  const auto points = PointsOf(path);
  ExpectNear(points[0], 110, 45);
  ExpectNear(points[3], 60, 20);
  ExpectNear(points[6], 10, 45);
  EXPECT_LT(DistanceFromEllipse(path, {60, 45}, 50, 25), 3e-4);
}

TEST(Ellipse, RunsDownwardsWhenOutlinesRunClockwise) {
  const CGPath path = Drawn([](FigurePath& figures) { figures.AddEllipse(kBox, AD_CLOCKWISE); });
  ExpectNear(PointsOf(path)[3], 60, 70);
}

TEST(RoundRectangle, StartsBelowItsTopRightCorner) {
  const CGPath path = Drawn(
      [](FigurePath& figures) { figures.AddRoundRectangle(kBox, 20, 10, AD_COUNTERCLOCKWISE); });
  EXPECT_EQ(ElementsOf(path), "mclclclch");
  const auto points = PointsOf(path);
  ExpectNear(points[0], 110, 25);
  ExpectNear(points[3], 100, 20);
  ExpectNear(points[4], 20, 20);
}

TEST(RoundRectangle, IsTheSameOutlineTheOtherWayRound) {
  const CGPath path =
      Drawn([](FigurePath& figures) { figures.AddRoundRectangle(kBox, 20, 10, AD_CLOCKWISE); });
  EXPECT_EQ(ElementsOf(path), "mlclclclch");
  const auto points = PointsOf(path);
  ExpectNear(points[0], 110, 25);
  ExpectNear(points[1], 110, 65);
  ExpectNear(points.back(), 110, 25);
}

TEST(RoundRectangle, CutsItsCornersToItsBox) {
  const CGPath path = Drawn([](FigurePath& figures) {
    figures.AddRoundRectangle(kBox, -1000, 1000, AD_COUNTERCLOCKWISE);
  });
  EXPECT_LT(DistanceFromEllipse(path, {60, 45}, 50, 25), 3e-4);
}

TEST(RoundRectangle, WithoutCornersIsARectangle) {
  const CGPath path = Drawn(
      [](FigurePath& figures) { figures.AddRoundRectangle(kBox, 0, 10, AD_COUNTERCLOCKWISE); });
  EXPECT_EQ(ElementsOf(path), "mlllh");
}

/// An arc by itself.
CGPath Drawn(const std::optional<EllipticArc>& arc) {
  if (!arc) return {};
  return Drawn([&](FigurePath& figures) {
    figures.MoveTo(arc->Start());
    figures.AddArc(*arc);
  });
}

TEST(Arc, GoesFromOneDirectionToTheOther) {
  const auto arc = [](ArcDirection direction) {
    return Drawn(ArcIn(kBox, {1000, 45}, {60, -1000}, direction));  // east to north
  };
  const CGPath shortWay = arc(AD_COUNTERCLOCKWISE);
  EXPECT_EQ(ElementsOf(shortWay), "mc");
  ExpectNear(PointsOf(shortWay).front(), 110, 45);
  ExpectNear(PointsOf(shortWay).back(), 60, 20);
  const CGPath longWay = arc(AD_CLOCKWISE);
  EXPECT_EQ(ElementsOf(longWay), "mccc");
  ExpectNear(PointsOf(longWay)[3], 60, 70);
  ExpectNear(PointsOf(longWay).back(), 60, 20);
}

TEST(Arc, KnowsItsEnds) {
  const auto arc = ArcIn(kBox, {1000, 45}, {60, -1000}, AD_COUNTERCLOCKWISE);
  ASSERT_TRUE(arc);
  EXPECT_NEAR(arc->Start().x, 110, 1e-9);
  EXPECT_NEAR(arc->End().y, 20, 1e-9);
}

TEST(Arc, TakesDirectionsInTheShapeOfItsBox) {
  // The corner of the box lies at 45 degrees of the ellipse, whatever the box's shape.
  const CGPath path = Drawn(ArcIn(kBox, {110, 20}, {10, 20}, AD_COUNTERCLOCKWISE));
  ExpectNear(PointsOf(path).front(), 60 + 50 * std::sqrt(0.5), 45 - 25 * std::sqrt(0.5));
}

TEST(Arc, BetweenEqualDirectionsIsTheWholeEllipse) {
  for (const PointD point : {PointD{110, 45}, PointD{60, 45}}) {  // the second is the centre
    const CGPath path = Drawn(ArcIn(kBox, point, point, AD_COUNTERCLOCKWISE));
    EXPECT_EQ(ElementsOf(path), "mcccc");
    ExpectNear(PointsOf(path).back(), 110, 45);
  }
}

TEST(Arc, WithOneDirectionAtTheCentreIsTheWholeEllipseFromTheOther) {
  const CGPath path = Drawn(ArcIn(kBox, {60, 45}, {60, 0}, AD_CLOCKWISE));
  EXPECT_EQ(ElementsOf(path), "mcccc");
  ExpectNear(PointsOf(path).front(), 60, 20);
  ExpectNear(PointsOf(path).back(), 60, 20);
}

TEST(Arc, IsNoneInABoxWithoutWidth) {
  EXPECT_FALSE(ArcIn({10, 20, 10, 70}, {0, 0}, {9, 9}, AD_CLOCKWISE));
}

TEST(AngleArc, GoesFromEastToNorthInAQuarterTurn) {
  const CGPath path = Drawn(ArcAround({50, 50}, 10, 0, 90));
  EXPECT_EQ(ElementsOf(path), "mc");
  ExpectNear(PointsOf(path).front(), 60, 50);
  ExpectNear(PointsOf(path).back(), 50, 40);
}

TEST(AngleArc, OfMoreThanAFullTurnIsOneCircle) {
  for (const double sweep : {720.0, -1e300}) {
    const CGPath path = Drawn(ArcAround({50, 50}, 10, 90, sweep));
    EXPECT_EQ(ElementsOf(path), "mcccc") << sweep;
    ExpectNear(PointsOf(path).back(), 50, 40);
  }
}

TEST(AngleArc, IsNoneWithoutNumbers) {
  EXPECT_FALSE(ArcAround({50, 50}, 10, std::nan(""), 90));
  EXPECT_FALSE(ArcAround({50, 50}, 10, 0, std::nan("")));
  EXPECT_FALSE(ArcAround({50, 50}, 10, INFINITY, 90));
}

}  // namespace
}  // namespace kelvane
