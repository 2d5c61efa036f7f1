#include "classic/document/emf_header.h"

#include <new>

#include <gtest/gtest.h>

#include "classic/reader/reader.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;

/// A header and what the reader's position was after it.
struct Filled {
  EMFHeader header;
  std::int64_t end = 0;
};

/// The base header of 88 bytes; every optional byte and the description behind it count up from 1.
Bytes HeaderBytes(std::uint32_t size, std::uint32_t descriptionOffset) {
  Bytes bytes;
  bytes.U32(1).U32(size).Rectangle(2, 3, 4, 5).Rectangle(6, 7, 8, 9);
  bytes.U32(10).U32(11).U32(12).U32(13).U16(14).U16(15).U32(16).U32(descriptionOffset).U32(17);
  bytes.PointL(18, 19).PointL(20, 21);
  for (std::uint32_t i = 1; i <= 64; ++i)
    bytes.U8(i);
  return bytes;
}

Filled Fill(const Bytes& bytes) {
  Reader reader(bytes.Data().data(), static_cast<std::int32_t>(bytes.Size()));
  Filled filled;
  filled.header.fillHeader(reader);
  filled.end = reader.getPosition();
  return filled;
}

TEST(EMFHeader, ReadsItsFieldsInFileOrder) {
  const auto fields = Fill(HeaderBytes(88, 0)).header.fields;
  EXPECT_EQ(fields.iType, 1U);
  EXPECT_EQ(fields.nSize, 88U);
  EXPECT_EQ(fields.rclBounds.left, 2);
  EXPECT_EQ(fields.rclBounds.bottom, 5);
  EXPECT_EQ(fields.rclFrame.left, 6);
  EXPECT_EQ(fields.dSignature, 10U);
  EXPECT_EQ(fields.nVersion, 11U);
  EXPECT_EQ(fields.nBytes, 12U);
  EXPECT_EQ(fields.nRecords, 13U);
  EXPECT_EQ(fields.nHandles, 14);
  EXPECT_EQ(fields.sReserved, 15);
  EXPECT_EQ(fields.nDescription, 16U);
  EXPECT_EQ(fields.nPalEntries, 17U);
  EXPECT_EQ(fields.szlDevice.cy, 19);
  EXPECT_EQ(fields.szlMillimeters.cx, 20);
}

TEST(EMFHeader, OfAnotherTypeIsReportedAndThrown) {
  const Bytes bytes = Bytes().U32(2).U32(88).U8(0);
  testing::internal::CaptureStdout();
  EXPECT_THROW(Fill(bytes), int);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "Error! Found type 2 while parsing the header but the type must be 1\n");
}

TEST(EMFHeader, CutShortLeavesTheRestZero) {
  const Bytes bytes = Bytes().U32(1).U32(88).I32(2).U8(0);
  const EMFHeader header = Fill(bytes).header;
  EXPECT_EQ(header.fields.rclBounds.left, 2);
  EXPECT_EQ(header.fields.rclBounds.top, 0);
  EXPECT_EQ(header.fields.szlDevice.cx, 0);
}

/// Where the description starts decides which optional fields are read before it.
struct Optional {
  std::uint32_t offset;
  bool pixelFormat;
  bool micrometers;
  std::int64_t descriptionStart;
};

class EMFHeaderOptions : public testing::TestWithParam<Optional> {};

TEST_P(EMFHeaderOptions, FollowTheDescriptionsOffset) {
  const Optional expected = GetParam();
  constexpr std::uint32_t kUnits = 4;
  constexpr std::uint32_t kBytes = 2 * kUnits;
  const Filled filled = Fill(HeaderBytes(expected.offset + kBytes, expected.offset));
  EXPECT_EQ(filled.header.fields.cbPixelFormat != 0, expected.pixelFormat);
  EXPECT_EQ(filled.header.fields.bOpenGL != 0, expected.pixelFormat);
  EXPECT_EQ(filled.header.fields.szlMicrometers.cx != 0, expected.micrometers);
  ASSERT_EQ(filled.header.description.size(), kUnits);
  EXPECT_EQ(filled.end, expected.descriptionStart + kBytes);
  const auto firstByte = static_cast<std::uint32_t>(expected.descriptionStart - 88 + 1);
  EXPECT_EQ(filled.header.description[0], firstByte + 256 * (firstByte + 1));
}

INSTANTIATE_TEST_SUITE_P(
    Offsets, EMFHeaderOptions,
    testing::Values(Optional{76, false, false, 88}, Optional{79, false, false, 88},
                    Optional{80, true, false, 100}, Optional{84, true, false, 100},
                    Optional{88, true, false, 100}, Optional{107, true, false, 100},
                    Optional{108, true, true, 108}));

TEST(EMFHeader, WithoutRoomForADescriptionHasNone) {
  const Filled filled = Fill(HeaderBytes(108, 108));
  EXPECT_TRUE(filled.header.description.empty());
  EXPECT_EQ(filled.end, 108);
}

TEST(EMFHeader, WithoutADescriptionOffsetTakesWhatFollows) {
  EXPECT_EQ(Fill(HeaderBytes(20, 0)).header.description.size(), 10U);
}

TEST(EMFHeader, KeepsOnlyTheUnitsThatTheDataSupplies) {
  // 64 bytes follow the base header, of which the last is never read.
  EXPECT_EQ(Fill(HeaderBytes(0xFFFFFFFF, 76)).header.description.size(), 31U);
}

TEST(EMFHeader, WhoseDescriptionEndsBeforeItBeginsCannotBeStored) {
  EXPECT_THROW(Fill(HeaderBytes(100, 102)), std::bad_alloc);
}

TEST(EMFHeader, MeasuresOffsetsInBytes) {
  const EMFHeader::EnhMetaFileHeader fields;
  const auto* const base = reinterpret_cast<const unsigned char*>(&fields);
  EXPECT_EQ(
      EMFHeader::MemOffset(base, reinterpret_cast<const unsigned char*>(&fields.szlMillimeters)),
      80U);
}

TEST(EMFPalette, IsFourFields) {
  const Bytes bytes = Bytes().U32(20).U32(2).U32(16).U32(28).U8(0);
  Reader reader(bytes.Data().data(), static_cast<std::int32_t>(bytes.Size()));
  EMFPalette palette;
  palette.fillPalette(reader);
  EXPECT_EQ(palette.nSize, 20U);
  EXPECT_EQ(palette.nPalEntries, 2U);
  EXPECT_EQ(palette.offPalEntries, 16U);
  EXPECT_EQ(palette.nSizeLast, 28U);
}

}  // namespace
}  // namespace kelvane
