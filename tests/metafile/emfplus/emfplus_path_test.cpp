#include "metafile/emfplus/emfplus_path.h"

#include <gtest/gtest.h>

#include "emfplus_decoding.h"
#include "emfplus_objects.h"

namespace kelvane::test {
namespace {

// Flags of paths.
constexpr std::uint32_t kIntegers = 0x4000;
constexpr std::uint32_t kWinding = 0x2000;
constexpr std::uint32_t kRuns = 0x1000;
constexpr std::uint32_t kRelative = 0x0800;

using Types = std::vector<std::uint8_t>;

Bytes Path(std::uint32_t points, std::uint32_t flags) {
  return Bytes().U32(kVersion).U32(points).U32(flags);
}

TEST(EmfPlusPath, HasPointsAndATypeForEach) {
  const auto path =
      ReadWhole(ReadEmfPlusPath, Path(2, 0).F32(1.5F).F32(2).F32(3).F32(4).Each({0, 0x81}));
  ASSERT_TRUE(path);
  EXPECT_EQ(path->points, (std::vector<PointF>{{1.5F, 2}, {3, 4}}));
  EXPECT_EQ(path->types, (Types{0, 0x81}));
  EXPECT_FALSE(path->isWinding);
}

TEST(EmfPlusPath, MayHaveIntegersAndWind) {
  const auto path =
      ReadWhole(ReadEmfPlusPath, Path(1, kIntegers | kWinding).Point(1, -2).Each({0}));
  ASSERT_TRUE(path);
  EXPECT_EQ(path->points, (std::vector<PointF>{{1, -2}}));
  EXPECT_TRUE(path->isWinding);
}

TEST(EmfPlusPath, MayBeEmpty) {
  const auto path = ReadWhole(ReadEmfPlusPath, Path(0, 0));
  ASSERT_TRUE(path);
  EXPECT_TRUE(path->points.empty());
}

TEST(EmfPlusPath, MayHaveTypesInRuns) {
  // One by itself, three of a curve, two of a line.
  const Bytes points = Bytes().Zeros(6 * 4);
  const auto path =
      ReadWhole(ReadEmfPlusPath,
                Path(6, kIntegers | kRuns).Append(points.Data()).Each({0, 0xC3, 3, 0x42, 0x81}));
  ASSERT_TRUE(path);
  EXPECT_EQ(path->types, (Types{0, 3, 3, 3, 0x81, 0x81}));
}

TEST(EmfPlusPath, HasAsManyTypesInRunsAsPoints) {
  const Bytes bytes = Path(2, kIntegers | kRuns).Zeros(8).Each({0x43, 1});
  ByteView view(bytes.Data());
  EXPECT_FALSE(ReadEmfPlusPath(view));
}

TEST(EmfPlusPath, MayHaveRelativePointsBeforePlainTypes) {
  const Bytes bytes = Path(3, kRelative).Each({1, 2, 3, 4, 5, 6}).Each({0, 1, 1}).Zeros(3);
  ByteView view(bytes.Data());
  const auto path = ReadEmfPlusPath(view);
  ASSERT_TRUE(path);
  EXPECT_EQ(path->points, (std::vector<PointF>{{1, 2}, {4, 6}, {9, 12}}));
  EXPECT_EQ(path->types, (Types{0, 1, 1}));
}

// Documents do not agree on whether the flag of one is that of the other.
TEST(EmfPlusPath, MayHaveRelativePointsBeforeRunsWithoutTheirFlag) {
  const Bytes bytes = Path(4, kRelative).Zeros(8).Each({0, 0x43, 1});
  ByteView view(bytes.Data());
  const auto path = ReadEmfPlusPath(view);
  ASSERT_TRUE(path);
  EXPECT_EQ(path->types, (Types{0, 1, 1, 1}));
}

TEST(EmfPlusPath, CannotHaveMorePointsThanBytes) {
  for (const std::uint32_t flags : {0U, kIntegers, kRelative, kRuns, kRelative | kRuns}) {
    const Bytes bytes = Path(0xFFFFFFFF, flags).Zeros(64);
    ByteView view(bytes.Data());
    EXPECT_FALSE(ReadEmfPlusPath(view)) << flags;
  }
}

// One writer stores none.
TEST(EmfPlusPath, MustHaveAVersion) {
  const Bytes bytes = Bytes().U32(0).U32(1).U32(kIntegers).Point(1, 2).Each({0, 0, 0, 0});
  ByteView view(bytes.Data());
  EXPECT_FALSE(ReadEmfPlusPath(view));
}

TEST(EmfPlusPath, MayBeOfAnyVersion) {
  const Bytes bytes = Bytes().U32(0xDBC01FFF).U32(0).U32(0);
  ByteView view(bytes.Data());
  EXPECT_TRUE(ReadEmfPlusPath(view));
}

}  // namespace
}  // namespace kelvane::test
