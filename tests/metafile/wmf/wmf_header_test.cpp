#include "metafile/wmf/wmf_header.h"

#include <vector>

#include <gtest/gtest.h>

#include "metafile/wmf/wmf_record_type.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

/// A plain header as [MS-WMF] 2.3.2.2 lays it out, and nothing behind it.
Bytes PlainHeader() {
  return Bytes().U16(2).U16(9).U16(0x300).U32(0x12345).U16(7).U32(0x54321).U16(0);
}

/// A placeable one as 2.3.2.3 lays it out; the words before the checksum, XORed, are it.
Bytes PlaceableHeader(std::uint32_t checksum) {
  const Bytes before = Bytes().U32(0x9AC6CDD7).U16(0).Point(-1, 2).Point(300, 400).U16(1440);
  return Bytes(before).U32(0).U16(checksum);
}
constexpr std::uint32_t kChecksum = 0xCDD7 ^ 0x9AC6 ^ 0xFFFF ^ 0x0002 ^ 0x012C ^ 0x0190 ^ 0x05A0;

File Cut(File file, std::size_t size) {
  file.resize(size);
  return file;
}

/// Two records and the end, without a header.
File Records() {
  return WindowsMetafile().Record(META_SETBKMODE, {1}).Record(META_LINETO, {2, 3}).BuildRecords();
}

TEST(WmfHeader, HasWhatThePlainOneSays) {
  const auto header = ReadWmfHeader(PlainHeader().Data());
  ASSERT_TRUE(header && header->plain);
  EXPECT_FALSE(header->placeable);
  EXPECT_EQ(header->plain->kind, 2);
  EXPECT_EQ(header->plain->version, 0x300);
  EXPECT_EQ(header->plain->words, 0x12345U);
  EXPECT_EQ(header->plain->objects, 7);
  EXPECT_EQ(header->plain->maxRecord, 0x54321U);
  EXPECT_EQ(header->records, 18U);
}

TEST(WmfHeader, HasWhatThePlaceableOneSays) {
  const auto header = ReadWmfHeader(PlaceableHeader(kChecksum).Append(PlainHeader().Data()).Data());
  ASSERT_TRUE(header && header->placeable);
  EXPECT_TRUE(header->plain);
  EXPECT_EQ(header->placeable->box, (RectangleL{-1, 2, 300, 400}));
  EXPECT_EQ(header->placeable->unitsPerInch, 1440);
  EXPECT_TRUE(header->placeable->isChecked);
  EXPECT_EQ(header->records, 40U);
}

TEST(WmfHeader, TellsAWrongChecksumAndReadsOn) {
  const auto header =
      ReadWmfHeader(PlaceableHeader(kChecksum + 1).Append(PlainHeader().Data()).Data());
  ASSERT_TRUE(header && header->placeable);
  EXPECT_FALSE(header->placeable->isChecked);
  EXPECT_TRUE(header->plain);
}

TEST(WmfHeader, MayBeThePlaceableOneAlone) {
  const auto header = ReadWmfHeader(PlaceableHeader(kChecksum).Append(Records()).Data());
  ASSERT_TRUE(header);
  EXPECT_TRUE(header->placeable);
  EXPECT_FALSE(header->plain);
  EXPECT_EQ(header->records, 22U);
}

TEST(WmfHeader, MayHaveThePlaceableOneApart) {
  const File apart = PlaceableHeader(kChecksum).Data();
  const auto header = ReadWmfHeader(PlainHeader().Data(), apart);
  ASSERT_TRUE(header && header->placeable);
  EXPECT_EQ(header->placeable->unitsPerInch, 1440);
  EXPECT_TRUE(header->plain);
  EXPECT_EQ(header->records, 18U);
  EXPECT_FALSE(ReadWmfHeader(PlainHeader().Data(), Cut(apart, 21))->placeable);
  EXPECT_EQ(ReadWmfHeader(PlaceableHeader(kChecksum).Append(Records()).Data(), apart)->records,
            22U);
}

TEST(WmfHeader, MayBeMissingBeforeRecordsAlone) {
  const auto header = ReadWmfHeader(Records());
  ASSERT_TRUE(header);
  EXPECT_FALSE(header->placeable);
  EXPECT_FALSE(header->plain);
  EXPECT_EQ(header->records, 0U);
}

TEST(WmfHeader, IsNotMissedBeforeAnythingElse) {
  EXPECT_FALSE(ReadWmfHeader({}));
  EXPECT_FALSE(ReadWmfHeader(WindowsMetafile().BuildRecords())) << "an end alone";
  EXPECT_FALSE(ReadWmfHeader(Cut(Records(), Records().size() - 6))) << "no end";
  EXPECT_FALSE(ReadWmfHeader(Cut(Records(), Records().size() - 1))) << "cut short";
  EXPECT_FALSE(
      ReadWmfHeader(WindowsMetafile().Record(META_LINETO, {2, 3}).Record(0x7777).BuildRecords()))
      << "no known type";
  EXPECT_FALSE(ReadWmfHeader(Bytes().U32(1).U32(108).Zeros(100).Data())) << "an EMF";
}

TEST(WmfHeader, IsNoneWhenCutShort) {
  for (std::size_t size = 0; size < 18; ++size)
    EXPECT_FALSE(ReadWmfHeader(Cut(PlainHeader().Data(), size))) << size;
  for (std::size_t size = 0; size < 22; ++size)
    EXPECT_FALSE(ReadWmfHeader(Cut(PlaceableHeader(kChecksum).Data(), size))) << size;
}

TEST(WmfHeader, IsOneOfTwoKindsAndTwoVersions) {
  const auto isHeader = [](std::uint32_t kind, std::uint32_t words, std::uint32_t version) {
    return ReadWmfHeader(Bytes().U16(kind).U16(words).U16(version).Zeros(12).Data()).has_value();
  };
  EXPECT_TRUE(isHeader(1, 9, 0x100));
  EXPECT_TRUE(isHeader(2, 9, 0x300));
  EXPECT_FALSE(isHeader(0, 9, 0x300));
  EXPECT_FALSE(isHeader(3, 9, 0x300));
  EXPECT_FALSE(isHeader(1, 8, 0x300));
  EXPECT_FALSE(isHeader(1, 9, 0x200));
}

}  // namespace
}  // namespace kelvane::test
