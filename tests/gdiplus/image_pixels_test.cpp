#include "gdiplus/image_pixels.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdiplus/pixel_formats.h"
#include "platform/trace/cg_trace_context.h"
#include "support/bytes.h"
#include "support/images.h"
#include "support/png.h"
#include "support/tiff.h"

namespace kelvane::gdiplus {
namespace {

using Bytes = std::vector<unsigned char>;

/// @param bytes  borrowed; one row.
EmfPlusPixels RowOf(EmfPlusPixelFormat format, std::size_t width, const Bytes& bytes) {
  return {width, 1, bytes.size(), format, {}, bytes};
}

/// @return red, green, blue and alpha of pixels in one row.
Bytes Rgba(EmfPlusPixelFormat format, std::size_t width, const Bytes& bytes) {
  return RgbaOf(RowOf(format, width, bytes)).value_or(Bytes());
}

TEST(PixelFormats, HaveTheirBytesFromBlueToAlpha) {
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k24Rgb, 2, {1, 2, 3, 4, 5, 6}),
            (Bytes{3, 2, 1, 255, 6, 5, 4, 255}));
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k32Rgb, 1, {1, 2, 3, 4}), (Bytes{3, 2, 1, 255}));
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k32Argb, 1, {1, 2, 3, 4}), (Bytes{3, 2, 1, 4}));
}

TEST(PixelFormats, OfColorsTimesAlphaAreDividedByIt) {
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k32PremultipliedArgb, 2, {0, 64, 128, 128, 9, 9, 9, 0}),
            (Bytes{255, 128, 0, 128, 0, 0, 0, 0}));
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k64PremultipliedArgb, 1, {0, 0, 0, 0, 0x00, 0x10, 0x00, 0x10}),
            (Bytes{255, 0, 0, 127}));
}

TEST(PixelFormats, Of16BitsAreWidenedTo8AChannel) {
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k16Rgb555, 1, {0x1F, 0x40}), (Bytes{132, 0, 255, 255}));
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k16Rgb565, 1, {0xE0, 0x07}), (Bytes{0, 255, 0, 255}));
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k16Argb1555, 2, {0x00, 0xFC, 0x00, 0x7C}),
            (Bytes{255, 0, 0, 255, 255, 0, 0, 0}));
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k16Gray, 1, {0xFF, 0x80}), (Bytes{128, 128, 128, 255}));
}

// A half of the light is 0.5 ^ (1 / 2.2) of the channel: 186.
TEST(PixelFormats, Of16BitsAChannelAreAmountsOfLight) {
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k48Rgb, 1, {0, 0, 0x00, 0x10, 0x00, 0x20}),
            (Bytes{255, 186, 0, 255}));
  EXPECT_EQ(Rgba(EmfPlusPixelFormat::k64Argb, 1, {0, 0, 0, 0, 0xFF, 0xFF, 0x00, 0x20}),
            (Bytes{255, 0, 0, 255}));
}

TEST(PixelFormats, ByNumberTakeTheColorsOfThePalette) {
  const Bytes row = {0x1B};
  EmfPlusPixels pixels = RowOf(EmfPlusPixelFormat::k4Indexed, 2, row);
  pixels.palette = {{0, 0, 0, 0}, {1, 2, 3, 4}};
  EXPECT_EQ(RgbaOf(pixels), (Bytes{3, 2, 1, 4, 0, 0, 0, 255}));
  pixels.format = EmfPlusPixelFormat::k1Indexed;
  pixels.width = 5;
  EXPECT_EQ(RgbaOf(pixels), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 2, 1, 4, 3, 2, 1, 4}));
}

TEST(PixelFormats, GoFromRowToRowByTheStride) {
  const Bytes rows = {1, 2, 3, 99, 4, 5, 6};
  EXPECT_EQ(RgbaOf({1, 2, 4, EmfPlusPixelFormat::k24Rgb, {}, rows}),
            (Bytes{3, 2, 1, 255, 6, 5, 4, 255}));
}

TEST(PixelFormats, WithoutAllTheirRowsAreNotRead) {
  const Bytes rows = {1, 2, 3, 99, 4, 5};
  EXPECT_FALSE(RgbaOf({1, 2, 4, EmfPlusPixelFormat::k24Rgb, {}, rows}));
  EXPECT_FALSE(RgbaOf({2, 1, 4, EmfPlusPixelFormat::k24Rgb, {}, rows}));
  EXPECT_FALSE(RgbaOf({0, 1, 4, EmfPlusPixelFormat::k24Rgb, {}, rows}));
  EXPECT_FALSE(RgbaOf({1, 1, 4, EmfPlusPixelFormat::kUndefined, {}, rows}));
}

class ImagesOfEmfPlus : public testing::Test {
 protected:
  /// @return how an image comes onto a page.
  std::string TraceOf(const EmfPlusImage& image) {
    const auto made = ImageFrom(graphics_, image);
    if (made == nullptr) return "nothing";
    trace_.clear();
    surface_->DrawImage({{0, 0}, {1, 1}}, made.get());
    return trace_;
  }

