#include "gdi/blits.h"

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/brush.h"
#include "gdi/clipping.h"
#include "gdi/coordinates.h"
#include "gdi/page_color.h"
#include "gdi/stored_dib.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

using Color = StoredBitmap::Color;

constexpr Color kBlack = {0, 0, 0};
constexpr Color kWhite = {255, 255, 255};
constexpr Color kRed = {255, 0, 0};
constexpr Color kOlive = {128, 128, 0};

const StoredBitmap& Checks() {
  static const StoredBitmap kBitmap = StoredBitmap::Mono({"01", "10"});
  return kBitmap;
}

/// Two pixels beside each other, neither of them black or white.
const StoredBitmap& RedAndOlive() {
  static const StoredBitmap kBitmap = StoredBitmap::Rgb({{kRed, kOlive}});
  return kBitmap;
}

const StoredBitmap& BlackAndWhite() {
  static const StoredBitmap kBitmap = StoredBitmap::Mono({"01"});
  return kBitmap;
}

/// Where the matrix of an image has its unit square, y downwards: left and top, then right and
/// bottom. Mirrored ones have them in another order.
std::string PlaceIn(const std::vector<std::string_view>& matrix) {
  const auto number = [&](std::size_t i) { return std::stod(std::string(matrix[i])); };
  const auto whole = [](double x) { return std::to_string(std::lround(x)); };
  const double left = number(4);
  const double bottom = number(5);
  return whole(left) + ' ' + whole(bottom + number(3)) + ' ' + whole(left + number(0)) + ' ' +
         whole(bottom);
}

/// @return the images of a trace with their places in whole units and their bytes, and what is set
///         for them.
std::string ImagesOf(std::string_view trace) {
  std::string found;
  while (!trace.empty()) {
    const std::size_t end = trace.find('\n');
    const std::string_view line = trace.substr(0, end);
    trace.remove_prefix(end + 1);
    const std::size_t under = line.find(" under ");
    if (line.starts_with("image") && under != std::string_view::npos) {
      found +=
          std::string(line.substr(0, under)) + " at " + PlaceIn(WordsOf(line.substr(under + 7)));
    } else {
      found += line;
    }
    found += '\n';
  }
  return found;
}

/// Draws what waits, too.
std::string Images(TracedDevice& device) {
  DrawPendingBlits(device);
  return ImagesOf(device.Take());
}

SourceBitmap All(const StoredBitmap& bitmap) {
  const Dib dib = bitmap.Read();
  return {bitmap.Bytes(),
          {},
          {static_cast<std::int32_t>(dib.Width()), static_cast<std::int32_t>(dib.Height())}};
}

TEST(StretchBlt, CopiesABitmapWithItsOwnColors) {
  TracedDevice device;
  StretchBlt(device, {10, 20}, {40, 60}, All(Checks()), SRCCOPY);
  EXPECT_EQ(Images(device),
            "image 2 2 indexed 1 at 10 20 50 80\n  bytes 40 80\n  colors 000000 ffffff\n");
}

TEST(StretchBlt, MirrorsWhereTheSignsOfSourceAndDestinationDiffer) {
  TracedDevice device;
  StretchBlt(device, {50, 20}, {-40, 60}, All(RedAndOlive()), SRCCOPY);
  EXPECT_EQ(Images(device), "image 2 1 rgb at 50 20 10 80\n  bytes ff0000808000\n");
  SourceBitmap mirrored = All(RedAndOlive());
  mirrored.position.x = 2;
  mirrored.size.cx = -2;
  StretchBlt(device, {50, 20}, {-40, 60}, mirrored, SRCCOPY);
  EXPECT_EQ(Images(device), "image 2 1 rgb at 10 20 50 80\n  bytes ff0000808000\n");
}

TEST(StretchBlt, RunsPixelsIntoEachOtherOnlyInHalftone) {
  TracedDevice device;
  EXPECT_TRUE(SetStretchBltMode(device, STRETCH_HALFTONE));
  StretchBlt(device, {10, 20}, {40, 60}, All(RedAndOlive()), SRCCOPY);
  EXPECT_EQ(Images(device), "image 2 1 rgb smooth at 10 20 50 80\n  bytes ff0000808000\n");
}

