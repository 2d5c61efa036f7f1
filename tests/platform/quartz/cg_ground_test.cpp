#include "platform/quartz/cg_ground.h"

#include <memory>

#include <gtest/gtest.h>

#include "support/surface.h"

namespace kelvane {
namespace {

constexpr CGColor kPaper = {1, 1, 1, 1};
constexpr CGColor kRedGround = {1, 0, 0, 1};
constexpr CGColor kBlueGround = {0, 0, 1, 1};

CGPath Rectangle(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  CGPath path;
  path.AddRectangle({x, y}, {width, height});
  return path;
}

CGPath Polygon(const std::vector<CGPoint>& corners) {
  CGPath path;
  for (const CGPoint corner : corners)
    path.LineTo(corner);
  path.Close();
  return path;
}

CGGraphicsState Filling(const CGColor& color) {
  CGGraphicsState state;
  state.fillColor = color;
  return state;
}

class Ground : public testing::Test {
 protected:
  void Paint(const CGPath& path, const CGGraphicsState& state,
             CGPathDrawingMode mode = kCGPathFill) {
    ground_.PathPainted(state, clips_, path, mode);
  }

  CGGround ground_{kPaper};
  std::vector<CGClip> clips_;
};

TEST_F(Ground, IsPaperAtFirst) {
  EXPECT_EQ(ground_.ColorOf({0, 0, 100, 100}), kPaper);
}

TEST_F(Ground, HasTheColorOfAFilledRectangle) {
  Paint(Rectangle(10, 10, 20, 20), Filling(kRedGround));
  EXPECT_EQ(ground_.ColorOf({10, 10, 30, 30}), kRedGround);
  EXPECT_EQ(ground_.ColorOf({12, 12, 13, 13}), kRedGround);
  EXPECT_EQ(ground_.ColorOf({30, 10, 40, 30}), kPaper);
  EXPECT_EQ(ground_.ColorOf({5, 5, 15, 15}), std::nullopt);
}

TEST_F(Ground, HasTheColorThatWasPaintedLast) {
  Paint(Rectangle(0, 0, 50, 50), Filling(kRedGround));
  Paint(Rectangle(10, 10, 20, 20), Filling(kBlueGround));
  EXPECT_EQ(ground_.ColorOf({11, 11, 29, 29}), kBlueGround);
  EXPECT_EQ(ground_.ColorOf({31, 31, 49, 49}), kRedGround);
  Paint(Rectangle(0, 0, 50, 50), Filling(kRedGround));
  EXPECT_EQ(ground_.ColorOf({0, 0, 50, 50}), kRedGround);
}

TEST_F(Ground, KnowsRectanglesOfLines) {
  Paint(Polygon({{0, 0}, {9, 0}, {9, 9}, {0, 9}}), Filling(kRedGround));
  EXPECT_EQ(ground_.ColorOf({0, 0, 9, 9}), kRedGround);
  Paint(Polygon({{20, 0}, {20, 9}, {29, 9}, {29, 0}, {20, 0}}), Filling(kBlueGround));
  EXPECT_EQ(ground_.ColorOf({20, 0, 29, 9}), kBlueGround);
}

TEST_F(Ground, IsNotKnownUnderAnyOtherShape) {
  CGPath twoFigures = Rectangle(0, 0, 9, 9);
  twoFigures.AddRectangle({2, 2}, {3, 3});
  CGPath curved;
  curved.MoveTo({0, 0});
  curved.CurveTo({9, 0}, {9, 9}, {0, 9});
  for (const CGPath& path : {Polygon({{0, 0}, {9, 0}, {9, 9}}), curved, twoFigures,
                             Polygon({{4, 0}, {9, 4}, {4, 9}, {0, 4}}),
                             Polygon({{0, 0}, {9, 0}, {9, 9}, {0, 9}, {4, 4}})}) {
    ground_ = CGGround(kPaper);
    Paint(path, Filling(kRedGround));
    EXPECT_EQ(ground_.ColorOf({3, 3, 4, 4}), std::nullopt);
    EXPECT_EQ(ground_.ColorOf({10, 10, 11, 11}), kPaper);
  }
}

TEST_F(Ground, IsNotKnownWhereMarksAreMixedWithIt) {
  CGGraphicsState darkening = Filling(kRedGround);
  darkening.blendMode = kCGBlendModeDarken;
  CGGraphicsState translucent = Filling(kRedGround);
  translucent.alpha = 0.5F;
  CGGraphicsState glazing = Filling({1, 0, 0, 0.5F});
  CGGraphicsState patterned = Filling(kRedGround);
  patterned.fillPattern = std::make_shared<const CGPattern>();
  for (const CGGraphicsState& state : {darkening, translucent, glazing, patterned}) {
    ground_ = CGGround(kPaper);
    Paint(Rectangle(0, 0, 9, 9), state);
    EXPECT_EQ(ground_.ColorOf({3, 3, 4, 4}), std::nullopt);
  }
}

TEST_F(Ground, IsNotKnownUnderAStroke) {
  CGGraphicsState state = Filling(kRedGround);
  state.lineWidth = 4;
  Paint(Rectangle(10, 10, 50, 50), state, kCGPathStroke);
  EXPECT_EQ(ground_.ColorOf({30, 30, 40, 40}), std::nullopt);
  EXPECT_EQ(ground_.ColorOf({8.5, 8.5, 9.5, 9.5}), std::nullopt);
  EXPECT_EQ(ground_.ColorOf({0, 0, 5, 5}), kPaper);
}

TEST_F(Ground, IsKnownWithinTheOutlineOfAFilledRectangle) {
  CGGraphicsState state = Filling(kRedGround);
  state.lineWidth = 4;
  Paint(Rectangle(10, 10, 50, 50), state, kCGPathFillStroke);
  EXPECT_EQ(ground_.ColorOf({14, 14, 56, 56}), kRedGround);
  EXPECT_EQ(ground_.ColorOf({11, 14, 56, 56}), std::nullopt);
}

TEST_F(Ground, IsColoredOnlyWithinTheClip) {
  clips_.push_back({Rectangle(0, 0, 10, 100), false, 1, 0});
  Paint(Rectangle(5, 5, 20, 20), Filling(kRedGround));
  EXPECT_EQ(ground_.ColorOf({5, 5, 10, 25}), kRedGround);
  EXPECT_EQ(ground_.ColorOf({12, 6, 13, 7}), std::nullopt);
}

TEST_F(Ground, IsNotKnownUnderAClipOfAnyShape) {
  clips_.push_back({Polygon({{0, 0}, {90, 0}, {0, 90}}), false, 1, 0});
  Paint(Rectangle(5, 5, 20, 20), Filling(kRedGround));
  EXPECT_EQ(ground_.ColorOf({6, 6, 7, 7}), std::nullopt);
}

TEST_F(Ground, KeepsMarksThatLieApartApart) {
  ground_.Disturb({0, 0, 10, 10});
  ground_.Disturb({90, 90, 100, 100});
  EXPECT_EQ(ground_.ColorOf({40, 40, 50, 50}), kPaper);
  EXPECT_EQ(ground_.ColorOf({5, 5, 6, 6}), std::nullopt);
  EXPECT_EQ(ground_.ColorOf({95, 95, 96, 96}), std::nullopt);
}

TEST_F(Ground, ForgetsTheOldestOfManyMarks) {
  for (int i = 0; i < 40; ++i)
    Paint(Rectangle(static_cast<CGFloat>(10 * i), 0, 5, 5),
          Filling(i % 2 == 0 ? kRedGround : kBlueGround));
  EXPECT_EQ(ground_.ColorOf({391, 1, 394, 4}), kBlueGround);
  EXPECT_EQ(ground_.ColorOf({1, 1, 4, 4}), std::nullopt);
  EXPECT_EQ(ground_.ColorOf({7, 1, 8, 4}), std::nullopt);  // between two of those
  EXPECT_EQ(ground_.ColorOf({0, 50, 400, 60}), kPaper);
}

TEST(TheGroundOfASurface, IsNotKnownUntilItIsWatched) {
  test::TraceOf([](CGContextRef surface) {
    EXPECT_EQ(surface->GroundOf({0, 0, 1, 1}), std::nullopt);
    surface->WatchGround(kPaper);
    EXPECT_EQ(surface->GroundOf({0, 0, 1, 1}), kPaper);
    surface->SetFillColor(kRedGround);
    test::FillRect(surface, {{0, 0}, {5, 5}});
    EXPECT_EQ(surface->GroundOf({0, 0, 1, 1}), kRedGround);
  });
}

}  // namespace
}  // namespace kelvane
