#include "metafile/stored_dib.h"

#include <gtest/gtest.h>

#include "support/bytes.h"

namespace kelvane::test {
namespace {

/// Where the pixels of a bitmap in one piece begin.
std::size_t PixelsAt(const Bytes& header, DibUsage usage = DIB_RGB_COLORS) {
  const Bytes bytes = Bytes(header).Zeros(2000);
  ByteView view(bytes.Data());
  const StoredDib dib = ReadPackedDib(view, usage);
  EXPECT_FALSE(view.IsShort());
  EXPECT_EQ(dib.header.Bytes().size() + dib.pixels.Bytes().size(), bytes.Size());
  return dib.header.Bytes().size();
}

TEST(PackedDib, HasItsPixelsBehindTheColors) {
  EXPECT_EQ(PixelsAt(Bytes().BitmapHeader({.bitCount = 24})), 40U);
  EXPECT_EQ(PixelsAt(Bytes().BitmapHeader({.bitCount = 8})), 40U + 256 * 4);
  EXPECT_EQ(PixelsAt(Bytes().BitmapHeader({.bitCount = 4, .colorsUsed = 3})), 40U + 3 * 4);
  EXPECT_EQ(PixelsAt(Bytes().BitmapHeader({.bitCount = 1, .colorsUsed = 99})), 40U + 2 * 4);
  EXPECT_EQ(PixelsAt(Bytes().BitmapHeader({.bitCount = 24, .colorsUsed = 5})), 40U + 5 * 4);
  EXPECT_EQ(PixelsAt(Bytes().BitmapHeader({.bitCount = 16, .compression = BI_BITFIELDS})), 52U);
  EXPECT_EQ(PixelsAt(Bytes().BitmapHeader({.bitCount = 4}), DIB_PAL_COLORS), 40U + 16 * 2);
  EXPECT_EQ(PixelsAt(Bytes().BitmapHeader({.bitCount = 4}), DIB_PAL_INDICES), 40U);
  const Bytes core = Bytes().U32(12).U16(1).U16(1).U16(1).U16(4);
  EXPECT_EQ(PixelsAt(core), 12U + 16 * 3);
}

TEST(PackedDib, IsShortWithoutPixels) {
  for (const std::uint32_t used : {0U, 5U, 0xFFFFFFFFU}) {
    const Bytes bytes =
        Bytes().BitmapHeader({.bitCount = used == 0 ? 24U : 32U, .colorsUsed = used});
    ByteView view(bytes.Data());
    EXPECT_TRUE(ReadPackedDib(view, DIB_RGB_COLORS).pixels.Bytes().empty());
    EXPECT_TRUE(view.IsShort());
  }
}

}  // namespace
}  // namespace kelvane::test
