#include "classic/document/emf_file.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "classic/document/skipped_records.h"
#include "support/metafile.h"
#include "support/pdf.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::ConvertToPdf;
using test::FullTrace;
using test::kHeaderSize;
using test::kHeaderSizeAt;
using test::Metafile;
using test::ParsedMetafile;
using test::Pdf;
using test::Trace;
using test::WithField;
using enum test::EmrType;

constexpr std::uint32_t kUnknownType = 77;  // playback skips it
constexpr const char* kLine = "move 1 -2\nline 3 -4\nstroke\n";

Metafile& AddLine(Metafile& metafile) {
  return metafile.Polyline({{1, 2}, {3, 4}});
}

TEST(EMFFile, WithoutRecordsIsOneBlankPage) {
  EXPECT_TRUE(ParsedMetafile(Metafile().Build())->records.empty());
  EXPECT_EQ(FullTrace(Metafile().Bounds(0, 0, 100, 50)), "page 0 -50 100 50\nend-page\n");
}

TEST(EMFFile, KeepsTheFieldsOfItsLastRecord) {
  ParsedMetafile metafile(Metafile().Build());
  EXPECT_EQ(metafile->palette.nSize, 20U);
  EXPECT_EQ(metafile->palette.nSizeLast, 20U);
}

TEST(EMFFile, MakesThePageFromTheBounds) {
  const Pdf pdf(ConvertToPdf(Metafile().Bounds(10, 20, 110, 220).Build()));
  EXPECT_EQ(pdf.PageCount(), 1U);
  EXPECT_EQ(pdf.MediaBox(), "[ 10 -220 110 -20 ]");
}

TEST(EMFFile, MakesTheSamePageFromReversedBounds) {
  EXPECT_EQ(Pdf(ConvertToPdf(Metafile().Bounds(110, 20, 10, 220).Build())).MediaBox(),
            "[ 10 -220 110 -20 ]");
}

TEST(EMFFile, KeepsARecordForEachOfTheFile) {
  Metafile metafile;
  AddLine(metafile).Record(kUnknownType).Record(EMR_SETMETARGN).Record(EMR_HEADER);
  EXPECT_EQ(ParsedMetafile(metafile.Build())->records.size(), 4U);
}

TEST(EMFFile, SkipsWhatItDoesNotKnow) {
  for (const std::uint32_t type : {0U, 1U, 16U, 28U, 29U, 77U, 116U, 118U, 0x80000000U}) {
    Metafile metafile;
    metafile.Record(type, Bytes().U32(1).U32(2).U32(3));
    EXPECT_EQ(Trace(AddLine(metafile)), kLine) << "type " << type;
  }
}

TEST(EMFFile, RealignsOnADeclaredSizeThatExceedsTheFields) {
  Metafile metafile;
  metafile.Record(EMR_SETBKMODE, Bytes().U32(test::kOpaque).U32(0xFFFFFFFF));  // four bytes more
  EXPECT_EQ(Trace(AddLine(metafile)), kLine);
}

TEST(EMFFile, RealignsOnARecordThatReadsPastItsEnd) {
  Metafile metafile;
  // A polyline of one stored point that claims three: the points run into the record after it.
  metafile.Record(EMR_POLYLINE16, Bytes().Zeros(16).U32(3).Point(7, 7));
  ParsedMetafile parsed(AddLine(metafile).Build());
  EXPECT_EQ(parsed->records.size(), 2U);
  EXPECT_THAT(Trace(metafile), testing::EndsWith(kLine));
}

TEST(EMFFile, IgnoresWhatFollowsItsEnd) {
  auto file = Metafile().Build();
  const auto more = AddLine(*std::make_unique<Metafile>()).Build();
  file.insert(file.end(), more.begin() + kHeaderSize, more.end());
  EXPECT_TRUE(ParsedMetafile(file)->records.empty());
}

TEST(EMFFile, WithoutEndEndsWithTheData) {
  Metafile metafile;
  EXPECT_EQ(ParsedMetafile(AddLine(metafile).BuildWithoutEnd())->records.size(), 1U);
}

TEST(EMFFile, DiscardsATypeAtTheVeryEnd) {
  Metafile metafile;
  auto file = AddLine(metafile).BuildWithoutEnd();
  file.insert(file.end(), {EMR_POLYLINE16, 0, 0, 0});
  EXPECT_EQ(ParsedMetafile(file)->records.size(), 1U);
}

TEST(EMFFile, StartsWhereTheHeaderSaysItEnds) {
  Metafile metafile;
  metafile.Record(kUnknownType, Bytes().U32(1));
  AddLine(metafile);
  const std::uint32_t behindTheRecord = kHeaderSize + 8 + 4;
  const auto file = WithField(metafile.Build(), kHeaderSizeAt, behindTheRecord);
  EXPECT_EQ(ParsedMetafile(file)->records.size(), 1U);
}