TEST(StretchBlt, ChangesColorsByOperationsThatLookAtNothingBelow) {
  TracedDevice device;
  StretchBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), NOTSRCCOPY);
  EXPECT_EQ(Images(device), "image 2 1 rgb at 0 0 2 1\n  bytes 00ffff7f7fff\n");
  device.Select(1, CreateSolidBrush({0x0000C0}));
  StretchBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), MERGECOPY);  // paint and source
  EXPECT_EQ(Images(device), "image 2 1 rgb at 0 0 2 1\n  bytes c00000800000\n");
  EXPECT_TRUE(device->shortfalls.IsEmpty());
}

TEST(StretchBlt, PaintsNothingWithABrushThatIsNone) {
  TracedDevice device;
  device.Select(1, Brush());
  StretchBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), MERGECOPY);
  EXPECT_EQ(Images(device), "");
}

TEST(StretchBlt, StoresGreyAsGrey) {
  TracedDevice device;
  const StoredBitmap grey = StoredBitmap::Rgb({{{9, 9, 9}, {128, 128, 128}}});
  StretchBlt(device, {0, 0}, {2, 1}, All(grey), SRCCOPY);
  EXPECT_EQ(Images(device), "image 2 1 gray at 0 0 2 1\n  bytes 0980\n");
}

TEST(StretchBlt, PaintsAPixelAsARectangle) {
  TracedDevice device;
  const StoredBitmap red = StoredBitmap::Rgb({{kRed}});
  StretchBlt(device, {10, 20}, {40, 60}, All(red), SRCCOPY);
  EXPECT_EQ(Images(device),
            "fill-color 1 0 0\nmove 10 20\nline 50 20\nline 50 80\nline 10 80\nclose\nfill\n");
}

TEST(StretchBlt, FillsWhenItsOperationNeedsNoSource) {
  TracedDevice device;
  device.Select(1, CreateSolidBrush({0x0000FF}));
  StretchBlt(device, {10, 20}, {40, 60}, {}, PATCOPY);
  EXPECT_EQ(device.TakeMarks(), "rect 10 20 40 60\nfill\n");
  StretchBlt(device, {10, 20}, {40, 60}, {}, static_cast<TernaryRasterOperation>(0x00AA0029));
  StretchBlt(device, {10, 20}, {40, 60}, {}, SRCCOPY);
  EXPECT_EQ(Images(device), "");
}

TEST(StretchBlt, NotesABitmapThatCannotBeRead) {
  TracedDevice device;
  DibBytes cut = Checks().Bytes();
  cut.pixels = cut.pixels.first(4);
  StretchBlt(device, {0, 0}, {2, 2}, {cut, {}, {2, 2}}, SRCCOPY);
  EXPECT_EQ(Images(device), "");
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kUnreadableBitmap));
}

TEST(StretchBlt, NotesABitmapThatIsFarLargerThanItsData) {
  TracedDevice device;
  const StoredBitmap vast = StoredBitmap::RunLengths(30'000, 30'000, {0, 1});
  StretchBlt(device, {0, 0}, {2, 2}, All(vast), SRCCOPY);
  EXPECT_EQ(Images(device), "");
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kBitmapTooLarge));
}

// Black and white bitmaps under operations that look at what lies below.

TEST(StretchBlt, PaintsWithTheBrushWhereAMaskIsWhite) {
  TracedDevice device;
  device.Select(1, CreateSolidBrush({0x0000FF}));
  constexpr auto kPaintWhereSet = static_cast<TernaryRasterOperation>(0x00E20746);
  StretchBlt(device, {0, 0}, {2, 2}, All(Checks()), kPaintWhereSet);
  // A mask's bits of 0 are painted: the right one above, the left one below.
  EXPECT_EQ(Images(device), "fill-color 1 0 0\nimage 2 2 mask at 0 0 2 2\n  bytes 80 40\n");
  EXPECT_TRUE(device->shortfalls.IsEmpty());
}

