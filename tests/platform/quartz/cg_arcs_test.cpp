#include "platform/quartz/cg_arcs.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <ostream>
#include <vector>

#include <gtest/gtest.h>

#include "support/surface_values.h"

namespace kelvane {
namespace {

using test::kInfinity;
using test::kNaN;

constexpr double kRadius = 100;
constexpr CGPoint kCenter = {10, 20};

CGFloat Degrees(double degrees) {
  return static_cast<CGFloat>(degrees / 180 * std::numbers::pi);
}

/// A path's elements, taken apart for looking at.
struct Curves {
  explicit Curves(const CGPath& path) {
    path.ForEach([this](CGPath::Element element, const CGPoint* points) {
      elements.push_back(element);
      ends.push_back(points[std::max<std::size_t>(CGPath::PointCount(element), 1) - 1]);
      if (element == CGPath::Element::kCurve) AddSamples(ends[ends.size() - 2], points);
    });
  }

  void AddSamples(CGPoint start, const CGPoint* points) {
    constexpr int kSamples = 64;
    for (int i = 0; i <= kSamples; ++i) {
      const double t = static_cast<double>(i) / kSamples;
      const double s = 1 - t;
      const auto at = [&](double p0, double p1, double p2, double p3) {
        return s * s * s * p0 + 3 * s * s * t * p1 + 3 * s * t * t * p2 + t * t * t * p3;
      };
      samples.push_back({static_cast<CGFloat>(at(start.x, points[0].x, points[1].x, points[2].x)),
                         static_cast<CGFloat>(at(start.y, points[0].y, points[1].y, points[2].y))});
    }
  }

  std::vector<CGPath::Element> elements;
  std::vector<CGPoint> ends;     // where each element ends
  std::vector<CGPoint> samples;  // points along the curves, in order
};

Curves ArcFrom(double startDegrees, double endDegrees, bool clockwise) {
  CGPath path;
  AddArc(path, {}, kCenter, kRadius, Degrees(startDegrees), Degrees(endDegrees), clockwise);
  return Curves(path);
}

/// @return the degrees the arc runs through, counter-clockwise above 0.
double TurnOf(const Curves& arc) {
  double turn = 0;
  for (std::size_t i = 1; i < arc.samples.size(); ++i) {
    const double fromX = arc.samples[i - 1].x - kCenter.x;
    const double fromY = arc.samples[i - 1].y - kCenter.y;
    const double toX = arc.samples[i].x - kCenter.x;
    const double toY = arc.samples[i].y - kCenter.y;
    turn += std::atan2(fromX * toY - fromY * toX, fromX * toX + fromY * toY);
  }
  return turn * 180 / std::numbers::pi;
}

struct TurnCase {
  double start;
  double end;
  bool clockwise;
  double turn;

