#include "gdiplus/images.h"

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdiplus/traced_graphics.h"

namespace kelvane::gdiplus {
namespace {

constexpr std::array<PointF, 3> kCorners = {{{10, 20}, {30, 20}, {10, 60}}};

std::optional<Shortfall> PlayNothing(const EmfPlusMetafile& /*metafile*/,
                                     const TransformD& /*unitToDevice*/) {
  return Shortfall::kUnreadableMetafile;
}

class DrawnImage : public testing::Test {
 protected:
  /// @return the marks of an image of 4 by 2 pixels.
  std::string Drawn(const RectF& source, const std::array<PointF, 3>& corners = kCorners) {
    const EmfPlusPixels pixels = {4, 2, 12, EmfPlusPixelFormat::k24Rgb, {}, rows_};
    DrawImage(graphics_, pixels, source, corners, attributes_ ? &*attributes_ : nullptr,
              PlayNothing);
    return graphics_.Take();
  }

  std::vector<unsigned char> rows_ = std::vector<unsigned char>(24);
  TracedGraphics graphics_;
  std::optional<EmfPlusImageAttributes> attributes_;
};

/// @return the map of a trace's image, in hundredths.
std::string PlaceOf(const std::string& trace) {
  std::string place;
  const std::string line = LinesWith(trace, "image").at(0);
  const std::vector<std::string_view> words = WordsOf(line);
  for (auto number = words.end() - 6; number != words.end(); ++number)
    place += ' ' + Rounded(*number);
  return place.substr(1);
}

bool IsCut(const std::string& trace) {
  return trace.find("clip") != std::string::npos;
}

// Matrices of images lead from a square whose y grows upwards.
TEST_F(DrawnImage, GoesToItsCorners) {
  const std::string trace = Drawn({0, 0, 4, 2});
  EXPECT_EQ(PlaceOf(trace), "20 0 0 -40 10 60");
  EXPECT_FALSE(IsCut(trace));
}

TEST_F(DrawnImage, GoesThroughTheTransform) {
  graphics_->state.world = {2, 0, 0, 0.5, 0, 0};
  EXPECT_EQ(PlaceOf(Drawn({0, 0, 4, 2})), "40 0 0 -20 20 30");
}

TEST_F(DrawnImage, MayBeTurned) {
  EXPECT_EQ(PlaceOf(Drawn({0, 0, 4, 2}, {{{10, 20}, {10, 60}, {30, 20}}})), "0 40 -20 0 30 20");
}

// Sources are counted from the middle of the first pixel by some, from its edge by others.
TEST_F(DrawnImage, IsWholeThoughItsSourceIsHalfAPixelAway) {
  const std::string trace = Drawn({-0.5F, -0.5F, 4, 2});
  EXPECT_EQ(PlaceOf(trace), "20 0 0 -40 10 60");
  EXPECT_FALSE(IsCut(trace));
}

TEST_F(DrawnImage, IsCutToThePartThatIsItsSource) {
  const std::string trace = Drawn({1, 0, 2, 2});
  EXPECT_EQ(PlaceOf(trace), "40 0 0 -40 0 60");
  EXPECT_EQ(trace.substr(0, trace.find("image")),
            "save\nmove 10 20\nline 30 20\nline 30 60\nline 10 60\nclose\nclip\n");
}

TEST_F(DrawnImage, IsMirroredByASourceThatGoesBack) {
  EXPECT_EQ(PlaceOf(Drawn({4, 0, -4, 2})), "-20 0 0 -40 30 60");
  EXPECT_EQ(PlaceOf(Drawn({0, 2, 4, -2})), "20 0 0 40 10 20");
}

TEST_F(DrawnImage, FillsOnlyItsPartOfASourceThatIsLarger) {
  const std::string trace = Drawn({-4, 0, 8, 2});
  EXPECT_EQ(PlaceOf(trace), "10 0 0 -40 20 60");
  EXPECT_FALSE(IsCut(trace));
}

/// @return what a mark is painted with, and the mark.
std::string PaintOfMark(const std::string& trace) {
  return trace.substr(trace.find("fill-"));
}

// Two of the four columns are the image's own. A pixel is 5 by 20.
TEST_F(DrawnImage, IsRepeatedBeyondItsEdges) {
  attributes_ = EmfPlusImageAttributes{EmfPlusWrapMode::kTile, {}};
  EXPECT_EQ(PaintOfMark(Drawn({2, 0, 4, 2})),
            "fill-pattern 4 2 under 5 0 0 -20 0 60\n"
            "  image\n"
            "end-pattern\n"
            "move 10 20\nline 30 20\nline 30 60\nline 10 60\nclose\neo-fill\n");
}

TEST_F(DrawnImage, IsMirroredBeyondItsEdges) {
  const auto firstLine = [this](EmfPlusWrapMode wrap) {
    attributes_ = EmfPlusImageAttributes{wrap, {}};
    const std::string paint = PaintOfMark(Drawn({2, 0, 4, 2}));
    return paint.substr(0, paint.find(" under"));
  };
  EXPECT_EQ(firstLine(EmfPlusWrapMode::kTileFlipX), "fill-pattern 4 2 mirror-x");
  EXPECT_EQ(firstLine(EmfPlusWrapMode::kTileFlipY), "fill-pattern 4 2 mirror-y");
  EXPECT_EQ(firstLine(EmfPlusWrapMode::kTileFlipXY), "fill-pattern 4 2 mirror-x mirror-y");
}

TEST_F(DrawnImage, IsRepeatedWhereItIsNotItselfSeen) {
  attributes_ = EmfPlusImageAttributes{EmfPlusWrapMode::kTile, {}};
  const std::string paint = PaintOfMark(Drawn({40, 0, 4, 2}));
  EXPECT_EQ(paint.substr(0, paint.find('\n')), "fill-pattern 4 2 under 5 0 0 -20 -190 60");
}

TEST_F(DrawnImage, IsNotRepeatedForHalfAPixel) {
  attributes_ = EmfPlusImageAttributes{EmfPlusWrapMode::kTileFlipXY, {}};
  EXPECT_EQ(PlaceOf(Drawn({-0.5F, -0.5F, 4, 2})), "20 0 0 -40 10 60");
}

TEST_F(DrawnImage, IsClampedToAColorAroundIt) {
  attributes_ = EmfPlusImageAttributes{EmfPlusWrapMode::kClamp, {0, 0, 255, 255}};
  const std::string trace = Drawn({-2, 0, 8, 2});
  EXPECT_NE(trace.find("fill-color 1 0 0\n"
                       "move 10 20\nline 30 20\nline 30 60\nline 10 60\nclose\n"
                       "move 15 20\nline 25 20\nline 25 60\nline 15 60\nclose\neo-fill\n"),
            std::string::npos)
      << trace;
  EXPECT_EQ(PlaceOf(trace), "10 0 0 -40 15 60");
}

TEST_F(DrawnImage, IsClampedToNothingByAClearColor) {
  attributes_ = EmfPlusImageAttributes{EmfPlusWrapMode::kClamp, {0, 0, 0, 0}};
  EXPECT_EQ(Drawn({-2, 0, 8, 2}).find("fill"), std::string::npos);
}

TEST_F(DrawnImage, LeavesNoMarkWithoutASourceOrAPlace) {
  constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  for (const RectF& source : std::vector<RectF>{{0, 0, 0, 2},
                                                {0, 0, 4, 0},
                                                {4, 0, 4, 2},
                                                {0, -2, 4, 2},
                                                {kNan, 0, 4, 2},
                                                {0, 0, 4, kNan},
                                                {0, 0, kInfinity, 2},
                                                {-kInfinity, 0, 4, 2}}) {
    EXPECT_EQ(Drawn(source), "") << source.x << ' ' << source.width;
  }
  attributes_ = EmfPlusImageAttributes{EmfPlusWrapMode::kTile, {}};
  EXPECT_EQ(Drawn({-9, 0, 0, 2}), "");
  EXPECT_EQ(Drawn({-9, kNan, 4, 2}), "");
  EXPECT_EQ(Drawn({0, 0, 4, 2}, {{{10, kNan}, {30, 20}, {10, 60}}}), "");
  EXPECT_EQ(Drawn({0, 0, 4, 2}, {{{10, 20}, {kInfinity, 20}, {10, 60}}}), "");
}

TEST_F(DrawnImage, IsPlayedOntoItsCornersWhenItIsAMetafile) {
  TransformD played;
  std::optional<Shortfall> lack;
  const PlayMetafile play = [&](const EmfPlusMetafile&, const TransformD& unitToDevice) {
    played = unitToDevice;
    return lack;
  };
  DrawImage(graphics_, EmfPlusMetafile{}, {}, kCorners, nullptr, play);
  EXPECT_EQ(played, (TransformD{20, 0, 0, 40, 10, 20}));
  EXPECT_TRUE(graphics_->shortfalls.IsEmpty());

  lack = Shortfall::kMetafileTooDeep;
  DrawImage(graphics_, EmfPlusMetafile{}, {}, kCorners, nullptr, play);
  EXPECT_TRUE(graphics_->shortfalls.Has(Shortfall::kMetafileTooDeep));
}

}  // namespace
}  // namespace kelvane::gdiplus