TEST(StretchBlt, GoesByTheColorsOfAMaskNotByItsBits) {
  TracedDevice device;
  device.Select(1, CreateSolidBrush({0x0000FF}));
  constexpr auto kPaintWhereUnset = static_cast<TernaryRasterOperation>(0x00B8074A);
  const StoredBitmap reversed = StoredBitmap::Mono({"01", "10"}, kWhite, kBlack);
  StretchBlt(device, {0, 0}, {2, 2}, All(reversed), kPaintWhereUnset);
  EXPECT_EQ(Images(device), "fill-color 1 0 0\nimage 2 2 mask at 0 0 2 2\n  bytes 80 40\n");
}

TEST(StretchBlt, PaintsBlackWhereAMaskOfSrcAndIsBlack) {
  TracedDevice device;
  StretchBlt(device, {0, 0}, {2, 2}, All(Checks()), SRCAND);
  EXPECT_EQ(Images(device), "image 2 2 mask at 0 0 2 2\n  bytes 40 80\n");
  EXPECT_TRUE(device->shortfalls.IsEmpty());
}

TEST(StretchBlt, InvertsWhereAMaskOfSrcInvertIsWhite) {
  TracedDevice device;
  StretchBlt(device, {0, 0}, {2, 2}, All(Checks()), SRCINVERT);
  EXPECT_EQ(Images(device),
            "fill-color 1 1 1\nblend difference alpha 1\nimage 2 2 mask at 0 0 2 2\n  bytes 80 "
            "40\n");
  EXPECT_TRUE(device->shortfalls.IsEmpty());
}

TEST(StretchBlt, BlendsColorsAndNotesThatTheyAreOnlyNear) {
  TracedDevice device;
  StretchBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), SRCAND);
  EXPECT_EQ(Images(device),
            "blend darken alpha 1\nimage 2 1 rgb at 0 0 2 1\n  bytes ff0000808000\n");
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kBlendedColors));
}

TEST(StretchBlt, CombinesColorsBitByBitWithAGroundThatIsKnown) {
  TracedDevice device;
  device.OnCanvas().Surface().WatchGround(ColorOnPage({0x3C, 0xC8, 0x78}));
  StretchBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), SRCAND);
  EXPECT_EQ(Images(device), "image 2 1 rgb at 0 0 2 1\n  bytes 3c0000008000\n");
  StretchBlt(device, {10, 0}, {2, 1}, All(RedAndOlive()), SRCINVERT);
  EXPECT_EQ(Images(device), "image 2 1 rgb at 10 0 12 1\n  bytes c3c878bc4878\n");
  EXPECT_TRUE(device->shortfalls.IsEmpty());
  StretchBlt(device, {1, 0}, {2, 1}, All(RedAndOlive()), SRCAND);  // partly on the first
  Images(device);
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kBlendedColors));
}

// Masks and images that are one picture.

TEST(MaskedPicture, ShowsTheImageWhereTheMaskIsBlack) {
  TracedDevice device;
  const StoredBitmap mask = StoredBitmap::Mono({"01"});
  const StoredBitmap image = StoredBitmap::Rgb({{kOlive, kBlack}});
  for (const auto operation : {SRCPAINT, SRCINVERT}) {
    StretchBlt(device, {0, 0}, {2, 1}, All(mask), SRCAND);
    SetTextColor(device, {0x123456});
    StretchBlt(device, {0, 0}, {2, 1}, All(image), operation);
    EXPECT_EQ(Images(device),
              "image 2 1 rgb masked 2 1 at 0 0 2 1\n  bytes 808000000000\n  mask 40\n");
  }
  EXPECT_TRUE(device->shortfalls.IsEmpty());
}

