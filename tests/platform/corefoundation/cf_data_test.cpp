#include "platform/corefoundation/cf_data.h"

#include <array>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

using ByteList = std::vector<unsigned char>;

constexpr std::array<unsigned char, 3> kBytes = {1, 2, 3};

CFOwned<CFData> DataOf123() {
  CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  CFDataAppendBytes(data.get(), kBytes.data(), 3);
  return data;
}

TEST(CFData, StartsEmptyWhateverItsCapacity) {
  for (const CFIndex capacity : {CFIndex{-5}, CFIndex{0}, CFIndex{1000}}) {
    const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, capacity));
    EXPECT_EQ(CFDataGetLength(data.get()), 0) << "capacity " << capacity;
  }
}

TEST(CFData, GrowsPastItsCapacity) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 1));
  CFDataAppendBytes(data.get(), kBytes.data(), 3);
  EXPECT_EQ(CFDataGetLength(data.get()), 3);
}

TEST(CFData, AppendsBehindWhatItHolds) {
  const CFOwned<CFData> data = DataOf123();
  CFDataAppendBytes(data.get(), kBytes.data() + 1, 1);
  EXPECT_EQ(data->bytes, (ByteList{1, 2, 3, 2}));
}

TEST(CFData, AppendsNothingForALengthBelowOne) {
  const CFOwned<CFData> data = DataOf123();
  CFDataAppendBytes(data.get(), kBytes.data(), 0);
  CFDataAppendBytes(data.get(), kBytes.data(), -1);
  CFDataAppendBytes(data.get(), nullptr, 0);
  EXPECT_EQ(data->bytes, (ByteList{1, 2, 3}));
}

TEST(CFData, IsCutToALength) {
  const CFOwned<CFData> data = DataOf123();
  CFDataSetLength(data.get(), 2);
  EXPECT_EQ(data->bytes, (ByteList{1, 2}));
}

TEST(CFData, IsExtendedWithZeros) {
  const CFOwned<CFData> data = DataOf123();
  CFDataSetLength(data.get(), 5);
  EXPECT_EQ(data->bytes, (ByteList{1, 2, 3, 0, 0}));
}

TEST(CFData, IsEmptyAfterALengthBelowZero) {
  const CFOwned<CFData> data = DataOf123();
  CFDataSetLength(data.get(), -1);
  EXPECT_EQ(CFDataGetLength(data.get()), 0);
}

TEST(CFData, LendsItsBytes) {
  const CFOwned<CFData> data = DataOf123();
  const unsigned char* const bytes = CFDataGetBytePtr(data.get());
  EXPECT_EQ(ByteList(bytes, bytes + 3), (ByteList{1, 2, 3}));
}

}  // namespace
}  // namespace kelvane
