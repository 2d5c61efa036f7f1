#include "gdi/raster_operation.h"

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

constexpr unsigned kAll = 255;

/// What an operation leaves of a channel, bit by bit: its number less 1 has the result for each
/// pair of a paint's and a destination's bit.
unsigned ByBits(BinaryRasterOperation operation, unsigned paint, unsigned destination) {
  const unsigned table = operation - R2_BLACK;
  unsigned result = 0;
  for (unsigned bit = 0; bit < 8; ++bit) {
    const unsigned pair = (paint >> bit & 1) << 1 | (destination >> bit & 1);
    result |= (table >> pair & 1) << bit;
  }
  return result;
}

unsigned Blended(CGBlendMode mode, unsigned mark, unsigned destination) {
  switch (mode) {
    case kCGBlendModeDarken:
      return std::min(mark, destination);
    case kCGBlendModeLighten:
      return std::max(mark, destination);
    case kCGBlendModeDifference:
      return std::max(mark, destination) - std::min(mark, destination);
    default:
      EXPECT_EQ(mode, kCGBlendModeNormal);
      return mark;
  }
}

/// What the marks of an operation leave of a channel.
unsigned ByMarks(BinaryRasterOperation operation, unsigned paint, unsigned destination) {
  const auto channel = static_cast<std::uint8_t>(paint);
  for (const RasterStep& step : StepsOf(operation)) {
    const RgbColor mark = ColorOf(step.color, {channel, channel, channel});
    destination = Blended(step.mode, mark.red, destination);
  }
  return destination;
}

class Operation : public testing::TestWithParam<int> {
 protected:
  static BinaryRasterOperation Get() { return static_cast<BinaryRasterOperation>(GetParam()); }
};

TEST_P(Operation, GivesOnBlackAndWhiteWhatItsBitsSay) {
  for (const unsigned paint : {0U, kAll})
    for (const unsigned destination : {0U, kAll})
      EXPECT_EQ(ByMarks(Get(), paint, destination), ByBits(Get(), paint, destination))
          << paint << " on " << destination;
}

TEST_P(Operation, IsExactWithThePaintsWhoseMarksGiveItsBitsOnEverything) {
  for (unsigned paint = 0; paint <= kAll; ++paint) {
    bool isAlike = true;
    for (unsigned destination = 0; destination <= kAll; ++destination) {
      isAlike = isAlike && ByMarks(Get(), paint, destination) == ByBits(Get(), paint, destination);
    }
    const auto channel = static_cast<std::uint8_t>(paint);
    EXPECT_EQ(IsExact(Get(), {channel, channel, channel}), isAlike) << paint;
  }
}

INSTANTIATE_TEST_SUITE_P(, Operation, testing::Range(1, 17));

TEST(RasterOperation, IsOnlyNearAsSoonAsOneChannelIs) {
  EXPECT_TRUE(IsExact(R2_XORPEN, {255, 0, 255}));
  EXPECT_FALSE(IsExact(R2_XORPEN, {128, 0, 255}));
  EXPECT_FALSE(IsExact(R2_XORPEN, {255, 1, 255}));
  EXPECT_FALSE(IsExact(R2_XORPEN, {255, 0, 254}));
}

TEST(RasterOperation, MarksNothingWhereTheDestinationStays) {
  EXPECT_TRUE(StepsOf(R2_NOP).empty());
}

TEST(RasterOperation, TurnsPaintIntoTheColorOfAStep) {
  constexpr RgbColor kPaint = {1, 128, 255};
  EXPECT_EQ(ColorOf(RasterStep::Color::kPaint, kPaint), kPaint);
  EXPECT_EQ(ColorOf(RasterStep::Color::kInversePaint, kPaint), (RgbColor{254, 127, 0}));
  EXPECT_EQ(ColorOf(RasterStep::Color::kBlack, kPaint), (RgbColor{0, 0, 0}));
  EXPECT_EQ(ColorOf(RasterStep::Color::kWhite, kPaint), (RgbColor{255, 255, 255}));
}

/// The bit that a ternary operation gives: bit 4 P + 2 S + D of its code.
unsigned TernaryBit(unsigned code, unsigned paint, unsigned source, unsigned destination) {
  return code >> (4 * paint + 2 * source + destination) & 1;
}

