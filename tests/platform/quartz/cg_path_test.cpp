#include "platform/quartz/cg_path.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "support/surface_values.h"

namespace kelvane {
namespace {

using test::kInfinity;
using test::kNaN;

/// The elements as a line of PDF operators: "1 2 m 3 4 l h".
std::string Written(const CGPath& path) {
  std::ostringstream text;
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    for (std::size_t i = 0; i < CGPath::PointCount(element); ++i) {
      text << points[i].x << ' ' << points[i].y << ' ';
    }
    constexpr const char* kOperators[] = {"m ", "l ", "c ", "h ", "re "};
    text << kOperators[static_cast<int>(element)];
  });
  return text.str();
}

TEST(CGPath, StartsEmptyWithItsCurrentPointAtTheOrigin) {
  const CGPath path;
  EXPECT_TRUE(path.IsEmpty());
  EXPECT_FALSE(path.HasSegments());
  EXPECT_TRUE(path.IsFinite());
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{0, 0}));
}

TEST(CGPath, KeepsElementsInOrder) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.CurveTo({5, 6}, {7, 8}, {9, 10});
  path.Close();
  EXPECT_EQ(Written(path), "1 2 m 3 4 l 5 6 7 8 9 10 c h ");
}

TEST(CGPath, TakesALineWithoutACurrentPointForAMove) {
  CGPath path;
  path.LineTo({1, 2});
  EXPECT_FALSE(path.HasSegments());
  path.LineTo({3, 4});
  EXPECT_EQ(Written(path), "1 2 m 3 4 l ");
}

TEST(CGPath, TakesACurveWithoutACurrentPointForAMoveToItsEnd) {
  CGPath path;
  path.CurveTo({1, 2}, {3, 4}, {5, 6});
  EXPECT_FALSE(path.HasSegments());
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{5, 6}));
  path.LineTo({7, 8});
  EXPECT_EQ(Written(path), "5 6 m 7 8 l ");
}

TEST(CGPath, LetsAMoveReplaceTheMoveBefore) {
  CGPath path;
  path.MoveTo({1, 2});
  path.MoveTo({3, 4});
  path.LineTo({5, 6});
  EXPECT_EQ(Written(path), "3 4 m 5 6 l ");
}

TEST(CGPath, LetsARectangleReplaceTheMoveBefore) {
  CGPath path;
  path.MoveTo({1, 2});
  path.AddRectangle({3, 4}, {5, 6});
  EXPECT_EQ(Written(path), "3 4 5 6 re ");
}

TEST(CGPath, LeavesOutAMoveAtItsEnd) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.MoveTo({5, 6});
  EXPECT_EQ(Written(path), "1 2 m 3 4 l ");
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{5, 6}));
}

TEST(CGPath, OfMovesAloneIsNeitherEmptyNorHasSegments) {
  CGPath path;
  path.MoveTo({1, 2});
  EXPECT_FALSE(path.IsEmpty());
  EXPECT_FALSE(path.HasSegments());
  EXPECT_EQ(Written(path), "");
}

TEST(CGPath, ReturnsToTheSubpathsStartWhenClosed) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.Close();
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{1, 2}));
}

TEST(CGPath, ClosesOnlyTheLastSubpath) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.MoveTo({5, 6});
  path.LineTo({7, 8});
  path.Close();
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{5, 6}));
}

TEST(CGPath, StartsASegmentAfterAClosedSubpathWithAMove) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.Close();
  path.LineTo({5, 6});
  EXPECT_EQ(Written(path), "1 2 m 3 4 l h 1 2 m 5 6 l ");
}

TEST(CGPath, StartsACurveAfterARectangleWithAMove) {
  CGPath path;
  path.AddRectangle({1, 2}, {3, 4});
  path.CurveTo({5, 6}, {7, 8}, {9, 10});
  EXPECT_EQ(Written(path), "1 2 3 4 re 1 2 m 5 6 7 8 9 10 c ");
}

TEST(CGPath, ClosesTheSegmentsAfterARectangleToItsCorner) {
  CGPath path;
  path.AddRectangle({1, 2}, {3, 4});
  path.LineTo({5, 6});
  path.Close();
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{1, 2}));
}

TEST(CGPath, ClosesNothingWhereNothingIsOpen) {
  CGPath empty;
  empty.Close();
  EXPECT_TRUE(empty.IsEmpty());

  CGPath move;
  move.MoveTo({1, 2});
  move.Close();
  EXPECT_FALSE(move.HasSegments());

  CGPath rectangle;
  rectangle.AddRectangle({1, 2}, {3, 4});
  rectangle.Close();
  EXPECT_EQ(Written(rectangle), "1 2 3 4 re ");

  CGPath closed;
  closed.MoveTo({1, 2});
  closed.LineTo({3, 4});
  closed.Close();
  closed.Close();
  EXPECT_EQ(Written(closed), "1 2 m 3 4 l h ");
}