TEST(MaskedPicture, ShowsTheImageWhereTheMaskIsWhite) {
  TracedDevice device;
  StretchBlt(device, {0, 0}, {2, 1}, All(BlackAndWhite()), SRCPAINT);
  const StoredBitmap image = StoredBitmap::Rgb({{kWhite, kOlive}});
  StretchBlt(device, {0, 0}, {2, 1}, All(image), SRCAND);
  EXPECT_EQ(Images(device),
            "image 2 1 rgb masked 2 1 at 0 0 2 1\n  bytes ffffff808000\n  mask 80\n");
}

TEST(MaskedPicture, MayBeginAndEndWithTheImage) {
  TracedDevice device;
  StretchBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), SRCINVERT);
  StretchBlt(device, {0, 0}, {2, 1}, All(BlackAndWhite()), SRCAND);
  StretchBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), SRCINVERT);
  EXPECT_EQ(Images(device),
            "image 2 1 rgb masked 2 1 at 0 0 2 1\n  bytes ff0000808000\n  mask 40\n");
  EXPECT_TRUE(device->shortfalls.IsEmpty());
}

TEST(MaskedPicture, IsNoneWhenTheImageChangesWhatIsAroundIt) {
  TracedDevice device;
  StretchBlt(device, {0, 0}, {2, 1}, All(BlackAndWhite()), SRCAND);
  StretchBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), SRCINVERT);
  const std::string drawn = Images(device);
  EXPECT_EQ(LinesWith(drawn, "image").size(), 2U);
  EXPECT_EQ(LinesWith(drawn, "blend"), std::vector<std::string>{"blend difference alpha 1"});
}

TEST(MaskedPicture, IsNoneOnTwoPlacesOrUnderTwoClips) {
  for (const bool isMoved : {false, true}) {
    TracedDevice device;
    StretchBlt(device, {0, 0}, {2, 1}, All(BlackAndWhite()), SRCAND);
    EXPECT_TRUE(isMoved || IntersectClipRect(device, {0, 0, 1, 1}));
    const StoredBitmap image = StoredBitmap::Rgb({{kOlive, kBlack}});
    StretchBlt(device, {isMoved ? 2 : 0, 0}, {2, 1}, All(image), SRCPAINT);
    EXPECT_EQ(LinesWith(Images(device), "image").size(), 2U);
  }
}

// Strips.

TEST(Strips, BecomeOnePicture) {
  const StoredBitmap upper = StoredBitmap::Rgb({{kRed, kOlive}});
  const StoredBitmap lower = StoredBitmap::Rgb({{kOlive, kRed}});
  for (const bool isDownwards : {true, false}) {
    TracedDevice device;
    StretchBlt(device, {10, isDownwards ? 20 : 30}, {20, 10}, All(isDownwards ? upper : lower),
               SRCCOPY);
    StretchBlt(device, {10, isDownwards ? 30 : 20}, {20, 10}, All(isDownwards ? lower : upper),
               SRCCOPY);
    EXPECT_EQ(Images(device), "image 2 2 rgb at 10 20 30 40\n  bytes ff0000808000 808000ff0000\n");
  }
}

TEST(Strips, OfOneTableKeepTheirNumbers) {
  TracedDevice device;
  StretchBlt(device, {10, 20}, {20, 10}, All(BlackAndWhite()), SRCCOPY);
  const StoredBitmap white = StoredBitmap::Mono({"11"});
  StretchBlt(device, {10, 30}, {20, 10}, All(white), SRCCOPY);
  EXPECT_EQ(Images(device),
            "image 2 2 indexed 1 at 10 20 30 40\n  bytes 40 c0\n  colors 000000 ffffff\n");
}

TEST(Strips, AreDrawnOnTheirOwnWithAGapBetweenThem) {
  TracedDevice device;
  StretchBlt(device, {10, 20}, {20, 10}, All(RedAndOlive()), SRCCOPY);
  StretchBlt(device, {10, 31}, {20, 10}, All(RedAndOlive()), SRCCOPY);
  EXPECT_EQ(LinesWith(Images(device), "image").size(), 2U);
}

// The other calls.