  std::string trace_;
  CFOwned<CGContext> surface_ = [this] {
    CFOwned<CGContext> surface(CGTraceContextCreate(trace_));
    surface->BeginPage({{0, 0}, {100, 100}});
    return surface;
  }();
  Canvas canvas_{*surface_, {}, {0, 0, 100, 100}, {}};
  Graphics graphics_{&canvas_, {96, 96}};
};

TEST_F(ImagesOfEmfPlus, HaveAMaskWhereTheyAreTranslucent) {
  const Bytes row = {0, 0, 255, 255, 255, 0, 0, 128};
  EXPECT_EQ(TraceOf(RowOf(EmfPlusPixelFormat::k32Argb, 2, row)),
            "image 2 1 rgb smooth soft-masked 2 1 under 1 0 0 1 0 0\n"
            "  bytes ff00000000ff\n"
            "  mask ff80\n");
}

TEST_F(ImagesOfEmfPlus, HaveNoMaskWhereTheyAreOpaque) {
  const Bytes row = {0, 0, 255, 255};
  EXPECT_EQ(TraceOf(RowOf(EmfPlusPixelFormat::k32Argb, 1, row)),
            "image 1 1 rgb under 1 0 0 1 0 0\n");
}

TEST_F(ImagesOfEmfPlus, StayNumbersWherePalettesAreOpaque) {
  const Bytes row = {0x40, 0, 0, 0};
  EmfPlusPixels pixels = RowOf(EmfPlusPixelFormat::k1Indexed, 2, row);
  pixels.palette = {{1, 2, 3, 255}};
  graphics_.state.interpolation = EmfPlusInterpolationMode::kNearestNeighbor;
  EXPECT_EQ(TraceOf(pixels),
            "image 2 1 indexed 1 under 1 0 0 1 0 0\n  bytes 40\n  colors 030201 000000\n");
}

TEST_F(ImagesOfEmfPlus, OfPngFilesKeepTheirAlpha) {
  constexpr std::uint32_t kRgba = 6;
  const Bytes file = test::PngFile({.colorType = kRgba}, {0, 1, 2, 3, 4});
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}),
            "image 1 1 rgb smooth soft-masked 1 1 under 1 0 0 1 0 0\n"
            "  bytes 010203\n"
            "  mask 04\n");
}

TEST_F(ImagesOfEmfPlus, OfJpegFilesStayTheFiles) {
  const Bytes file = test::JpegOf(3);
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}).substr(0, 22), "image 8 8 jpeg rgb smo");
}

/// A GIF file of the smallest picture: one pixel, its first colour.
/// @param isTransparent  the first colour.
Bytes GifOf(bool isTransparent, std::uint32_t width = 1, std::uint32_t height = 1) {
  test::Bytes file;
  file.Each({'G', 'I', 'F', '8', '9', 'a'}).U16(width).U16(height).Each({0x80, 0, 0});
  file.Each({1, 2, 3, 4, 5, 6});
  file.Each({0x21, 0xF9, 4, isTransparent ? 1U : 0U, 0, 0, 0, 0});
  file.Each({0x2C, 0, 0, 0, 0, 1, 0, 1, 0, 0});
  file.Each({2, 2, 0x44, 0x01, 0, 0x3B});  // from 3 bits each: clear, colour 0, end
  return file.Data();
}

TEST_F(ImagesOfEmfPlus, OfGifFilesAreSeenThroughWhereTheyAreTransparent) {
  const Bytes opaque = GifOf(false, 2);  // the screen has room for one more
  EXPECT_EQ(TraceOf(EmfPlusImageFile{opaque}),
            "image 2 1 rgb smooth soft-masked 2 1 under 1 0 0 1 0 0\n"
            "  bytes 010203000000\n"
            "  mask ff00\n");
  const Bytes transparent = GifOf(true);
  EXPECT_EQ(TraceOf(EmfPlusImageFile{transparent}),
            "image 1 1 rgb smooth soft-masked 1 1 under 1 0 0 1 0 0\n"
            "  bytes 000000\n"
            "  mask 00\n");
}

TEST_F(ImagesOfEmfPlus, OfGifFilesWithAScreenFarLargerThanTheirDataAreTold) {
  const Bytes file = GifOf(false, 0xFFFF, 0xFFFF);
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}), "nothing");
  EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kBitmapTooLarge));
}

TEST_F(ImagesOfEmfPlus, OfGifFilesWithAFrameFarLargerThanTheirDataAreTold) {
  constexpr std::ptrdiff_t kFrameSize = 13 + 6 + 8 + 5;
  Bytes file = GifOf(false);
  std::fill_n(file.begin() + kFrameSize, 4, 0xFF);
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}), "nothing");
  EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kBitmapTooLarge));
}

