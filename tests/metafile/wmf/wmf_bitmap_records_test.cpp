#include "metafile/wmf/wmf_bitmap_records.h"

#include <gtest/gtest.h>

#include "wmf_decoding.h"

namespace kelvane::test {
namespace {

constexpr std::size_t kInfoHeader = 40;

/// One row of two pixels, 24 bits each: 48 bytes.
Bytes SmallDib() {
  return Bytes().BitmapHeader({.width = 2}).Each({1, 2, 3, 4, 5, 6, 0, 0});
}

/// Two rows of one bit a pixel.
Bytes SmallBitmap16() {
  return Bytes().U16(0).I16(9).I16(2).I16(2).U8(1).U8(1);
}
const std::vector<unsigned char> kBits = {0xFF, 0x80, 0x12, 0x34};

// What follows the operation: the source's size, its place; the destination's size, its place.
Bytes SourceSize() {
  return Bytes().I16(4).I16(-3);
}
Bytes SourcePlace() {
  return Bytes().I16(6).I16(5);
}
Bytes Destination() {
  return Bytes().I16(-8).I16(7).I16(-10).I16(9);
}

template <class Record>
void ExpectPlaces(const Record& record, SizeL sourceSize) {
  EXPECT_EQ(record.sourceSize, sourceSize);
  EXPECT_EQ(record.source, (PointL{5, 6}));
  EXPECT_EQ(record.size, (SizeL{7, -8}));
  EXPECT_EQ(record.destination, (PointL{9, -10}));
}

void ExpectSmallDib(const StoredDib& dib) {
  EXPECT_EQ(dib.header.Bytes().size(), kInfoHeader);
  EXPECT_EQ(BytesOf(dib.pixels), (std::vector<unsigned char>{1, 2, 3, 4, 5, 6, 0, 0}));
}

void ExpectSmallBitmap16(const Bitmap16& bitmap) {
  EXPECT_EQ(bitmap.width, 9);
  EXPECT_EQ(bitmap.height, 2);
  EXPECT_EQ(bitmap.widthBytes, 2);
  EXPECT_EQ(bitmap.planes, 1);
  EXPECT_EQ(bitmap.bitsPixel, 1);
  EXPECT_EQ(BytesOf(bitmap.bits), kBits);
}

/// A record, cut nowhere: without pixels to count, the end of a bitmap in one piece is nowhere.
template <class Record>
DecodedRecord<Record> DecodeWhole(Record (*decode)(ByteView&), const Bytes& body) {
  return {decode, Bytes().Zeros(6).Append(body.Data()).Data(), 6};
}

Bytes BitBltBefore() {
  return Bytes().U32(SRCCOPY).Append(SourcePlace().Data()).Append(Destination().Data());
}

Bytes StretchBltBefore() {
  const Bytes source = Bytes().U32(SRCCOPY).Append(SourceSize().Data());
  return Bytes(source).Append(SourcePlace().Data()).Append(Destination().Data());
}

TEST(WmfBlitRecord, HasABitmapBehindItsPlaces) {
  const Bytes bitmap = SmallBitmap16().Append(kBits);
  const auto bitBlt = DecodeWhole(DecodeWmfBitBlt, BitBltBefore().Append(bitmap.Data()));
  EXPECT_FALSE(bitBlt.IsShort());
  EXPECT_EQ(bitBlt->rop, SRCCOPY);
  ExpectPlaces(*bitBlt.operator->(), {7, -8});
  ExpectSmallBitmap16(bitBlt->bitmap);

  const auto stretchBlt =
      DecodeWhole(DecodeWmfStretchBlt, StretchBltBefore().Append(bitmap.Data()));
  EXPECT_FALSE(stretchBlt.IsShort());
  ExpectPlaces(*stretchBlt.operator->(), {-3, 4});
  ExpectSmallBitmap16(stretchBlt->bitmap);
}

TEST(WmfBlitRecord, HasADibBehindItsPlaces) {
  const auto bitBlt = DecodeWhole(DecodeWmfDibBitBlt, BitBltBefore().Append(SmallDib().Data()));
  EXPECT_FALSE(bitBlt.IsShort());
  ExpectPlaces(*bitBlt.operator->(), {7, -8});
  ExpectSmallDib(bitBlt->bitmap);

  const auto stretchBlt =
      DecodeWhole(DecodeWmfDibStretchBlt, StretchBltBefore().Append(SmallDib().Data()));
  EXPECT_FALSE(stretchBlt.IsShort());
  ExpectPlaces(*stretchBlt.operator->(), {-3, 4});
  ExpectSmallDib(stretchBlt->bitmap);
}

TEST(WmfBlitRecord, HasASpareWordWhereItHasNoBitmap) {
  const Bytes bitBlt = Bytes().U32(PATCOPY).Append(SourcePlace().Data()).U16(0xFFFF);
  const Bytes stretchBlt =
      Bytes().U32(PATCOPY).Append(SourceSize().Data()).Append(SourcePlace().Data()).U16(0xFFFF);
  const auto old = DecodeWhole(DecodeWmfBitBlt, Bytes(bitBlt).Append(Destination().Data()));
  const auto blit = DecodeWhole(DecodeWmfDibBitBlt, Bytes(bitBlt).Append(Destination().Data()));
  const auto stretched =
      DecodeWhole(DecodeWmfDibStretchBlt, Bytes(stretchBlt).Append(Destination().Data()));
  EXPECT_FALSE(old.IsShort() || blit.IsShort() || stretched.IsShort());
  EXPECT_TRUE(old->bitmap.IsEmpty() && blit->bitmap.IsEmpty() && stretched->bitmap.IsEmpty());
  ExpectPlaces(*old.operator->(), {7, -8});
  ExpectPlaces(*blit.operator->(), {7, -8});
  ExpectPlaces(*stretched.operator->(), {-3, 4});
}

TEST(WmfBlitRecord, IsShortWithoutItsBitmap) {
  EXPECT_TRUE(DecodeWhole(DecodeWmfDibBitBlt, BitBltBefore()).IsShort());
  EXPECT_TRUE(DecodeWhole(DecodeWmfBitBlt, BitBltBefore()).IsShort());
  EXPECT_TRUE(
      DecodeWhole(DecodeWmfBitBlt, BitBltBefore().Append(SmallBitmap16().Data())).IsShort());
}

TEST(WmfBlitRecord, HasAUsageInStretchDib) {
  const Bytes before = Bytes().U32(SRCAND).U16(0).Append(SourceSize().Data());
  const Bytes body = Bytes(before)
                         .Append(SourcePlace().Data())
                         .Append(Destination().Data())
                         .Append(SmallDib().Data());
  const auto record = DecodeWhole(DecodeWmfStretchDib, body);
  EXPECT_FALSE(record.IsShort());
  EXPECT_EQ(record->rop, SRCAND);
  EXPECT_EQ(record->usage, DIB_RGB_COLORS);
  ExpectPlaces(*record.operator->(), {-3, 4});
  ExpectSmallDib(record->bitmap);
}

TEST(WmfSetDibToDevRecord, HasRowsAndPlaces) {
  const Bytes before = Bytes().U16(0).U16(1).U16(2).Append(SourcePlace().Data());
  const auto record = DecodeWhole(
      DecodeWmfSetDibToDev, Bytes(before).Append(Destination().Data()).Append(SmallDib().Data()));
  EXPECT_FALSE(record.IsShort());
  EXPECT_EQ(record->scans, 1);
  EXPECT_EQ(record->startScan, 2);
  EXPECT_EQ(record->source, (PointL{5, 6}));
  EXPECT_EQ(record->size, (SizeL{7, -8}));
  EXPECT_EQ(record->destination, (PointL{9, -10}));
  ExpectSmallDib(record->dib);
}

TEST(WmfPatBltRecord, HasAnOperationAndABox) {
  const auto record = DecodeWmf(DecodeWmfPatBlt, Bytes().U32(PATCOPY).Append(Destination().Data()));
  EXPECT_EQ(record->rop, PATCOPY);
  EXPECT_EQ(record->size, (SizeL{7, -8}));
  EXPECT_EQ(record->destination, (PointL{9, -10}));
}

TEST(WmfPatternBrushRecord, HasADibWhateverItsStyle) {
  for (const std::uint32_t style : {3U, 5U}) {
    const auto record = DecodeWhole(DecodeWmfDibCreatePatternBrush,
                                    Bytes().U16(style).U16(0).Append(SmallDib().Data()));
    EXPECT_FALSE(record.IsShort());
    EXPECT_EQ(record->style, style);
    ExpectSmallDib(record->dib);
    EXPECT_TRUE(record->bitmap.IsEmpty());
  }
}

TEST(WmfPatternBrushRecord, HasAnOldBitmapWhereThereIsNoDib) {
  const Bytes bitmap = SmallBitmap16().Append(kBits);
  const auto record =
      DecodeWhole(DecodeWmfDibCreatePatternBrush, Bytes().U16(3).U16(0).Append(bitmap.Data()));
  EXPECT_FALSE(record.IsShort());
  EXPECT_TRUE(record->dib.IsEmpty());
  ExpectSmallBitmap16(record->bitmap);
}

TEST(WmfPatternBrushRecord, HasOldBitsBehindAPointerAndZeros) {
  const Bytes body = SmallBitmap16().U32(0xDEADBEEF).Zeros(18).Append(kBits);
  const auto record = DecodeWmf(DecodeWmfCreatePatternBrush, body);
  ExpectSmallBitmap16(record->bitmap);
}

}  // namespace
}  // namespace kelvane::test
