#include "platform/quartz/cg_data_provider.h"

#include <array>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(CGDataProvider, IsNullForNullData) {
  EXPECT_EQ(CGDataProviderCreateWithCFData(nullptr), nullptr);
}

TEST(CGDataProvider, SharesADataObject) {
  CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  data->bytes = {1, 2, 3};
  const CFOwned<const CGDataProvider> provider(CGDataProviderCreateWithCFData(data.get()));
  data.reset();
  ASSERT_EQ(provider->Bytes().size(), 3U);
  EXPECT_EQ(provider->Bytes()[2], 3);
}

TEST(CGDataProvider, LendsTheCallersBytes) {
  constexpr std::array<unsigned char, 3> kBytes = {1, 2, 3};
  const CFOwned<const CGDataProvider> provider(
      CGDataProviderCreateWithData(nullptr, kBytes.data(), 2, nullptr));
  EXPECT_EQ(provider->Bytes().data(), kBytes.data());
  EXPECT_EQ(provider->Bytes().size(), 2U);
}

TEST(CGDataProvider, ProvidesBytesThatAreThereWhereTheyAre) {
  constexpr std::array<unsigned char, 3> kBytes = {1, 2, 3};
  const CFOwned<const CGDataProvider> provider(
      CGDataProviderCreateWithData(nullptr, kBytes.data(), kBytes.size(), nullptr));
  EXPECT_FALSE(provider->MakesBytes());
  EXPECT_EQ(provider->Provide().View().data(), kBytes.data());
  EXPECT_EQ(provider->Provide().View().size(), kBytes.size());
}

TEST(CGDataProvider, MakesBytesEachTimeTheyAreAskedFor) {
  unsigned char times = 0;
  const CFOwned<const CGDataProvider> provider(CGDataProviderCreateMaking([&times] {
    return std::vector<unsigned char>{++times, 7};
  }));
  EXPECT_TRUE(provider->MakesBytes());
  EXPECT_TRUE(provider->Bytes().empty());
  const CGProvidedBytes first = provider->Provide();
  const CGProvidedBytes second = provider->Provide();
  ASSERT_EQ(first.View().size(), 2U);
  EXPECT_EQ(first.View()[0], 1);
  EXPECT_EQ(second.View()[0], 2);
}

TEST(CGDataProvider, KeepsMadeBytesWhenTheyAreMoved) {
  CGProvidedBytes bytes(std::vector<unsigned char>{5, 6});
  const CGProvidedBytes moved = std::move(bytes);
  ASSERT_EQ(moved.View().size(), 2U);
  EXPECT_EQ(moved.View()[1], 6);
}

TEST(CGDataProvider, IsNullWithoutAWayToMakeBytes) {
  EXPECT_EQ(CGDataProviderCreateMaking(nullptr), nullptr);
}

/// What a release callback was told.
struct Released {
  int times = 0;
  const void* data = nullptr;
  std::size_t size = 0;
};

void NoteRelease(void* info, const void* data, std::size_t size) {
  auto& released = *static_cast<Released*>(info);
  released = {released.times + 1, data, size};
}

TEST(CGDataProvider, TellsTheReleaseCallbackOnceWhenTheLastReferenceGoes) {
  constexpr std::array<unsigned char, 3> kBytes = {1, 2, 3};
  Released released;
  CFOwned<const CGDataProvider> provider(
      CGDataProviderCreateWithData(&released, kBytes.data(), kBytes.size(), NoteRelease));
  auto second = CFShare(provider.get());
  provider.reset();
  EXPECT_EQ(released.times, 0);
  second.reset();
  EXPECT_EQ(released.times, 1);
  EXPECT_EQ(released.data, kBytes.data());
  EXPECT_EQ(released.size, kBytes.size());
}

}  // namespace
}  // namespace kelvane