TEST(CGPath, StandsAtARectanglesCornerEvenWhenItsSizeIsNegative) {
  CGPath path;
  path.AddRectangle({10, 20}, {-3, -4});
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{10, 20}));
  EXPECT_TRUE(path.HasSegments());
}

TEST(CGPath, MapsEveryPoint) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.CurveTo({5, 6}, {7, 8}, {9, 10});
  path.Close();
  path.AddRectangle({11, 12}, {-13, 14});
  EXPECT_EQ(Written(path.Mapped({2, 0, 0, -1, 100, 0})),
            "102 -2 m 106 -4 l 110 -6 114 -8 118 -10 c h 122 -12 -26 -14 re ");
}

TEST(CGPath, MapsARectangleToLinesWhereItTurns) {
  CGPath path;
  path.AddRectangle({10, 20}, {30, 40});
  EXPECT_EQ(Written(path.Mapped({0, 1, -1, 0, 0, 0})), "-20 10 m -20 40 l -60 40 l -60 10 l h ");
}

TEST(CGPath, ForgetsEverythingWhenCleared) {
  CGPath path;
  path.MoveTo({1, kNaN});
  path.LineTo({3, 4});
  path.Clear();
  EXPECT_TRUE(path.IsEmpty());
  EXPECT_FALSE(path.HasSegments());
  EXPECT_TRUE(path.IsFinite());
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{0, 0}));
  path.LineTo({5, 6});
  EXPECT_FALSE(path.HasSegments());
}

TEST(CGPath, IsNotFiniteOnceAnyCoordinateIsNot) {
  for (const CGFloat bad : {kNaN, kInfinity, -kInfinity}) {
    CGPath move;
    move.MoveTo({bad, 0});
    EXPECT_FALSE(move.IsFinite());

    CGPath line;
    line.MoveTo({0, 0});
    line.LineTo({0, bad});
    line.LineTo({1, 1});
    EXPECT_FALSE(line.IsFinite());

    CGPath control;
    control.MoveTo({0, 0});
    control.CurveTo({0, 0}, {bad, 0}, {1, 1});
    EXPECT_FALSE(control.IsFinite());

    CGPath rectangle;
    rectangle.AddRectangle({0, 0}, {1, bad});
    EXPECT_FALSE(rectangle.IsFinite());
  }
}

/// A subpath of each kind of element, and a rectangle.
CGPath AllElements() {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.CurveTo({5, 6}, {7, 8}, {9, 10});
  path.Close();
  path.AddRectangle({10, 20}, {5, -2});
  return path;
}

TEST(CGPath, IsMappedWhereItLiesAsItsCopyIs) {
  for (const CGAffineTransform& t :
       {CGAffineTransform{2, 0, 0, -3, 10, 20}, CGAffineTransform{0, 1, -1, 0, 5, 6}}) {
    CGPath path = AllElements();
    const CGPath copy = path.Mapped(t);
    path.Map(t);
    EXPECT_EQ(Written(path), Written(copy));
    EXPECT_EQ(path.CurrentPoint(), copy.CurrentPoint());
  }
}

TEST(CGPath, GoesOnFromWhereItWasMappedTo) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.Map({1, 0, 0, 1, 100, 0});
  path.Close();
  path.LineTo({7, 7});
  EXPECT_EQ(Written(path), "101 2 m 103 4 l h 101 2 m 7 7 l ");
}

TEST(CGPath, IsRoundedToPartsOfAUnit) {
  CGPath path;
  path.MoveTo({1.0126F, -2.0004F});
  path.LineTo({0.001F, 3});
  path.Round(1000);
  EXPECT_EQ(Written(path), "1.013 -2 m 0.001 3 l ");
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{0.001F, 3}));
}

TEST(CGPath, IsNotFiniteOnceMappedBeyondItsNumbers) {
  CGPath path;
  path.MoveTo({3e38F, 0});
  path.LineTo({0, 0});
  path.Map({10, 0, 0, 10, 0, 0});
  EXPECT_FALSE(path.IsFinite());
}

TEST(CGPath, IsNotFiniteOnceItCannotBeRounded) {
  CGPath path;
  path.MoveTo({1e36F, 0});
  path.LineTo({0, 0});
  path.Round(1000);
  EXPECT_FALSE(path.IsFinite());
}

TEST(CGPath, GoesBackToWhereItWas) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  const CGPath::Progress before = path.Reached();
  const std::string written = Written(path);
  path.Close();
  path.AddRectangle({5, 5}, {kInfinity, 1});
  path.GoBackTo(before);
  EXPECT_EQ(Written(path), written);
  EXPECT_TRUE(path.IsFinite());
  EXPECT_EQ(path.CurrentPoint(), (CGPoint{3, 4}));
  path.Close();
  EXPECT_EQ(Written(path), written + "h ");
}

TEST(CGPath, LetsItsLastRectangleGrow) {
  CGPath path;
  path.AddRectangle({1, 2}, {1, 1});
  path.GrowLastRectangle({2, 0});
  EXPECT_EQ(Written(path), "1 2 3 1 re ");
}

}  // namespace
}  // namespace kelvane