  friend std::ostream& operator<<(std::ostream& out, const TurnCase& row) {
    return out << row.start << " to " << row.end << (row.clockwise ? " clockwise" : "");
  }
};

class ArcTurn : public testing::TestWithParam<TurnCase> {};

TEST_P(ArcTurn, FollowsTheDirection) {
  const TurnCase& row = GetParam();
  EXPECT_NEAR(TurnOf(ArcFrom(row.start, row.end, row.clockwise)), row.turn, 1e-2);
}

INSTANTIATE_TEST_SUITE_P(Angles, ArcTurn,
                         testing::Values(TurnCase{0, 90, false, 90}, TurnCase{0, 90, true, -270},
                                         TurnCase{90, 0, false, 270}, TurnCase{90, 0, true, -90},
                                         TurnCase{-30, 30, false, 60},
                                         TurnCase{-30, 30, true, -300},
                                         TurnCase{350, 370, false, 20}, TurnCase{10, 10, false, 0},
                                         TurnCase{10, 10, true, 0}, TurnCase{0, 359, false, 359},
                                         TurnCase{0, 359, true, -1},
                                         TurnCase{0, 1e-3, false, 1e-3}));

INSTANTIATE_TEST_SUITE_P(
    FullTurns, ArcTurn,
    testing::Values(TurnCase{0, 360, false, 360}, TurnCase{0, 360, true, -360},
                    TurnCase{30, 390, false, 360}, TurnCase{30, 390, true, -360},
                    TurnCase{0, -360, false, 360}, TurnCase{0, -360, true, -360},
                    TurnCase{0, 720, false, 360}, TurnCase{0, 450, false, 360},
                    TurnCase{0, -450, true, -360}, TurnCase{0, -450, false, 360},
                    TurnCase{0, 1e30, false, 360}, TurnCase{-1e30, 1e30, true, -360}));

TEST(AddArc, StartsASubpathAtItsStart) {
  const Curves arc = ArcFrom(0, 90, false);
  EXPECT_EQ(arc.elements, (std::vector{CGPath::Element::kMove, CGPath::Element::kCurve}));
  EXPECT_EQ(arc.ends.front(), (CGPoint{110, 20}));
}

TEST(AddArc, IsJoinedToTheCurrentPointByALine) {
  CGPath path;
  path.MoveTo({1, 2});
  AddArc(path, {}, kCenter, kRadius, 0, Degrees(90), false);
  const Curves arc(path);
  EXPECT_EQ(arc.elements,
            (std::vector{CGPath::Element::kMove, CGPath::Element::kLine, CGPath::Element::kCurve}));
  EXPECT_EQ(arc.ends[1], (CGPoint{110, 20}));
}

TEST(AddArc, IsJoinedToAClosedSubpathsStart) {
  CGPath path;
  path.AddRectangle({1, 2}, {3, 4});
  AddArc(path, {}, kCenter, kRadius, 0, Degrees(90), false);
  const Curves arc(path);
  EXPECT_EQ(arc.elements, (std::vector{CGPath::Element::kRectangle, CGPath::Element::kMove,
                                       CGPath::Element::kLine, CGPath::Element::kCurve}));
}

TEST(AddArc, NeedsACurveForEachQuarterTurnBegun) {
  const auto curves = [](double degrees) { return ArcFrom(0, degrees, false).elements.size() - 1; };
  EXPECT_EQ(curves(1), 1U);
  EXPECT_EQ(curves(90), 1U);
  EXPECT_EQ(curves(91), 2U);
  EXPECT_EQ(curves(180), 2U);
  EXPECT_EQ(curves(271), 4U);
  EXPECT_EQ(curves(360), 4U);
}

TEST(AddArc, StaysWithinThreeHundredthsOfAPercentOfTheRadius) {
  for (double end = 5; end <= 360; end += 5) {
    for (const CGPoint& point : ArcFrom(0, end, false).samples) {
      const double distance = std::hypot(point.x - kCenter.x, point.y - kCenter.y);
      ASSERT_NEAR(distance, kRadius, 3e-4 * kRadius) << "in an arc of " << end << " degrees";
    }
  }
}

TEST(AddArc, StartsAndEndsOnItsAngles) {
  for (double angle = 0; angle < 360; angle += 7.5) {
    const Curves arc = ArcFrom(angle, angle + 100, false);
    const double start = Degrees(angle);
    const double end = Degrees(angle + 100);
    constexpr double kTolerance = 5e-5;  // what single precision and whole quarter turns leave
    EXPECT_NEAR(arc.ends.front().x, kCenter.x + kRadius * std::cos(start), kTolerance);
    EXPECT_NEAR(arc.ends.front().y, kCenter.y + kRadius * std::sin(start), kTolerance);
    EXPECT_NEAR(arc.ends.back().x, kCenter.x + kRadius * std::cos(end), kTolerance);
    EXPECT_NEAR(arc.ends.back().y, kCenter.y + kRadius * std::sin(end), kTolerance);
  }
}

TEST(AddArc, HasWholeEndsAtQuarterTurns) {
  EXPECT_EQ(ArcFrom(0, 90, false).ends.back(), (CGPoint{10, 120}));
  EXPECT_EQ(ArcFrom(0, 180, false).ends.back(), (CGPoint{-90, 20}));
  EXPECT_EQ(ArcFrom(0, 270, false).ends.back(), (CGPoint{10, -80}));
  EXPECT_EQ(ArcFrom(90, 450 - 1, false).ends.front(), (CGPoint{10, 120}));
}

TEST(AddArc, ClosesAFullCircleWhereItStarted) {
  for (double angle = -360; angle <= 360; angle += 7.5) {
    const Curves circle = ArcFrom(angle, angle + 360, false);
    EXPECT_EQ(circle.ends.back(), circle.ends.front()) << "from " << angle << " degrees";
  }
}

TEST(AddArc, ReachesItsEndHoweverSmallTheSweep) {
  CGPath path;
  AddArc(path, {}, {0, 0}, 1e9F, 0, 1e-6F, false);
  EXPECT_NEAR(path.CurrentPoint().y, 1e3, 1);
}

TEST(AddArc, MapsItsPoints) {
  CGPath path;
  AddArc(path, {2, 0, 0, 1, 1000, 0}, kCenter, kRadius, 0, Degrees(90), false);
  const Curves arc(path);
  EXPECT_EQ(arc.ends.front(), (CGPoint{1220, 20}));
  EXPECT_EQ(arc.ends.back(), (CGPoint{1020, 120}));
}

TEST(AddArc, OfRadiusZeroIsAPoint) {
  CGPath path;
  AddArc(path, {}, kCenter, 0, 0, Degrees(360), false);
  EXPECT_TRUE(path.IsFinite());
  for (const CGPoint& point : Curves(path).samples)
    EXPECT_EQ(point, kCenter);
}

TEST(AddArc, IsNotFiniteUnderAnAngleOrRadiusThatIsNot) {
  for (const CGFloat bad : {kNaN, kInfinity, -kInfinity}) {
    CGPath start;
    AddArc(start, {}, kCenter, kRadius, bad, 1, false);
    EXPECT_FALSE(start.IsFinite()) << "from " << bad;

    CGPath end;
    AddArc(end, {}, kCenter, kRadius, 0, bad, true);
    EXPECT_FALSE(end.IsFinite()) << "to " << bad;

    CGPath radius;
    AddArc(radius, {}, kCenter, bad, 0, 1, false);
    EXPECT_FALSE(radius.IsFinite()) << "with the radius " << bad;
  }
}

TEST(AddEllipse, RunsFromItsRightmostPointByIncreasingAngle) {
  CGPath path;
  AddEllipse(path, {}, CGRectMake(10, 20, 40, 60));
  const Curves ellipse(path);
  EXPECT_EQ(ellipse.elements, (std::vector{CGPath::Element::kMove, CGPath::Element::kCurve,
                                           CGPath::Element::kCurve, CGPath::Element::kCurve,
                                           CGPath::Element::kCurve, CGPath::Element::kClose}));
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{50, 50}));
}

