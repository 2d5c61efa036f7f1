#include "metafile/emf/emf_bitmap_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

using Uchars = std::vector<unsigned char>;

constexpr XForm kTransform = {1, 0, 0, 1, 5, -6};
constexpr RectangleL kBounds = {1, 2, 3, 4};

/// Bounds, destination (5, 6) and its size (7, 8), and what the record has there of its own.
Bytes Start(std::uint32_t operation) {
  return Bytes().Rectangle(1, 2, 3, 4).PointL(5, 6).PointL(7, 8).U32(operation);
}

/// A transform, a background, a usage and a place.
Bytes TransformToPlace(std::uint32_t header, std::uint32_t pixels) {
  return Bytes()
      .F32(1)
      .F32(0)
      .F32(0)
      .F32(1)
      .F32(5)
      .F32(-6)
      .U32(0x332211)
      .U32(1)
      .U32(header)
      .U32(4)
      .U32(pixels)
      .U32(3);
}

/// The position (9, 10) and what follows it.
Bytes Source(std::uint32_t header, std::uint32_t pixels) {
  return Bytes().PointL(9, 10).Append(TransformToPlace(header, pixels).Data());
}

/// The position (13, 14), a usage and a place. Header and pixels are a byte each.
Bytes Mask(std::uint32_t header, std::uint32_t pixels) {
  return Bytes().PointL(13, 14).U32(2).U32(header).U32(1).U32(pixels).U32(1);
}

/// A header of four bytes and three of pixels.
Bytes Dib() {
  return Bytes().Each({1, 2, 3, 4}).Each({5, 6, 7});
}

void ExpectTheDib(const StoredDib& dib) {
  EXPECT_EQ(BytesOf(dib.header), (Uchars{1, 2, 3, 4}));
  EXPECT_EQ(BytesOf(dib.pixels), (Uchars{5, 6, 7}));
}

void ExpectTheSource(const BlitSource& source) {
  EXPECT_EQ(source.position, (PointL{9, 10}));
  EXPECT_EQ(source.transform, kTransform);
  EXPECT_EQ(source.background, ColorRef{0x332211});
  EXPECT_EQ(source.usage, DIB_PAL_COLORS);
  ExpectTheDib(source.dib);
}

void ExpectTheMask(const BlitMask& mask) {
  EXPECT_EQ(mask.position, (PointL{13, 14}));
  EXPECT_EQ(mask.usage, DIB_PAL_INDICES);
  EXPECT_EQ(BytesOf(mask.dib.header), (Uchars{8}));
  EXPECT_EQ(BytesOf(mask.dib.pixels), (Uchars{9}));
}

TEST(BitBltRecord, HasASourceAsLargeAsItsDestination) {
  const auto record =
      Decode(DecodeBitBlt, Start(SRCCOPY).Append(Source(100, 104).Data()).Append(Dib().Data()));
  EXPECT_EQ(record->bounds, kBounds);
  EXPECT_EQ(record->destination, (PointL{5, 6}));
  EXPECT_EQ(record->size, (SizeL{7, 8}));
  EXPECT_EQ(record->rop, SRCCOPY);
  EXPECT_EQ(record->source.size, (SizeL{7, 8}));
  ExpectTheSource(record->source);
}

TEST(BitBltRecord, MayHaveNoSource) {
  const auto record = Decode(DecodeBitBlt, Start(PATCOPY).Zeros(56));
  EXPECT_EQ(record->rop, PATCOPY);
  EXPECT_TRUE(record->source.dib.IsEmpty());
}

TEST(BitBltRecord, HasNoPixelsWithoutAHeader) {
  const auto record =
      Decode(DecodeBitBlt, Start(PATCOPY).Zeros(40).U32(1000).U32(0).U32(1000).U32(1000));
  EXPECT_TRUE(record->source.dib.pixels.Bytes().empty());
}

TEST(StretchBltRecord, HasASizeOfItsSource) {
  const auto record =
      Decode(DecodeStretchBlt,
             Start(SRCAND).Append(Source(108, 112).Data()).PointL(11, -12).Append(Dib().Data()));
  EXPECT_EQ(record->bounds, kBounds);
  EXPECT_EQ(record->rop, SRCAND);
  EXPECT_EQ(record->source.size, (SizeL{11, -12}));
  ExpectTheSource(record->source);
}

