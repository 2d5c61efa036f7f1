#include "classic/records/unused_attribute_records.h"

#include <gtest/gtest.h>

#include "classic/document/record_factory.h"
#include "classic/reader/reader.h"
#include "support/context_fields.h"
#include "support/playback.h"
#include "support/surface_fixture.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::Metafile;
using test::PageContent;
using test::ReadRecord;

class UnusedRecords : public testing::WithParamInterface<std::uint32_t>,
                      public test::SurfaceFixture {
 protected:
  // As a mode, an origin and a count, nothing that a context starts with.
  const Bytes body_ = Bytes().U32(2).U32(3).U32(4);
};

TEST_P(UnusedRecords, LeaveThePageAsItIs) {
  const auto drawing = [](Metafile metafile) {
    return PageContent(metafile.MoveTo(0, 0).LineTo(1, 1).Polygon({{0, 0}, {1, 1}, {1, 0}}));
  };
  EXPECT_EQ(drawing(Metafile().Record(GetParam(), body_)), drawing(Metafile()));
}

TEST_P(UnusedRecords, LeaveEveryFieldOfTheContextAsItIs) {
  RecordArena arena;
  const OwnedRecord record = MakeRecord(GetParam(), arena);
  test::ReadInto(*record, body_);
  context_.SaveState();
  const std::string before = test::FieldsOf(context_);
  record->drawToPDF(context_);
  EXPECT_EQ(test::FieldsOf(context_), before);
}

INSTANTIATE_TEST_SUITE_P(Types, UnusedRecords,
                         testing::Values(test::EMR_SETBRUSHORGEX, test::EMR_SETPIXELV,
                                         test::EMR_SETPOLYFILLMODE, test::EMR_SETROP2,
                                         test::EMR_SETSTRETCHBLTMODE, test::EMR_SELECTPALETTE,
                                         test::EMR_GDICOMMENT, test::EMR_SETICMMODE,
                                         test::EMR_SETLAYOUT));

TEST(UnusedRecord, KeepsWhatItReads) {
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
