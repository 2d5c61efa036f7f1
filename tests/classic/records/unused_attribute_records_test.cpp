#include "classic/records/unused_attribute_records.h"

#include <gtest/gtest.h>

#include "classic/reader/reader.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::Metafile;
using test::PageContent;
using test::ReadRecord;

class UnusedRecords : public testing::TestWithParam<std::uint32_t> {};

TEST_P(UnusedRecords, ChangeNothing) {
  const auto drawing = [](Metafile metafile) {
    return PageContent(metafile.MoveTo(0, 0).LineTo(1, 1).Polygon({{0, 0}, {1, 1}, {1, 0}}));
  };
  const Bytes body = Bytes().U32(2).U32(3).U32(4);
  EXPECT_EQ(drawing(Metafile().Record(GetParam(), body)), drawing(Metafile()));
}

INSTANTIATE_TEST_SUITE_P(Types, UnusedRecords,
                         testing::Values(test::EMR_SETBRUSHORGEX, test::EMR_SETPIXELV,
                                         test::EMR_SETPOLYFILLMODE, test::EMR_SETROP2,
                                         test::EMR_SETSTRETCHBLTMODE, test::EMR_SELECTPALETTE,
                                         test::EMR_GDICOMMENT, test::EMR_SETICMMODE,
                                         test::EMR_SETLAYOUT));

TEST(UnusedRecords, KeepWhatTheyRead) {
  EXPECT_EQ(ReadRecord<SetRop2Record>(Bytes().U32(13))->mode, 13U);
  EXPECT_EQ(ReadRecord<SetBrushOrgExRecord>(Bytes().I32(1).I32(-2))->origin.y, -2);
  EXPECT_EQ(ReadRecord<SetPixelVRecord>(Bytes().I32(1).I32(2).U32(3))->color, 3U);
}

/// @return how many bytes a comment's `read` takes.
std::int64_t CommentLength(std::uint32_t count) {
  const Bytes block = Bytes().U32(count).Zeros(60);
  Reader reader(block.Data().data(), static_cast<std::int32_t>(block.Size()));
  GDICommentRecord record;
  record.read(reader);
  return reader.getPosition();
}

TEST(GDICommentRecord, TakesItsBytesAndTheirPadding) {
  EXPECT_EQ(CommentLength(0), 4);
  EXPECT_EQ(CommentLength(4), 8);
  EXPECT_EQ(CommentLength(5), 12);
}

TEST(GDICommentRecord, KeepsTheBytesThatTheDataSupplies) {
  EXPECT_EQ(ReadRecord<GDICommentRecord>(Bytes().U32(5).Zeros(8))->data.size(), 5U);
  EXPECT_EQ(ReadRecord<GDICommentRecord>(Bytes().U32(0xFFFFFFFF).Zeros(8))->data.size(), 8U);
}

}  // namespace
}  // namespace kelvane