TEST(StretchDIBits, CountsTheSourceFromTheLowerEdge) {
  TracedDevice device;
  const StoredBitmap bitmap = StoredBitmap::Mono({"01", "10", "11"});
  StretchDIBits(device, {0, 0}, {20, 10}, {0, 1}, {2, 1}, bitmap.Bytes(), SRCCOPY);
  EXPECT_EQ(Images(device),
            "image 2 1 indexed 1 at 0 0 20 10\n  bytes 80\n  colors 000000 ffffff\n");
}

TEST(StretchDIBits, MirrorsByNegativeHeights) {
  TracedDevice device;
  StretchDIBits(device, {0, 10}, {20, -10}, {0, 0}, {2, 1}, RedAndOlive().Bytes(), SRCCOPY);
  EXPECT_EQ(Images(device), "image 2 1 rgb at 0 10 20 0\n  bytes ff0000808000\n");
}

TEST(SetDIBitsToDevice, DrawsAPixelOnEachOfTheDevice) {
  TracedDevice device;
  SetMapMode(device, MM_ANISOTROPIC);
  EXPECT_TRUE(SetViewportExtEx(device, {2, 2}));
  SetDIBitsToDevice(device, {10, 20}, {2, 1}, {0, 0}, {0, 1}, RedAndOlive().Bytes());
  EXPECT_EQ(Images(device), "image 2 1 rgb at 20 40 22 41\n  bytes ff0000808000\n");
}

TEST(SetDIBitsToDevice, PutsABandWhereItIsInTheWholePicture) {
  TracedDevice device;
  // Of five rows the second and third from below.
  const StoredBitmap band = StoredBitmap::Mono({"01", "10"});
  SetDIBitsToDevice(device, {10, 20}, {2, 5}, {0, 0}, {1, 2}, band.Bytes());
  EXPECT_EQ(Images(device),
            "image 2 2 indexed 1 at 10 22 12 24\n  bytes 40 80\n  colors 000000 ffffff\n");
}

TEST(RunLengths, LeaveWhatTheySkipWhereNothingIsScaled) {
  TracedDevice device;
  // One pixel of grey 7, then the end: the other one is skipped.
  const StoredBitmap bitmap = StoredBitmap::RunLengths(2, 1, {1, 7, 0, 1});
  StretchBlt(device, {0, 0}, {2, 1}, All(bitmap), SRCCOPY);
  EXPECT_EQ(LinesWith(Images(device), "image"),
            std::vector<std::string>{"image 2 1 indexed 8 masked 2 1 at 0 0 2 1"});
  StretchBlt(device, {0, 0}, {4, 1}, All(bitmap), SRCCOPY);
  EXPECT_EQ(LinesWith(Images(device), "image"),
            std::vector<std::string>{"image 2 1 indexed 8 at 0 0 4 1"});
}

TEST(MaskBlt, DrawsWhereTheMaskIsSetAndDoesTheOtherWhereItIsNot) {
  TracedDevice device;
  const StoredBitmap mask = StoredBitmap::Mono({"01"});
  const MaskBitmap masked = {mask.Bytes(), {}};
  MaskBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), masked, 0xAACC0020);
  EXPECT_EQ(Images(device),
            "image 2 1 rgb masked 2 1 at 0 0 2 1\n  bytes ff0000808000\n  mask 80\n");
  MaskBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), masked, 0x00CC0020);
  EXPECT_EQ(Images(device),
            "image 2 1 rgb masked 2 1 at 0 0 2 1\n  bytes ff0000808000\n  mask 80\n"
            "image 2 1 mask at 0 0 2 1\n  bytes 40\n");
}

TEST(MaskBlt, ShowsNothingBeyondItsMask) {
  TracedDevice device;
  const StoredBitmap mask = StoredBitmap::Mono({"1"});
  MaskBlt(device, {0, 0}, {2, 1}, All(RedAndOlive()), {mask.Bytes(), {}}, 0xAACC0020);
  EXPECT_EQ(Images(device),
            "image 2 1 rgb masked 2 1 at 0 0 2 1\n  bytes ff0000808000\n  mask 40\n");
}

