#include "base/crc32.h"

#include <array>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(Crc32, IsTheOneOfPng) {
  constexpr std::array<unsigned char, 4> kEnd = {'I', 'E', 'N', 'D'};
  EXPECT_EQ(Crc32(kEnd), 0xAE426082U);  // as it stands at the end of every file
}

}  // namespace
}  // namespace kelvane