TEST(AddEllipse, TouchesItsBoxExactly) {
  CGPath path;
  AddEllipse(path, {}, CGRectMake(10, 20, 41, 63));
  const std::vector<CGPoint> ends = Curves(path).ends;
  EXPECT_EQ(ends[0], (CGPoint{51, 51.5F}));
  EXPECT_EQ(ends[1], (CGPoint{30.5F, 83}));
  EXPECT_EQ(ends[2], (CGPoint{10, 51.5F}));
  EXPECT_EQ(ends[3], (CGPoint{30.5F, 20}));
  EXPECT_EQ(ends[4], (CGPoint{51, 51.5F}));
}

TEST(AddEllipse, StaysWithinThreeHundredthsOfAPercentOfACircle) {
  CGPath path;
  AddEllipse(path, {}, CGRectMake(-100, -100, 200, 200));
  for (const CGPoint& point : Curves(path).samples) {
    ASSERT_NEAR(std::hypot(point.x, point.y), 100, 3e-2);
  }
}

TEST(AddEllipse, StartsASubpathOfItsOwn) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  AddEllipse(path, {}, CGRectMake(0, 0, 2, 2));
  EXPECT_EQ(Curves(path).elements[2], CGPath::Element::kMove);
}

TEST(AddEllipse, MapsItsPoints) {
  CGPath path;
  AddEllipse(path, {0, 1, -1, 0, 0, 0}, CGRectMake(-10, -20, 20, 40));
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{0, 10}));
}

}  // namespace
}  // namespace kelvane