TEST(PlgBlt, LaysABitmapOverAParallelogram) {
  TracedDevice device;
  PlgBlt(device, {{{0, 0}, {40, 0}, {20, 40}}}, All(RedAndOlive()), {});
  DrawPendingBlits(device);
  const std::string trace = device.Take();
  const std::vector<std::string> images = LinesWith(trace, "image");
  ASSERT_EQ(images.size(), 1U);
  // Across 40 to the right; from the lower edge to the upper one 20 left and 40 up.
  const auto words = WordsOf(images[0]);
  ASSERT_EQ(words.size(), 11U);
  EXPECT_EQ(Rounded(words[5]), "40");
  EXPECT_EQ(Rounded(words[7]), "-20");
}

TEST(TransparentBlt, LeavesOutAColor) {
  TracedDevice device;
  TransparentBlt(device, {0, 0}, {4, 2}, All(RedAndOlive()), {0x0000FF});
  EXPECT_EQ(Images(device),
            "image 2 1 rgb masked 2 1 at 0 0 4 2\n  bytes ff0000808000\n  mask 80\n");
}

TEST(TransparentBlt, NeedsNoMaskForAColorThatIsNotThere) {
  TracedDevice device;
  TransparentBlt(device, {0, 0}, {4, 2}, All(RedAndOlive()), {0xFF0000});
  EXPECT_EQ(Images(device), "image 2 1 rgb at 0 0 4 2\n  bytes ff0000808000\n");
}

TEST(AlphaBlend, TakesTheAlphaOutOfTheColors) {
  TracedDevice device;
  const StoredBitmap bitmap = StoredBitmap::Bgra({{{0, 0, 128, 128}, {0, 64, 0, 255}}});
  EXPECT_TRUE(AlphaBlend(device, {0, 0}, {2, 1}, All(bitmap), {0, 0, 255, 1}));
  EXPECT_EQ(Images(device),
            "image 2 1 rgb soft-masked 2 1 at 0 0 2 1\n  bytes ff0000004000\n  mask 80ff\n");
}

TEST(AlphaBlend, NeedsNoMaskWhereAllIsOpaque) {
  TracedDevice device;
  const StoredBitmap bitmap = StoredBitmap::Bgra({{{0, 0, 128, 255}, {0, 64, 0, 255}}});
  EXPECT_TRUE(AlphaBlend(device, {0, 0}, {2, 1}, All(bitmap), {0, 0, 255, 1}));
  EXPECT_EQ(Images(device), "image 2 1 rgb at 0 0 2 1\n  bytes 800000004000\n");
}

TEST(AlphaBlend, FillsWithOnePixelThatIsTranslucent) {
  TracedDevice device;
  const StoredBitmap bitmap = StoredBitmap::Bgra({{{0, 0, 51, 51}}});
  EXPECT_TRUE(AlphaBlend(device, {10, 20}, {40, 60}, All(bitmap), {0, 0, 255, 1}));
  EXPECT_EQ(Images(device),
            "fill-color 1 0 0\nblend normal alpha 0.2\nmove 10 20\nline 50 20\nline 50 80\nline 10 "
            "80\nclose\nfill\n");
}

TEST(AlphaBlend, LaysAnOpaqueBitmapOverByOneAlpha) {
  TracedDevice device;
  EXPECT_TRUE(AlphaBlend(device, {0, 0}, {2, 1}, All(RedAndOlive()), {0, 0, 51, 0}));
  EXPECT_EQ(Images(device),
            "blend normal alpha 0.2\nimage 2 1 rgb at 0 0 2 1\n  bytes ff0000808000\n");
}

TEST(AlphaBlend, RefusesToMirror) {
  TracedDevice device;
  EXPECT_FALSE(AlphaBlend(device, {2, 0}, {-2, 1}, All(RedAndOlive()), {0, 0, 255, 0}));
  EXPECT_EQ(Images(device), "");
}

}  // namespace
}  // namespace kelvane