bool LooksAtSource(unsigned code) {
  for (const unsigned paint : {0U, 1U})
    for (const unsigned destination : {0U, 1U})
      if (TernaryBit(code, paint, 0, destination) != TernaryBit(code, paint, 1, destination))
        return true;
  return false;
}

TEST(TernaryOperation, IsABinaryOneWhereverItDoesNotLookAtTheSource) {
  for (unsigned code = 0; code <= kAll; ++code) {
    const auto binary = WithoutSource(static_cast<TernaryRasterOperation>(code << 16));
    ASSERT_EQ(binary.has_value(), !LooksAtSource(code)) << code;
    if (!binary) continue;
    for (const unsigned paint : {0U, 1U})
      for (const unsigned destination : {0U, 1U})
        EXPECT_EQ(ByBits(*binary, paint, destination) & 1, TernaryBit(code, paint, 0, destination))
            << code;
  }
}

constexpr auto Ternary(unsigned code) {
  return static_cast<TernaryRasterOperation>(code << 16);
}

TEST(TernaryOperation, IsABinaryOneOfPaintForEachBitOfTheSource) {
  for (unsigned code = 0; code <= kAll; ++code)
    for (const unsigned source : {0U, 1U})
      for (const unsigned paint : {0U, 1U})
        for (const unsigned destination : {0U, 1U})
          EXPECT_EQ(ByBits(WhereSourceIs(source == 1, Ternary(code)), paint, destination) & 1,
                    TernaryBit(code, paint, source, destination))
              << code;
}

TEST(TernaryOperation, IsABinaryOneOfTheSourceForEachBitOfPaint) {
  for (unsigned code = 0; code <= kAll; ++code)
    for (const unsigned paint : {0U, 1U})
      for (const unsigned source : {0U, 1U})
        for (const unsigned destination : {0U, 1U})
          EXPECT_EQ(ByBits(WherePaintIs(paint == 1, Ternary(code)), source, destination) & 1,
                    TernaryBit(code, paint, source, destination))
              << code;
}

TEST(TernaryOperation, TellsWhatItLooksAt) {
  EXPECT_EQ(WithoutPaint(SRCAND), R2_MASKPEN);
  EXPECT_EQ(WithoutPaint(MERGECOPY), std::nullopt);
  EXPECT_TRUE(NeedsDestination(SRCAND));
  EXPECT_TRUE(NeedsDestination(DSTINVERT));
  EXPECT_FALSE(NeedsDestination(SRCCOPY));
  EXPECT_FALSE(NeedsDestination(MERGECOPY));
  EXPECT_FALSE(NeedsDestination(BLACKNESS));
}

// Bit i of paint, source and destination is that of i itself, so that the result is the code.
TEST(TernaryOperation, CombinesColorsBitByBit) {
  for (unsigned code = 0; code <= kAll; ++code)
    EXPECT_EQ(Combine(Ternary(code), std::uint8_t{0xF0}, std::uint8_t{0xCC}, std::uint8_t{0xAA}),
              code);
}

TEST(TernaryOperation, CombinesEachChannelByItself) {
  EXPECT_EQ(Combine(SRCAND, {}, {0xFF, 0x3C, 0x00}, {0x81, 0x0F, 0xFF}),
            (RgbColor{0x81, 0x0C, 0x00}));
}

TEST(BinaryOperation, CombinesColorsBitByBit) {
  for (unsigned bits = 0; bits < 16; ++bits) {
    const auto operation = static_cast<BinaryRasterOperation>(R2_BLACK + bits);
    const RgbColor combined = Combine(operation, {0x0C, 0x0C, 0x0C}, {0x0A, 0x0A, 0x0A});
    EXPECT_EQ(combined.green & 0x0F, bits);
  }
}

TEST(TernaryOperation, IsKnownByItsThirdByteAlone) {
  EXPECT_EQ(WithoutSource(static_cast<TernaryRasterOperation>(0x00F00021)), R2_COPYPEN);
  EXPECT_EQ(WithoutSource(static_cast<TernaryRasterOperation>(0xC0F00013)), R2_COPYPEN);
  EXPECT_EQ(WithoutSource(static_cast<TernaryRasterOperation>(0x005A0000)), R2_XORPEN);
  EXPECT_EQ(WithoutSource(static_cast<TernaryRasterOperation>(0x00CC0013)), std::nullopt);
}

}  // namespace
}  // namespace kelvane
