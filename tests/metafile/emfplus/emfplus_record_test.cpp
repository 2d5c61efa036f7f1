#include "metafile/emfplus/emfplus_record.h"

#include <gtest/gtest.h>

#include "metafile/emf/decoded_record.h"

namespace kelvane::test {
namespace {

using Uchars = std::vector<unsigned char>;

/// An EMF+ record.
Bytes EmfPlus(std::uint32_t type, std::uint32_t size, const Bytes& data) {
  return Bytes()
      .U16(type)
      .U16(7)
      .U32(size)
      .U32(static_cast<std::uint32_t>(data.Size()))
      .Append(data.Data());
}

TEST(EmfPlusRecord, FollowsTheOneBeforeByItsSize) {
  const Bytes bytes = EmfPlus(0x4001, 20, Bytes().Each({1, 2, 3, 4}))
                          .Zeros(4)
                          .Append(EmfPlus(0x4002, 12, {}).Data());
  ByteView data(bytes.Data());
  const auto first = NextEmfPlusRecord(data);
  ASSERT_TRUE(first);
  EXPECT_EQ(first->type, kEmfPlusHeader);
  EXPECT_EQ(first->flags, 7);
  EXPECT_EQ(BytesOf(first->data), (Uchars{1, 2, 3, 4}));
  const auto second = NextEmfPlusRecord(data);
  ASSERT_TRUE(second);
  EXPECT_EQ(second->type, 0x4002);
  EXPECT_FALSE(NextEmfPlusRecord(data));
}

TEST(EmfPlusRecord, IsNoneWhenItIsNotWhole) {
  for (const Bytes& bytes : {EmfPlus(0x4001, 11, {}), EmfPlus(0x4001, 16, {}),
                             EmfPlus(0x4001, 12, Bytes().Zeros(4)), Bytes().Zeros(11)}) {
    ByteView data(bytes.Data());
    EXPECT_FALSE(NextEmfPlusRecord(data));
  }
}

}  // namespace
}  // namespace kelvane::test
