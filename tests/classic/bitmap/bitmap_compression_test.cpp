#include "classic/bitmap/bitmap_compression.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(BitmapCompression, HasADecoderForPlainPixelsAndForBitfieldsOnly) {
  EXPECT_NE(BitmapCompression::GetCompression(0), nullptr);
  EXPECT_NE(BitmapCompression::GetCompression(3), nullptr);
  for (const std::uint32_t undecoded : {1U, 2U, 4U, 5U, 6U, 0xFFFFFFFFU}) {
    EXPECT_EQ(BitmapCompression::GetCompression(undecoded), nullptr) << undecoded;
  }
}

}  // namespace
}  // namespace kelvane
