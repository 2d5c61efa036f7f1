#include "metafile/emfplus/emfplus_region.h"

#include <gtest/gtest.h>

#include "emfplus_decoding.h"
#include "emfplus_objects.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kAnd = 1;
constexpr std::uint32_t kRectangle = 0x10000000;
constexpr std::uint32_t kPath = 0x10000001;
constexpr std::uint32_t kEmpty = 0x10000002;
constexpr std::uint32_t kInfinite = 0x10000003;

using Type = EmfPlusRegionNodeType;

Bytes Region(std::uint32_t nodesBelow) {
  return Bytes().U32(kVersion).U32(nodesBelow);
}

TEST(EmfPlusRegion, MayBeARectangle) {
  const auto region =
      ReadWhole(ReadEmfPlusRegion, Region(0).U32(kRectangle).F32(1).F32(2).F32(3).F32(4));
  ASSERT_TRUE(region);
  EXPECT_EQ(region->nodes, (std::vector<EmfPlusRegionNode>{{Type::kRectangle, RectF{1, 2, 3, 4}}}));
}

TEST(EmfPlusRegion, HasTheNodesOfItsTreeInTheirOrder) {
  const auto region =
      ReadWhole(ReadEmfPlusRegion, Region(4).U32(5).U32(4).U32(kEmpty).U32(kInfinite).U32(kEmpty));
  ASSERT_TRUE(region);
  EXPECT_EQ(region->nodes, (std::vector<EmfPlusRegionNode>{{Type::kComplement, {}},
                                                           {Type::kExclude, {}},
                                                           {Type::kEmpty, {}},
                                                           {Type::kInfinite, {}},
                                                           {Type::kEmpty, {}}}));
}

TEST(EmfPlusRegion, MayHavePaths) {
  const Bytes path = LinePath();
  const auto region = ReadWhole(
      ReadEmfPlusRegion,
      Region(0).U32(kPath).U32(static_cast<std::uint32_t>(path.Size())).Append(path.Data()));
  ASSERT_TRUE(region);
  EXPECT_EQ(std::get<EmfPlusPath>(region->nodes[0].shape).points.size(), 2U);
}

/// A tree that goes down on one side.
Bytes DeepTree(std::size_t depth) {
  Bytes bytes = Region(0);
  for (std::size_t i = 0; i < depth; ++i)
    bytes.U32(kAnd);
  for (std::size_t i = 0; i <= depth; ++i)
    bytes.U32(kInfinite);
  return bytes;
}

TEST(EmfPlusRegion, MayBeAsDeepAsItLikes) {
  const Bytes bytes = DeepTree(10'000);
  ByteView view(bytes.Data());
  const auto region = ReadEmfPlusRegion(view);
  ASSERT_TRUE(region);
  EXPECT_EQ(region->nodes.size(), 20'001U);
  EXPECT_EQ(view.Remaining(), 0U);
}

TEST(EmfPlusRegion, IsNoneWhenItsTreeIsNotWhole) {
  Bytes rows[] = {
      Region(0).U32(0),
      Region(0).U32(6),
      Region(0).U32(0x10000004),
      Region(2).U32(kAnd).U32(kInfinite),
      Region(0).U32(kPath).U32(0xFFFFFFFF).Append(LinePath().Data()),
      Region(0).U32(kPath).U32(8).Append(LinePath().Data()),
      Bytes().U32(0).U32(0).U32(kInfinite),
  };
  for (const Bytes& bytes : rows) {
    ByteView view(bytes.Data());
    EXPECT_FALSE(ReadEmfPlusRegion(view));
  }
}

}  // namespace
}  // namespace kelvane::test
