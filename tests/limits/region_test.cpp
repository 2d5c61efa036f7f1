// What many rectangles may take. Steps are counted where the time goes, and the count is the same
// on every machine.

#include "gdi/region.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "limits/allocations.h"

namespace kelvane::test {
namespace {

constexpr std::size_t kMany = 100000;

struct Arrangement {
  const char* name;
  std::vector<RectangleD> (*make)(std::size_t count);
};

void PrintTo(const Arrangement& arrangement, std::ostream* out) {
  *out << arrangement.name;
}

std::vector<RectangleD> Staircase(std::size_t count) {
  std::vector<RectangleD> rectangles;
  for (std::size_t i = 0; i < count; ++i) {
    const auto at = static_cast<double>(i);
    rectangles.push_back({at, at, at + 2, at + 2});
  }
  return rectangles;
}

std::vector<RectangleD> Checkerboard(std::size_t count) {
  std::vector<RectangleD> rectangles;
  for (std::size_t row = 0; rectangles.size() < count; ++row) {
    for (std::size_t i = 0; i < 300 && rectangles.size() < count; ++i) {
      const auto x = static_cast<double>(2 * i + row % 2);
      const auto y = static_cast<double>(row);
      rectangles.push_back({x, y, x + 1, y + 1});
    }
  }
  return rectangles;
}

/// Each covers half of all others, and they come from the bottom upwards.
std::vector<RectangleD> Overlapping(std::size_t count) {
  std::vector<RectangleD> rectangles = Staircase(count);
  for (RectangleD& r : rectangles) {
    r.right += static_cast<double>(count) / 2;
    r.bottom += static_cast<double>(count) / 2;
  }
  return {rectangles.rbegin(), rectangles.rend()};
}

std::vector<RectangleD> Nested(std::size_t count) {
  std::vector<RectangleD> rectangles;
  for (std::size_t i = 0; i < count; ++i) {
    const auto inset = static_cast<double>(i) / 4;
    const auto size = static_cast<double>(count);
    rectangles.push_back({inset, inset, size - inset, size - inset});
  }
  return rectangles;
}

std::vector<RectangleD> Row(std::size_t count) {
  std::vector<RectangleD> rectangles;
  for (std::size_t i = 0; i < count; ++i) {
    const auto x = static_cast<double>(2 * i);
    rectangles.push_back({x, 0, x + 1, 1});
  }
  return rectangles;
}

class Rectangles : public testing::TestWithParam<Arrangement> {
 protected:
  static Region Make(std::size_t count, Steps& steps) {
    return Region::Union(GetParam().make(count), steps).value();
  }

  static std::uint64_t StepsOf(std::size_t count) {
    Steps steps(1U << 30);
    Make(count, steps);
    return (1U << 30) - steps.Left();
  }
};

TEST_P(Rectangles, UniteInStepsThatHardlyGrowFasterThanTheyDo) {
  EXPECT_LT(StepsOf(kMany), 100 * kMany);
  EXPECT_LT(StepsOf(2 * kMany), StepsOf(kMany) * 23 / 10);
}

TEST_P(Rectangles, CombineInStepsProportionalToTheirNumber) {
  Steps forUnions(1U << 30);
  const Region region = Make(kMany, forUnions);
  const Region moved = region.Translated(0.5, 0.5);
  for (const RegionMode mode : {RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF, RGN_COPY}) {
    Steps steps(20 * kMany);
    EXPECT_TRUE(Combine(region, moved, mode, steps).has_value()) << mode;
  }
}

TEST_P(Rectangles, UniteInMemoryProportionalToTheirNumber) {
  const std::vector<RectangleD> rectangles = GetParam().make(kMany);
  Steps steps(1U << 30);
  const std::size_t before = LiveBytes();
  StartPeak();
  const auto region = Region::Union(rectangles, steps);
  EXPECT_LT(PeakBytes() - before, 320 * kMany);
  EXPECT_LT(LiveBytes() - before, 128 * kMany);
}

INSTANTIATE_TEST_SUITE_P(, Rectangles,
                         testing::Values(Arrangement{"Staircase", Staircase},
                                         Arrangement{"Checkerboard", Checkerboard},
                                         Arrangement{"Overlapping", Overlapping},
                                         Arrangement{"Nested", Nested}, Arrangement{"Row", Row}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
