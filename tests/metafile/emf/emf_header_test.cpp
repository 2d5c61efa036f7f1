#include "metafile/emf/emf_header.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

constexpr std::size_t kPlainBody = 80;  // what there must be behind type and size

struct Description {
  std::uint32_t length = 0;
  std::uint32_t offset = 0;
};

/// The 88 bytes that every header has, without type and size. The device is 1000 by 500 pixels, 200
/// by 100 millimetres.
Bytes Plain(const Description& description = {}) {
  return Bytes()
      .Rectangle(1, 2, 3, 4)
      .Rectangle(5, 6, 7, 8)
      .U32(kEmfSignature)
      .U32(0x10000)
      .U32(9)
      .U32(10)
      .U16(11)
      .U16(0)
      .U32(description.length)
      .U32(description.offset)
      .U32(12)
      .PointL(1000, 500)
      .PointL(200, 100);
}

/// The first extension.
Bytes PixelFormat(std::uint32_t size, std::uint32_t offset) {
  return Bytes().U32(size).U32(offset).U32(1);
}

constexpr std::u16string_view kDescription{u"Program\0Picture\0\0", 17};

TEST(EmfHeader, HasTheFieldsOfAPlainOne) {
  const auto header = Decode(DecodeEmfHeader, Plain());
  EXPECT_EQ(header->bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(header->frame, (RectangleL{5, 6, 7, 8}));
  EXPECT_EQ(header->signature, kEmfSignature);
  EXPECT_EQ(header->version, 0x10000U);
  EXPECT_EQ(header->bytes, 9U);
  EXPECT_EQ(header->records, 10U);
  EXPECT_EQ(header->handles, 11);
  EXPECT_EQ(header->palEntries, 12U);
  EXPECT_EQ(header->device, (SizeL{1000, 500}));
  EXPECT_EQ(header->millimeters, (SizeL{200, 100}));
  EXPECT_EQ(header->headerSize, 88U);
  EXPECT_FALSE(header->hasOpenGL);
  EXPECT_EQ(header->micrometers, SizeL{});
  EXPECT_TRUE(header->creator.empty());
}

TEST(EmfHeader, MayHaveAPixelFormat) {
  const auto header =
      Decode(DecodeEmfHeader, Plain().Append(PixelFormat(40, 100).Data()).U16(40).U16(7).Zeros(36),
             kPlainBody);
  EXPECT_EQ(header->headerSize, 100U);
  EXPECT_TRUE(header->hasOpenGL);
  EXPECT_EQ(header->pixelFormat.version, 7);
}

TEST(EmfHeader, MayHaveMicrometers) {
  const auto header = Decode(
      DecodeEmfHeader, Plain().Append(PixelFormat(0, 0).Data()).PointL(201999, 99001), kPlainBody);
  EXPECT_EQ(header->headerSize, 108U);
  EXPECT_EQ(header->micrometers, (SizeL{201999, 99001}));
}

TEST(EmfHeader, HasNoMicrometersThatAreOffByMoreThanAPercent) {
  for (const PointL wrong : {PointL{202001, 100000}, PointL{200000, 98999}, PointL{0, 0}}) {
    const auto header =
        Decode(DecodeEmfHeader, Plain().Append(PixelFormat(0, 0).Data()).PointL(wrong.x, wrong.y),
               kPlainBody);
    EXPECT_EQ(header->micrometers, SizeL{}) << wrong.x << ", " << wrong.y;
  }
}

TEST(EmfHeader, HasADescriptionBehindAllItsFields) {
  const auto header = Decode(
      DecodeEmfHeader,
      Plain({17, 108}).Append(PixelFormat(0, 0).Data()).PointL(200000, 100000).Utf16(kDescription),
      kPlainBody);
  EXPECT_EQ(header->headerSize, 108U);
  EXPECT_EQ(header->micrometers, (SizeL{200000, 100000}));
  EXPECT_EQ(Text(header->creator), u"Program");
  EXPECT_EQ(Text(header->title), u"Picture");
}

TEST(EmfHeader, HasNoFieldsWhereItsDescriptionLies) {
  const auto header = Decode(DecodeEmfHeader, Plain({17, 88}).Utf16(kDescription), kPlainBody);
  EXPECT_EQ(header->headerSize, 88U);
  EXPECT_FALSE(header->hasOpenGL);
  EXPECT_EQ(header->micrometers, SizeL{});
  EXPECT_EQ(Text(header->creator), u"Program");
  EXPECT_EQ(Text(header->title), u"Picture");
}

TEST(EmfHeader, HasNoMicrometersWhereItsPixelFormatLies) {
  const auto header = Decode(
      DecodeEmfHeader, Plain().Append(PixelFormat(40, 100).Data()).PointL(200000, 100000).Zeros(32),
      kPlainBody);
  EXPECT_EQ(header->headerSize, 100U);
  EXPECT_EQ(header->micrometers, SizeL{});
}

TEST(EmfHeader, MayHaveADescriptionWithoutEnd) {
  const auto header = Decode(DecodeEmfHeader, Plain({3, 88}).Utf16(u"abc"), kPlainBody);
  EXPECT_EQ(Text(header->creator), u"abc");
  EXPECT_TRUE(header->title.empty());
}

TEST(EmfHeader, KeepsOfADescriptionWhatIsThere) {
  const auto header = Decode(DecodeEmfHeader, Plain({1000, 88}).Utf16(u"abc"), kPlainBody);
  EXPECT_EQ(Text(header->creator), u"abc");
}

TEST(EmfHeader, HasNoDescriptionWithinItsFieldsOrBehindItsEnd) {
  for (const std::uint32_t offset : {0U, 84U, 92U, 0xFFFFFFFFU}) {
    const auto header = Decode(DecodeEmfHeader, Plain({4, offset}));
    EXPECT_TRUE(header->creator.empty()) << offset;
  }
}

}  // namespace
}  // namespace kelvane::test
