#include "gdiplus/clips.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "gdi/area_points.h"
#include "gdiplus/transforms.h"

namespace kelvane::gdiplus {
namespace {

using Mode = EmfPlusCombineMode;
using Type = EmfPlusRegionNodeType;

constexpr RectF kLeft = {0, 0, 20, 20};    // 5 lies in it, 15 in both
constexpr RectF kRight = {10, 0, 20, 20};  // 25 lies in it

Graphics AtScreen() {
  return {nullptr, {96, 96}};
}

/// @return for x of 5, 15, 25 and 35 whether they can be seen.
std::string Seen(const Graphics& graphics) {
  std::string seen;
  for (const double x : {5.0, 15.0, 25.0, 35.0})
    seen += Contains(graphics.state.clip, {x, 10}) ? '1' : '0';
  return seen;
}

EmfPlusPath PathOf(const RectF& box) {
  return {{{box.x, box.y},
           {box.x + box.width, box.y},
           {box.x + box.width, box.y + box.height},
           {box.x, box.y + box.height}},
          {0, 1, 1, 0x81},
          false};
}

EmfPlusRegionNode Box(const RectF& box) {
  return {Type::kRectangle, box};
}

std::string SeenThrough(const EmfPlusRegion& region) {
  Graphics graphics = AtScreen();
  SetClip(graphics, region, Mode::kReplace);
  return Seen(graphics);
}

TEST(Clip, JoinsRectanglesInSixModes) {
  struct Row {
    Mode mode;
    const char* seen;
  };
  for (const Row& row :
       {Row{Mode::kReplace, "0110"}, Row{Mode::kIntersect, "0100"}, Row{Mode::kUnion, "1110"},
        Row{Mode::kXor, "1010"}, Row{Mode::kExclude, "1000"}, Row{Mode::kComplement, "0010"}}) {
    Graphics graphics = AtScreen();
    SetClip(graphics, kLeft, Mode::kReplace);
    SetClip(graphics, kRight, row.mode);
    EXPECT_EQ(Seen(graphics), row.seen) << static_cast<int>(row.mode);
    Graphics paths = AtScreen();
    SetClip(paths, PathOf(kLeft), Mode::kReplace);
    SetClip(paths, PathOf(kRight), row.mode);
    EXPECT_EQ(Seen(paths), row.seen) << static_cast<int>(row.mode);
  }
}

TEST(Clip, WithoutOneIsEverything) {
  struct Row {
    Mode mode;
    const char* seen;
  };
  for (const Row& row :
       {Row{Mode::kReplace, "0110"}, Row{Mode::kIntersect, "0110"}, Row{Mode::kUnion, "1111"},
        Row{Mode::kXor, "1001"}, Row{Mode::kExclude, "1001"}, Row{Mode::kComplement, "0000"}}) {
    Graphics graphics = AtScreen();
    SetClip(graphics, kRight, row.mode);
    EXPECT_EQ(Seen(graphics), row.seen) << static_cast<int>(row.mode);
  }
}

TEST(Clip, GoesThroughTheTransformsOfTheMoment) {
  Graphics graphics = AtScreen();
  SetWorldTransform(graphics, {0.5F, 0, 0, 1, 0, 0});
  SetClip(graphics, kRight, Mode::kReplace);
  ResetWorldTransform(graphics);
  EXPECT_EQ(Seen(graphics), "1000");
}

TEST(Clip, MovesByWorldUnits) {
  Graphics graphics = AtScreen();
  SetClip(graphics, kLeft, Mode::kReplace);
  SetWorldTransform(graphics, {2, 0, 0, 2, 100, 0});
  OffsetClip(graphics, 5, 0);
  EXPECT_EQ(Seen(graphics), "0110");
}

TEST(Clip, HidesAllInAPathThatIsEmpty) {
  Graphics graphics = AtScreen();
  SetClip(graphics, EmfPlusPath{}, Mode::kReplace);
  EXPECT_EQ(Seen(graphics), "0000");
}

TEST(Clip, IsLeftByNumbersThatAreNotFinite) {
  Graphics graphics = AtScreen();
  SetClip(graphics, kLeft, Mode::kReplace);
  const float infinite = std::numeric_limits<float>::infinity();
  SetClip(graphics, RectF{0, 0, infinite, 1}, Mode::kIntersect);
  SetClip(graphics, PathOf({0, 0, infinite, 1}), Mode::kIntersect);
  OffsetClip(graphics, infinite, 0);
  EXPECT_EQ(Seen(graphics), "1100");
}

TEST(ClipRegion, StaysBandsWhileUpright) {
  Graphics graphics = AtScreen();
  SetClip(graphics, EmfPlusRegion{{{Type::kXor, {}}, Box(kLeft), Box(kRight)}}, Mode::kReplace);
  const auto* region = std::get_if<Region>(&graphics.state.clip.Innermost()->CutTo());
  ASSERT_NE(region, nullptr);
  EXPECT_EQ(region->EdgeCount(), 4U);
}

TEST(ClipRegion, JoinsItsHalvesInFiveWays) {
  struct Row {
    Type type;
    const char* seen;
  };
  for (const Row& row : {Row{Type::kAnd, "0100"}, Row{Type::kOr, "1110"}, Row{Type::kXor, "1010"},
                         Row{Type::kExclude, "1000"}, Row{Type::kComplement, "0010"}}) {
    EXPECT_EQ(SeenThrough({{{row.type, {}}, Box(kLeft), Box(kRight)}}), row.seen);
    EXPECT_EQ(SeenThrough({{{row.type, {}}, {Type::kPath, PathOf(kLeft)}, Box(kRight)}}), row.seen);
  }
}

TEST(ClipRegion, HasAllOfItsLeftHalfBeforeItsRightOne) {
  // (left xor right) without right, and left without (left xor right).
  EXPECT_EQ(
      SeenThrough({{{Type::kExclude, {}}, {Type::kXor, {}}, Box(kLeft), Box(kRight), Box(kRight)}}),
      "1000");
  EXPECT_EQ(
      SeenThrough({{{Type::kExclude, {}}, Box(kLeft), {Type::kXor, {}}, Box(kLeft), Box(kRight)}}),
      "0100");
}

TEST(ClipRegion, KnowsEverythingAndNothing) {
  EXPECT_EQ(SeenThrough({{{Type::kInfinite, {}}}}), "1111");
  EXPECT_EQ(SeenThrough({{{Type::kEmpty, {}}}}), "0000");
  EXPECT_EQ(SeenThrough({{{Type::kExclude, {}}, {Type::kInfinite, {}}, Box(kLeft)}}), "0011");
}

TEST(ClipRegion, KeepsCurvesWhereAllElseIsEverything) {
  EmfPlusPath curve = {{{0, 0}, {0, 20}, {20, 20}, {20, 0}}, {0, 3, 3, 3}, false};
  Graphics graphics = AtScreen();
  SetClip(graphics, EmfPlusRegion{{{Type::kAnd, {}}, {Type::kInfinite, {}}, {Type::kPath, curve}}},
          Mode::kReplace);
  const auto* outline = std::get_if<Outline>(&graphics.state.clip.Innermost()->CutTo());
  ASSERT_NE(outline, nullptr);
  EXPECT_EQ(outline->path->Reached().elements, 2U);
}

TEST(ClipRegion, MayBeAHundredThousandDeepOnEitherSide) {
  constexpr std::size_t kDeep = 100'000;
  EmfPlusRegion left;
  EmfPlusRegion right;
  for (std::size_t i = 0; i < kDeep; ++i) {
    left.nodes.push_back({Type::kOr, {}});
    right.nodes.push_back({Type::kOr, {}});
    right.nodes.push_back(Box(kLeft));
  }
  left.nodes.push_back(Box(kRight));
  right.nodes.push_back(Box(kRight));
  for (std::size_t i = 0; i < kDeep; ++i)
    left.nodes.push_back(Box(kLeft));
  EXPECT_EQ(SeenThrough(left), "1110");
  EXPECT_EQ(SeenThrough(right), "1110");
}

TEST(ClipRegion, LeavesTheClipWhenItTakesTooLong) {
  EmfPlusRegion region;
  constexpr std::size_t kMany = 20'000;
  for (std::size_t i = 1; i < kMany; ++i)
    region.nodes.push_back({Type::kOr, {}});
  for (std::size_t i = 0; i < kMany; ++i)
    region.nodes.push_back(Box({0, static_cast<float>(3 * i), 5, 1}));
  Graphics graphics = AtScreen();
  SetClip(graphics, kRight, Mode::kReplace);
  SetClip(graphics, region, Mode::kReplace);
  EXPECT_EQ(Seen(graphics), "0110");
  EXPECT_TRUE(graphics.shortfalls.Has(Shortfall::kClipTooComplex));
}

TEST(ClipPath, NamedAgainAndAgainTakesNoTime) {
  EmfPlusPath path;
  constexpr std::size_t kPoints = 100'000;
  path.points.resize(kPoints, {5, 5});
  path.types.resize(kPoints, kEmfPlusPointLine);
  Graphics graphics = AtScreen();
  for (int i = 0; i < 10'000; ++i)
    SetClip(graphics, path, Mode::kReplace);
  EXPECT_TRUE(graphics.shortfalls.Has(Shortfall::kClipTooComplex));
}

}  // namespace
}  // namespace kelvane::gdiplus