/// @param pixels  from here on in the file.
Bytes BmpOf(const test::BitmapFields& fields, std::uint32_t pixels, const Bytes& behindTheHeader) {
  test::Bytes file;
  file.Each({'B', 'M'}).U32(0).U32(0).U32(pixels).BitmapHeader(fields).Append(behindTheHeader);
  return file.Data();
}

TEST_F(ImagesOfEmfPlus, OfBmpFilesAreTheirBitmaps) {
  const Bytes file = BmpOf({.width = 1, .height = 2}, 54, {3, 2, 1, 0, 6, 5, 4, 0});
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}),
            "image 1 2 rgb smooth under 1 0 0 1 0 0\n  bytes 040506 010203\n");
}

TEST_F(ImagesOfEmfPlus, OfBmpFilesStayNumbersOfColors) {
  const Bytes file = BmpOf({.width = 2, .bitCount = 1, .colorsUsed = 2}, 62,
                           {3, 2, 1, 0, 6, 5, 4, 0, 0x40, 0, 0, 0});
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}),
            "image 2 1 indexed 1 smooth under 1 0 0 1 0 0\n  bytes 40\n  colors 010203 040506\n");
}

TEST_F(ImagesOfEmfPlus, OfBmpFilesWithoutTheirPixelsAreTold) {
  const Bytes file = BmpOf({.width = 1, .height = 2}, 54, {3, 2, 1, 0});
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}), "nothing");
  EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kUnreadableBitmap));
}

TEST_F(ImagesOfEmfPlus, OfBmpFilesFarLargerThanTheirDataAreTold) {
  constexpr std::uint32_t kRunLengths = 1;
  const Bytes file = BmpOf(
      {.width = 1 << 30, .height = 1 << 30, .bitCount = 8, .compression = kRunLengths}, 54, {0, 1});
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}), "nothing");
  EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kBitmapTooLarge));
}

TEST_F(ImagesOfEmfPlus, OfTiffFilesKeepTheirAlpha) {
  const Bytes file = test::TiffFile({.width = 2, .samples = 4}, {255, 0, 0, 255, 0, 255, 0, 51});
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}),
            "image 2 1 rgb smooth soft-masked 2 1 under 1 0 0 1 0 0\n"
            "  bytes ff000000ff00\n"
            "  mask ff33\n");
}

TEST_F(ImagesOfEmfPlus, OfTiffFilesFarLargerThanTheirDataAreTold) {
  for (const test::TiffFields& fields : {test::TiffFields{.width = 1U << 16, .height = 1U << 16},
                                         test::TiffFields{.tileSide = 1U << 14}}) {
    graphics_.shortfalls.Clear();
    const Bytes file = test::TiffFile(fields, {1, 2, 3});
    EXPECT_EQ(TraceOf(EmfPlusImageFile{file}), "nothing");
    EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kBitmapTooLarge));
  }
}

TEST_F(ImagesOfEmfPlus, AreMadeOnce) {
  const Bytes row = {1, 2, 3};
  const EmfPlusImage image = RowOf(EmfPlusPixelFormat::k24Rgb, 1, row);
  EXPECT_EQ(ImageFrom(graphics_, image), ImageFrom(graphics_, image));
}

TEST_F(ImagesOfEmfPlus, ThatCannotBeReadAreTold) {
  const Bytes file = {'G', 'I', 'F'};
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}), "nothing");
  EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kUnreadableBitmap));
}

TEST_F(ImagesOfEmfPlus, FarLargerThanTheirDataAreTold) {
  const Bytes file = test::PngFile({.width = 1U << 16, .height = 1U << 16}, {});
  EXPECT_EQ(TraceOf(EmfPlusImageFile{file}), "nothing");
  EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kBitmapTooLarge));
}

// Each is looked at once, for its size may stand far inside its file.
TEST_F(ImagesOfEmfPlus, ThatLackSomethingAreToldEachTime) {
  const Bytes large = GifOf(false, 0xFFFF, 0xFFFF);
  const Bytes unreadable = {'G', 'I', 'F'};
  for (int i = 0; i < 2; ++i) {
    graphics_.shortfalls.Clear();
    EXPECT_EQ(TraceOf(EmfPlusImageFile{large}), "nothing");
    EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kBitmapTooLarge));
    EXPECT_FALSE(graphics_.shortfalls.Has(Shortfall::kUnreadableBitmap));
    graphics_.shortfalls.Clear();
    EXPECT_EQ(TraceOf(EmfPlusImageFile{unreadable}), "nothing");
    EXPECT_TRUE(graphics_.shortfalls.Has(Shortfall::kUnreadableBitmap));
  }
}

TEST_F(ImagesOfEmfPlus, ThatAreMetafilesAreNoPixels) {
  EXPECT_EQ(TraceOf(EmfPlusMetafile{}), "nothing");
}

}  // namespace
}  // namespace kelvane::gdiplus
