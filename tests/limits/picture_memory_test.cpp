// What making a picture of pixels takes beside its pixels.

#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

#include <kelvane/kelvane.h>

#include "limits/allocations.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

constexpr std::size_t kMebibyte = 1 << 20;

/// A polygon of so many corners that a mask is made of a clip to it.
Points ManyCorners(double radius) {
  constexpr int kCorners = 600;
  Points points;
  for (int i = 0; i < kCorners; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCorners;
    const double reach = i % 2 == 0 ? radius : radius * 0.95;
    points.push_back({static_cast<std::int32_t>(500 + reach * std::cos(angle)),
                      static_cast<std::int32_t>(500 + reach * std::sin(angle))});
  }
  return points;
}

/// Clips within each other, with a mark below each on the way in and on the way out.
File NestedClips(int count) {
  Metafile metafile;
  metafile.Bounds(0, 0, 1000, 1000);
  for (int i = 0; i < count; ++i) {
    metafile.SaveDC().BeginPath().Polygon(ManyCorners(490 - 0.5 * i)).EndPath();
    metafile.SelectClipPath(kRegionAnd).Rectangle({100 + i, 100, 900, 900});
  }
  for (int i = 0; i < count; ++i)
    metafile.RestoreDC().Rectangle({100, 100 + i, 900, 900});
  return metafile.Build();
}

/// The most that a picture of a million pixels takes at once.
std::size_t PeakOfPicture(const File& file) {
  kelvane_options* const options = kelvane_options_new();
  kelvane_options_set(options, "format", "png");
  kelvane_options_set(options, "page", "bounds");
  kelvane_options_set(options, "width", "1000");
  const std::size_t before = LiveBytes();
  StartPeak();
  kelvane_result* const result = kelvane_convert(file.data(), file.size(), options);
  const std::size_t peak = PeakBytes() - before;
  EXPECT_EQ(kelvane_result_status(result), KELVANE_DONE) << kelvane_result_message(result);
  kelvane_result_free(result);
  kelvane_options_free(options);
  return peak;
}

TEST(MasksOfNestedClips, TakeAsMuchAsSomePagesHoweverManyThereAre) {
  const File file = NestedClips(100);
  EXPECT_LT(PeakOfPicture(file), 30 * kMebibyte + 12 * file.size());
}

}  // namespace
}  // namespace kelvane::test
