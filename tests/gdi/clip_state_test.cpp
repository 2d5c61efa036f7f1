#include "gdi/clip_state.h"

#include <optional>

#include <gtest/gtest.h>

#include "gdi/area_points.h"
#include "gdi/region_grid.h"

namespace kelvane {
namespace {

constexpr std::uint64_t kEnough = 1U << 24;

/// What the rules say, on sets of pixels.
struct ClipOfPixels {
  Pixels meta = ~Pixels();
  std::optional<Pixels> clip;

  void Join(const Pixels& area, RegionMode mode) {
    if (clip) {
      clip = CombinePixels(*clip, area, mode);
    } else if (mode == RGN_AND || mode == RGN_COPY) {
      clip = area;
    } else if (mode != RGN_OR) {
      clip = ~area;
    }
  }
  void MoveIntoMeta() {
    meta = Painted();
    clip.reset();
  }
  [[nodiscard]] Pixels Painted() const { return meta & clip.value_or(~Pixels()); }
};

bool Join(ClipState& clip, const Area& area, RegionMode mode) {
  Steps steps(kEnough);
  return clip.Join(area, mode, steps);
}

TEST(ClipState, ClipsAsSetsOfPixelsDo) {
  std::mt19937 random(3);  // NOLINT: the same clips in every run
  const auto oneOf = [&](int count) { return std::uniform_int_distribution(0, count - 1)(random); };
  for (int round = 0; round < 400; ++round) {
    ClipState clip;
    ClipOfPixels expected;
    for (int step = 0; step < 8; ++step) {
      const Region region = UnionOf(RandomRectangles(random));
      Area area = region;
      if (oneOf(3) == 0) {
        area = Outline{std::make_shared<CGPath>(PathOf(area, kWholePage)), WINDING};
      }
      const RegionMode mode = kRegionModes[oneOf(5)];
      const int call = oneOf(12);
      if (call == 0) {
        clip.MoveIntoMeta();
        expected.MoveIntoMeta();
      } else if (call == 1) {
        clip.Drop();
        expected.clip.reset();
      } else {
        ASSERT_TRUE(Join(clip, area, mode));
        expected.Join(PixelsOf(region), mode);
      }
      ASSERT_EQ(PixelsOf(clip), expected.Painted()) << "round " << round << " step " << step;
    }
  }
}

TEST(ClipState, LetsEverythingThroughAtFirst) {
  EXPECT_FALSE(ClipState().HasClip());
  EXPECT_EQ(ClipState().Innermost(), nullptr);
}

TEST(ClipState, StaysWithoutAClipWhenSomethingIsAdded) {
  ClipState clip;
  EXPECT_TRUE(Join(clip, Region({0, 0, 1, 1}), RGN_OR));
  EXPECT_FALSE(clip.HasClip());
}

TEST(ClipState, KeepsPathsAsTheyAreWhileItOnlyNarrows) {
  CGPath curve;
  curve.MoveTo({0, 0});
  curve.CurveTo({10, 0}, {10, 10}, {0, 10});
  const auto path = std::make_shared<const CGPath>(curve);
  ClipState clip;
  ASSERT_TRUE(Join(clip, Outline{path, WINDING}, RGN_AND));
  ASSERT_TRUE(Join(clip, Region({0, 0, 5, 5}), RGN_AND));
  ASSERT_TRUE(Join(clip, Outline{path, ALTERNATE}, RGN_DIFF));
  const auto& innermost = clip.Innermost();
  EXPECT_EQ(innermost->Depth(), 3U);
  EXPECT_EQ(std::get<Outline>(innermost->CutTo()).path, path);
  EXPECT_TRUE(std::get<Outline>(innermost->CutTo()).isOutside);
  EXPECT_EQ(std::get<Outline>(innermost->Outer()->Outer()->CutTo()).path, path);
}

TEST(ClipState, MakesOneCutOfRectangles) {
  ClipState clip;
  ASSERT_TRUE(Join(clip, Region({0, 0, 9, 9}), RGN_AND));
  ASSERT_TRUE(Join(clip, Region({3, 3, 20, 20}), RGN_AND));
  ASSERT_TRUE(Join(clip, Region({4, 4, 5, 5}), RGN_DIFF));
  EXPECT_EQ(clip.Innermost()->Depth(), 1U);
}

TEST(ClipState, NeverMakesOneCutOfClipAndMetaRegion) {
  ClipState clip;
  ASSERT_TRUE(Join(clip, Region({0, 0, 9, 9}), RGN_AND));
  clip.MoveIntoMeta();
  EXPECT_FALSE(clip.HasClip());
  ASSERT_TRUE(Join(clip, Region({3, 3, 20, 20}), RGN_AND));
  EXPECT_EQ(clip.Innermost()->Depth(), 2U);
  clip.Drop();
  EXPECT_EQ(clip.Innermost()->CutTo(), Area(Region({0, 0, 9, 9})));
}

TEST(ClipState, MovesTheClipAndNotTheMetaRegion) {
  Steps steps(kEnough);
  ClipState clip;
  ASSERT_TRUE(Join(clip, Region({0, 0, 9, 9}), RGN_AND));
  clip.MoveIntoMeta();
  ASSERT_TRUE(clip.Offset(1, 1, steps));
  EXPECT_FALSE(clip.HasClip());
  ASSERT_TRUE(Join(clip, Region({0, 0, 4, 4}), RGN_AND));
  ASSERT_TRUE(clip.Offset(3, 2.5, steps));
  EXPECT_EQ(clip.Innermost()->CutTo(), Area(Region({3, 2.5, 7, 6.5})));
  EXPECT_EQ(clip.Innermost()->Outer()->CutTo(), Area(Region({0, 0, 9, 9})));
}

TEST(ClipState, ChangesNothingForAModeThatIsNone) {
  ClipState clip;
  EXPECT_FALSE(Join(clip, Region({0, 0, 4, 4}), static_cast<RegionMode>(0)));
  EXPECT_FALSE(Join(clip, Region({0, 0, 4, 4}), static_cast<RegionMode>(6)));
  EXPECT_FALSE(clip.HasClip());
}

TEST(ClipState, ChangesNothingWhenTheStepsRunOut) {
  ClipState clip;
  ASSERT_TRUE(Join(clip, Region({0, 0, 4, 4}), RGN_COPY));
  const ClipState before = clip;
  for (const RegionMode mode : {RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF}) {
    Steps none(0);
    EXPECT_FALSE(clip.Join(Region({1, 1, 2, 2}), mode, none));
  }
  Steps none(0);
  EXPECT_FALSE(clip.Offset(1, 1, none));
  EXPECT_EQ(clip, before);
}

TEST(ClipState, IsACopyThatLaterChangesLeaveAlone) {
  ClipState clip;
  ASSERT_TRUE(Join(clip, Region({0, 0, 4, 4}), RGN_COPY));
  const ClipState copy = clip;
  EXPECT_EQ(clip, copy);
  ASSERT_TRUE(Join(clip, Region({1, 1, 2, 2}), RGN_AND));
  EXPECT_NE(clip, copy);
  EXPECT_EQ(copy.Innermost()->CutTo(), Area(Region({0, 0, 4, 4})));
}

// What is not one after the other, but inside one another, must not be taken down by recursion.
TEST(ClipState, TakesAMillionCuts) {
  CGPath triangle;
  for (const CGPoint point : {CGPoint{0, 0}, CGPoint{4, 0}, CGPoint{0, 4}})
    triangle.LineTo(point);
  const Outline outline = {std::make_shared<CGPath>(triangle), WINDING};
  Steps steps(kEnough);
  ClipState clip;
  for (int i = 0; i < 1000000; ++i)
    ASSERT_TRUE(clip.Join(outline, RGN_AND, steps));
  EXPECT_EQ(clip.Innermost()->Depth(), 1000000U);
  EXPECT_EQ(steps.Left(), kEnough);
}

}  // namespace
}  // namespace kelvane
