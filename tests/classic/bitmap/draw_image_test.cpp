#include "classic/bitmap/draw_image.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/bytes.h"
#include "support/metafile.h"
#include "support/pdf.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::ConvertToPdf;
using test::Metafile;
using test::Pdf;
using test::ReadStructure;
using test::TracedPage;
using testing::ElementsAreArray;
using testing::SizeIs;

const Bytes kRgb = Bytes().BitmapHeader({.width = 2, .height = 2}).Zeros(16);
const Bytes kGray = Bytes().BitmapHeader({.width = 2, .height = 2, .bitCount = 4}).Zeros(64 + 8);
constexpr RectangleL kTarget = {10, 20, 30, 60};

std::string TraceOf(const Bytes& bitmap, const RectangleL& box) {
  TracedPage page;
  DrawImageInRect(page.Context(), ReadStructure<DIB>(bitmap), box);
  return page.Trace();
}

TEST(DrawImageInRect, FillsTheMappedRectangle) {
  EXPECT_EQ(TraceOf(kRgb, kTarget), "image 2 2 rgb under 20 0 0 40 10 -60\n");
}

TEST(DrawImageInRect, ScalesTheRectangleUnderTheAnisotropicMappingMode) {
  TracedPage page;
  page.Context().mapMode = kMapModeAnisotropic;
  page.Context().viewportExt = {2, 3};
  DrawImageInRect(page.Context(), ReadStructure<DIB>(kRgb), kTarget);
  EXPECT_EQ(page.Trace(), "image 2 2 rgb under 40 0 0 120 20 -180\n");
}

TEST(DrawImageInRect, StaysUprightInASwappedRectangle) {
  EXPECT_EQ(TraceOf(kRgb, {30, 60, 10, 20}), TraceOf(kRgb, kTarget));
}

TEST(DrawImageInRect, StaysInItsPlaceOnThePageUnderATransform) {
  TracedPage page;
  CGContextConcatCTM(page.Context().context, {2, 0, 0, 4, 8, 16});
  DrawImageInRect(page.Context(), ReadStructure<DIB>(kRgb), kTarget);
  EXPECT_EQ(page.Trace(), TraceOf(kRgb, kTarget));
}

TEST(DrawImageInRect, DrawsEightBitPixelsInGray) {
  EXPECT_EQ(TraceOf(kGray, kTarget), "image 2 2 gray under 20 0 0 40 10 -60\n");
}

TEST(DrawImageInRect, MarksNothingWithoutPixels) {
  EXPECT_EQ(TraceOf(Bytes().BitmapHeader({.bitCount = 1}).Zeros(12), kTarget), "");
  EXPECT_EQ(TraceOf(Bytes().BitmapHeader({.height = 0}), kTarget), "");
}

TEST(ImageOnThePage, IsStoredOnceHoweverOftenItIsDrawn) {
  const Pdf pdf(ConvertToPdf(
      Metafile().StretchDibits(kTarget, kRgb).StretchDibits({0, 0, 5, 5}, kRgb).Build()));
  EXPECT_THAT(pdf.Images(), SizeIs(1));
  EXPECT_NE(pdf.Content().find("20 0 0 40 10 -60 cm"), std::string::npos);
  EXPECT_NE(pdf.Content().find("5 0 0 5 0 -5 cm"), std::string::npos);
}

struct Format {
  std::uint32_t bitCount;
  std::int32_t width;
  std::int32_t height;  // negative: stored top row first
};

void PrintTo(const Format& format, std::ostream* out) {
  *out << format.bitCount << " bits, " << format.width << " x " << format.height;
}

std::vector<Format> AllFormats() {
  std::vector<Format> formats;
  for (const std::uint32_t bitCount : {4U, 8U, 16U, 24U, 32U}) {
    for (const std::int32_t width : {1, 2, 3, 5, 9, 32}) {
      for (const std::int32_t height : {-4, -1, 1, 3})
        formats.push_back({bitCount, width, height});
    }
  }
  return formats;
}

/// A bitmap of distinguishable colours and pixels.
Bytes BitmapOf(const Format& format) {
  Bytes bytes = Bytes().BitmapHeader(
      {.width = format.width, .height = format.height, .bitCount = format.bitCount});
  const std::uint32_t colors = format.bitCount < 16 ? 1U << format.bitCount : 0;
  for (std::uint32_t i = 0; i < colors; ++i)
    bytes.Color(i, i * 3 + 1, i * 7 + 2);
  const int stored = 4 * format.width * std::abs(format.height);
  for (int i = 0; i < stored; ++i)
    bytes.U8(static_cast<std::uint32_t>(i * 37 + 11));
  return bytes;
}

/// The decoded rows without their padding.
std::vector<unsigned char> PixelsOf(const DIB& dib) {
  const auto height = static_cast<std::size_t>(dib.header.biHeight);
  const auto width = static_cast<std::size_t>(dib.header.biWidth * dib.header.biBitCount / 8);
  std::vector<unsigned char> pixels;
  for (std::size_t row = 0; row < height; ++row) {
    const auto* const start = dib.data.data() + row * (dib.data.size() / height);
    pixels.insert(pixels.end(), start, start + width);
  }
  return pixels;
}

class ImageOnThePageOf : public testing::TestWithParam<Format> {};

TEST_P(ImageOnThePageOf, HoldsTheDecodedPixelsByteForByte) {
  const Bytes bitmap = BitmapOf(GetParam());
  const Pdf pdf(ConvertToPdf(Metafile().StretchDibits(kTarget, bitmap).Build()));
  ASSERT_THAT(pdf.Images(), SizeIs(1));
  EXPECT_THAT(pdf.Images().front(), ElementsAreArray(PixelsOf(ReadStructure<DIB>(bitmap))));
}

INSTANTIATE_TEST_SUITE_P(Formats, ImageOnThePageOf, testing::ValuesIn(AllFormats()));

}  // namespace
}  // namespace kelvane