TEST(EMFFile, StartsInsideAHeaderThatSaysSo) {
  // At 80 of the header stand the millimetres 320 and 240: an unknown type of 240 bytes, larger
  // than the block, so the reader stays behind its size field and finds zeros, which lead nowhere.
  const auto file = WithField(Metafile().Build(), kHeaderSizeAt, 80);
  ParsedMetafile metafile(file);
  ASSERT_EQ(metafile->records.size(), 2U);
  EXPECT_EQ(dynamic_cast<UnrecognizedRecord&>(*metafile->records[0]).type, 320U);
}

TEST(EMFFile, StrokesThePathThatIsPendingAtTheEnd) {
  Metafile metafile;
  metafile.MoveTo(1, 2).BeginPath().LineTo(3, 4).LineTo(5, 6);  // an open path bracket
  EXPECT_EQ(Trace(metafile), "move 3 -4\nline 5 -6\nstroke\n");
}

// A record that leads nowhere is kept and ends the parse as the end of the data would.
class NonAdvancingRecord : public testing::TestWithParam<std::uint32_t> {};

TEST_P(NonAdvancingRecord, EndsTheParse) {
  Metafile metafile;
  AddLine(metafile).RecordOfSize(kUnknownType, GetParam(), Bytes().Zeros(16));
  AddLine(metafile);
  EXPECT_EQ(ParsedMetafile(metafile.Build())->records.size(), 2U);
  EXPECT_EQ(Trace(metafile), kLine);
}

INSTANTIATE_TEST_SUITE_P(DeclaredSizes, NonAdvancingRecord, testing::Values(0, 1, 2, 3, 4));

TEST(EMFFile, ThatLeadsPastItsEndIsAbandoned) {
  const auto size = static_cast<std::uint32_t>(Metafile().Build().size());
  for (const std::uint32_t start : {size + 1, size + 1000, 0x80000000U, 0xFFFFFFF0U}) {
    EXPECT_THROW(ParsedMetafile(WithField(Metafile().Build(), kHeaderSizeAt, start)),
                 std::runtime_error)
        << start;
  }
}

TEST(EMFFile, TruncatedInsideASkippedRecordIsAbandoned) {
  Metafile metafile;
  AddLine(metafile).Record(kUnknownType, Bytes().Zeros(60));
  auto file = metafile.BuildWithoutEnd();
  file.resize(file.size() - 20);
  EXPECT_THROW(ParsedMetafile{file}, std::runtime_error);
}

TEST(EMFFile, WhoseRecordsOverlapIsAbandoned) {
  // Each record claims all the points that follow and is framed to 28 bytes, so reading them all
  // would take quadratic time.
  Metafile metafile;
  for (int i = 0; i < 8000; ++i) {
    metafile.RecordOfSize(EMR_POLYLINE16, 28, Bytes().Zeros(16).U32(0x10000000));
  }
  EXPECT_THROW(ParsedMetafile(metafile.Build()), std::runtime_error);
}

TEST(EMFFile, GoesBackToTheStartOfThePageOnARestoreWithoutASave) {
  const auto doubled = [](Metafile& metafile) {
    metafile.ModifyWorldTransform({2, 0, 0, 2, 0, 0}, test::kMultiplyLeft);
  };
  Metafile restored;
  doubled(restored);
  EXPECT_EQ(Trace(AddLine(restored.RestoreDC())), kLine);
  Metafile restoredTwice;  // the second time there is nothing left to go back to
  doubled(restoredTwice.RestoreDC());
  EXPECT_NE(Trace(AddLine(restoredTwice.RestoreDC())), kLine);
}

TEST(EMFFile, CanBePlayedBackTwice) {
  Metafile builder;
  ParsedMetafile metafile(AddLine(builder).Build());
  const CFOwned<CFData> first(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CFData> second(CFDataCreateMutable(kCFAllocatorDefault, 0));
  metafile->DrawToPDF(first.get());
  metafile->DrawToPDF(second.get());
  EXPECT_EQ(first->bytes, second->bytes);
  EXPECT_FALSE(first->bytes.empty());
}

TEST(EMFFile, WithAPageWithoutAreaMakesNoDocument) {
  EXPECT_EQ(ConvertToPdf(Metafile().Bounds(0, 0, 0, 50).Build()), "");
  EXPECT_EQ(ConvertToPdf(Metafile().Bounds(0, 7, 100, 7).Build()), "");
}

}  // namespace
}  // namespace kelvane
