#include "platform/appkit/pdf_page.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/library.h"
#include "support/metafile.h"

namespace kelvane {
namespace {

using test::Metafile;

bool operator==(BitmapSize left, BitmapSize right) {
  return left.width == right.width && left.height == right.height;
}

/// A PDF of a page that is red on the left and bare on the right.
std::string HalfRed() {
  return test::ConvertInMemory(Metafile()
                                   .Bounds(10, 20, 14, 22)
                                   .CreateBrush(1, test::Rgb(255, 0, 0))
                                   .SelectObject(1)
                                   .BitBlt({10, 20}, {2, 2})
                                   .Build())
      .output;
}

PdfPage Open(const std::string& pdf) {
  return OpenFirstPage(std::as_bytes(std::span(pdf)));
}

TEST(PdfPage, HasTheSizeOfItsBox) {
  const std::string pdf = HalfRed();
  const PdfPage page = Open(pdf);
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(SizeOf(page.get()).width, 4);
  EXPECT_EQ(SizeOf(page.get()).height, 2);
}

TEST(PdfPage, IsNotFoundInWhatIsNoPdf) {
  EXPECT_EQ(Open(""), nullptr);
  EXPECT_EQ(Open("no document"), nullptr);
  EXPECT_EQ(Open(HalfRed().substr(0, 100)), nullptr);
}

TEST(PdfPage, IsStretchedOverTheBitmap) {
  const std::string pdf = HalfRed();
  std::vector<unsigned char> pixels(std::size_t{8} * 1 * 4);
  ASSERT_TRUE(PaintPage(Open(pdf).get(), {8, 1}, pixels));
  std::vector<unsigned char> expected(pixels.size());
  for (std::size_t i = 0; i < 4; ++i) {
    expected[i * 4] = 254;  // as a brush of a metafile makes it
    expected[i * 4 + 3] = 255;
  }
  EXPECT_EQ(pixels, expected);
}

TEST(BitmapOfAPage, HasWholePixelsForItsRoom) {
  EXPECT_TRUE(BitmapSizeFor(40, 30) == (BitmapSize{40, 30}));
  EXPECT_TRUE(BitmapSizeFor(39.2, 0.1) == (BitmapSize{40, 1}));
  EXPECT_TRUE(BitmapSizeFor(240 * (300.0 / 72), 1e-9) == (BitmapSize{1000, 1}));
}

TEST(BitmapOfAPage, IsCoarserWhereItWouldHaveTooManyPixels) {
  EXPECT_TRUE(BitmapSizeFor(4096, 4096) == (BitmapSize{4096, 4096}));
  EXPECT_TRUE(BitmapSizeFor(8192, 8192) == (BitmapSize{4096, 4096}));
  EXPECT_TRUE(BitmapSizeFor(16384, 4096) == (BitmapSize{8192, 2048}));
}

TEST(BitmapOfAPage, IsNotMadeWithoutRoomOrForMoreThanADeviceHas) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double side : {0.0, -1.0, 32767.5, kInfinity, kNaN}) {
    EXPECT_TRUE(BitmapSizeFor(side, 10) == BitmapSize{}) << side;
    EXPECT_TRUE(BitmapSizeFor(10, side) == BitmapSize{}) << side;
  }
}

}  // namespace
}  // namespace kelvane
