#include "metafile/container/spool_records.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/containers.h"

namespace kelvane {
namespace {

using test::PrintJob;

using File = std::vector<unsigned char>;

std::u16string NameIn(const File& file) {
  const auto header = ReadSpoolHeader(file);
  return header ? std::u16string(header->document.begin(), header->document.end()) : u"none";
}

TEST(SpoolHeader, HasTheNameOfTheDocument) {
  EXPECT_EQ(NameIn(PrintJob(u"A letter").Record(EMRI_DEVMODE, {1, 2}).Build()), u"A letter");
  EXPECT_EQ(NameIn(PrintJob(u"").Record(EMRI_DEVMODE, {}).Build()), u"");
}

TEST(SpoolHeader, IsToldByVersionSizeAndTheRecordBehindIt) {
  const File job = PrintJob().Record(EMRI_DEVMODE, {1, 2}).Build();
  ASSERT_TRUE(ReadSpoolHeader(job));
  File other = job;
  other[2] = 2;  // the version
  EXPECT_FALSE(ReadSpoolHeader(other));
  other = job;
  other[4] = 15;  // the size of the header
  EXPECT_FALSE(ReadSpoolHeader(other));
  other[5] = 15;
  EXPECT_FALSE(ReadSpoolHeader(other));
  EXPECT_FALSE(ReadSpoolHeader(PrintJob().Build()));
  EXPECT_FALSE(ReadSpoolHeader(PrintJob().Record(0, {}).Build()));
  EXPECT_FALSE(ReadSpoolHeader(PrintJob().Record(22, {}).Build()));
}

TEST(SpoolHeader, HasNoNameWhereItsPlaceIsOutside) {
  File job = PrintJob().Record(EMRI_DEVMODE, {}).Build();
  job[9] = 0xFF;  // its offset
  EXPECT_EQ(NameIn(job), u"");
}

TEST(SpoolRecords, FollowEachOtherByTheirSizes) {
  const File job = PrintJob().Record(EMRI_DEVMODE, {1, 2}).Record(99, {}).Page({7, 8, 9}).Build();
  const std::size_t start = ReadSpoolHeader(job)->size;
  SpoolRecordIterator records(job, start);
  const auto first = records.Next();
  EXPECT_EQ(first->type, EMRI_DEVMODE);
  EXPECT_EQ(first->offset, start);
  EXPECT_EQ(first->data.size(), 2U);
  EXPECT_EQ(records.Next()->type, 99U);
  const auto page = records.Next();
  EXPECT_EQ(File(page->data.begin(), page->data.end()), (File{7, 8, 9}));
  EXPECT_FALSE(records.End());
  EXPECT_FALSE(records.Next());
  EXPECT_EQ(records.End(), SpoolEnd::kFileEnds);
  EXPECT_EQ(records.Offset(), job.size());
}

TEST(SpoolRecords, EndWhereASizeLeadsBeyondTheFile) {
  for (const std::uint32_t size : {3U, 0xFFFFFFFFU}) {
    const File job = PrintJob().Record(EMRI_DEVMODE, {}).RecordOfSize(12, size, {1, 2}).Build();
    SpoolRecordIterator records(job, ReadSpoolHeader(job)->size);
    EXPECT_TRUE(records.Next());
    EXPECT_FALSE(records.Next());
    EXPECT_EQ(records.End(), SpoolEnd::kSizePastEnd);
    EXPECT_EQ(records.Offset(), job.size() - 10);
  }
}

TEST(SpoolRecords, EndWithinAHead) {
  File job = PrintJob().Record(EMRI_DEVMODE, {}).Build();
  job.insert(job.end(), {12, 0, 0, 0, 1, 0, 0});
  SpoolRecordIterator records(job, ReadSpoolHeader(job)->size);
  EXPECT_TRUE(records.Next());
  EXPECT_FALSE(records.Next());
  EXPECT_EQ(records.End(), SpoolEnd::kFileEndsInHead);
}

TEST(SpoolRecords, AreKnownByNameAndKind) {
  EXPECT_EQ(SpoolRecordName(EMRI_METAFILE_DATA), "EMRI_METAFILE_DATA");
  EXPECT_EQ(SpoolRecordName(EMRI_EMBED_FONT_EXT), "EMRI_EMBED_FONT_EXT");
  EXPECT_EQ(SpoolRecordName(0), "");
  EXPECT_EQ(SpoolRecordName(22), "");
  std::string pages;
  std::string fonts;
  for (std::uint32_t type = 0; type < 30; ++type) {
    if (IsSpoolPage(type)) pages += std::to_string(type) + ' ';
    if (IsSpoolFont(type)) fonts += std::to_string(type) + ' ';
  }
  EXPECT_EQ(pages, "1 9 10 11 12 ");
  EXPECT_EQ(fonts, "2 4 7 8 21 ");
}

}  // namespace
}  // namespace kelvane