TEST(MaskBltRecord, HasASourceAndAMask) {
  const auto record = Decode(DecodeMaskBlt, Start(0xAACC0020)
                                                .Append(Source(128, 132).Data())
                                                .Append(Mask(135, 136).Data())
                                                .Append(Dib().Data())
                                                .Each({8, 9}));
  EXPECT_EQ(record->destination, (PointL{5, 6}));
  EXPECT_EQ(record->rop4, 0xAACC0020);
  EXPECT_EQ(record->source.size, (SizeL{7, 8}));
  ExpectTheSource(record->source);
  ExpectTheMask(record->mask);
}

TEST(PlgBltRecord, HasThreeCornersASourceAndAMask) {
  const auto record = Decode(DecodePlgBlt, Bytes()
                                               .Rectangle(1, 2, 3, 4)
                                               .PointL(21, 22)
                                               .PointL(23, 24)
                                               .PointL(25, 26)
                                               .PointL(9, 10)
                                               .PointL(11, 12)
                                               .Append(TransformToPlace(140, 144).Data())
                                               .Append(Mask(147, 148).Data())
                                               .Append(Dib().Data())
                                               .Each({8, 9}));
  EXPECT_EQ(record->bounds, kBounds);
  EXPECT_EQ(record->destination, (std::array<PointL, 3>{{{21, 22}, {23, 24}, {25, 26}}}));
  EXPECT_EQ(record->source.size, (SizeL{11, 12}));
  ExpectTheSource(record->source);
  ExpectTheMask(record->mask);
}

TEST(AlphaBlendRecord, HasABlendFunction) {
  const auto record =
      Decode(DecodeAlphaBlend,
             Start(0x01FE8000).Append(Source(108, 112).Data()).PointL(11, 12).Append(Dib().Data()));
  EXPECT_EQ(record->size, (SizeL{7, 8}));
  EXPECT_EQ(record->blend, (BlendFunction{0, 0x80, 0xFE, 1}));
  EXPECT_EQ(record->source.size, (SizeL{11, 12}));
  ExpectTheSource(record->source);
}

TEST(TransparentBltRecord, HasAColorThatIsLeftOut) {
  const auto record =
      Decode(DecodeTransparentBlt,
             Start(0x00FF00FF).Append(Source(108, 112).Data()).PointL(11, 12).Append(Dib().Data()));
  EXPECT_EQ(record->size, (SizeL{7, 8}));
  EXPECT_EQ(record->transparent, ColorRef{0x00FF00FF});
  EXPECT_EQ(record->source.size, (SizeL{11, 12}));
  ExpectTheSource(record->source);
}

/// What the two records of device-independent bitmaps begin alike with.
Bytes DibStart(std::uint32_t header, std::uint32_t pixels) {
  return Bytes()
      .Rectangle(1, 2, 3, 4)
      .PointL(5, 6)
      .PointL(9, 10)
      .PointL(11, 12)
      .U32(header)
      .U32(4)
      .U32(pixels)
      .U32(3)
      .U32(1);
}

TEST(SetDIBitsToDeviceRecord, HasTheRowsThatThereAre) {
  const auto record =
      Decode(DecodeSetDIBitsToDevice, DibStart(76, 80).U32(21).U32(22).Append(Dib().Data()));
  EXPECT_EQ(record->bounds, kBounds);
  EXPECT_EQ(record->destination, (PointL{5, 6}));
  EXPECT_EQ(record->source, (PointL{9, 10}));
  EXPECT_EQ(record->size, (SizeL{11, 12}));
  EXPECT_EQ(record->usage, DIB_PAL_COLORS);
  EXPECT_EQ(record->startScan, 21U);
  EXPECT_EQ(record->scans, 22U);
  ExpectTheDib(record->dib);
}

TEST(StretchDIBitsRecord, HasSourceAndDestination) {
  const auto record = Decode(DecodeStretchDIBits,
                             DibStart(80, 84).U32(SRCPAINT).PointL(7, -8).Append(Dib().Data()));
  EXPECT_EQ(record->bounds, kBounds);
  EXPECT_EQ(record->destination, (PointL{5, 6}));
  EXPECT_EQ(record->size, (SizeL{7, -8}));
  EXPECT_EQ(record->source, (PointL{9, 10}));
  EXPECT_EQ(record->sourceSize, (SizeL{11, 12}));
  EXPECT_EQ(record->usage, DIB_PAL_COLORS);
  EXPECT_EQ(record->rop, SRCPAINT);
  ExpectTheDib(record->dib);
}

}  // namespace
}  // namespace kelvane::test
