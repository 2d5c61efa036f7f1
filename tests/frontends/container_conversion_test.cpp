// Metafiles that come compressed, or many in one file.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "frontends/picture_conversion.h"
#include "frontends/picture_report.h"
#include "support/containers.h"
#include "support/files.h"
#include "support/metafile.h"
#include "support/pdf.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using File = std::vector<unsigned char>;

constexpr std::uint32_t kSubsetFont = 7;

std::string DocumentOf(const PictureConversion& conversion) {
  if (!conversion.document) return conversion.message;
  const auto& bytes = conversion.document->bytes;
  return {bytes.begin(), bytes.end()};
}

std::string DocumentOf(const File& file) {
  return DocumentOf(ConvertPicture(file, {}));
}

File OfWidth(std::int32_t width) {
  return Metafile().Bounds(0, 0, width, 50).Polyline({{1, 2}, {3, 4}}).Build();
}

TEST(ACompressedMetafile, IsDrawnAsTheMetafile) {
  EXPECT_EQ(DocumentOf(Gzipped(OfWidth(100))), DocumentOf(OfWidth(100)));
  const File wmf = WindowsMetafile().Placeable(0, 0, 100, 50, 96).Record(0x0213, {9, 9}).Build();
  EXPECT_EQ(DocumentOf(Gzipped(wmf)), DocumentOf(wmf));
}

TEST(ACompressedMetafile, HasTheBytesOfTheFileInItsReport) {
  const File packed = Gzipped(OfWidth(100));
  EXPECT_EQ(ConvertPicture(packed, {}).bytes, packed.size());
}

TEST(ACompressedMetafile, IsRefusedWhenItExpandsTooFar) {
  const PictureConversion conversion = ConvertPicture(Gzipped(File(1 << 20)), {});
  EXPECT_EQ(conversion.status, ConversionStatus::kNoPicture);
  EXPECT_EQ(conversion.message, "it expands to more than 64 times its size, or more than 256 MiB");
}

TEST(ACompressedMetafile, IsRefusedWhenItHoldsNone) {
  EXPECT_EQ(DocumentOf(Gzipped({'h', 'e', 'l', 'l', 'o'})), "it is no metafile");
  EXPECT_EQ(DocumentOf(Gzipped(Gzipped(OfWidth(100)))), "it is no metafile");
}

TEST(APrintJob, BecomesADocumentOfAsManyPages) {
  const File job = PrintJob(u"Letter").Page(OfWidth(100)).Page(OfWidth(200)).Build();
  const PictureConversion conversion = ConvertPicture(job, {});
  EXPECT_EQ(conversion.status, ConversionStatus::kDone);
  EXPECT_EQ(conversion.records, 6U);
  Pdf document(DocumentOf(conversion));
  EXPECT_EQ(document.PageCount(), 2U);
  auto title = document.Document().getTrailer().getKey("/Info").getKey("/Title");
  EXPECT_EQ(title.getUTF8Value(), "Letter");
  const TemporaryFolder folder;
  WriteFile(folder / "a.pdf", DocumentOf(conversion));
  EXPECT_EQ(ComplaintsAbout(folder / "a.pdf"), "");
}

TEST(APrintJob, HasPagesOfTheirOwnSizes) {
  const File job = PrintJob().Page(OfWidth(100)).Page(OfWidth(200)).Build();
  const std::string document = DocumentOf(job);
  const auto boxOf = [](const File& file) { return Pdf(DocumentOf(file)).MediaBox(); };
  ASSERT_NE(boxOf(OfWidth(100)), boxOf(OfWidth(200)));
  EXPECT_EQ(Pdf(document).MediaBox(0), boxOf(OfWidth(100)));
  EXPECT_EQ(Pdf(document).MediaBox(1), boxOf(OfWidth(200)));
}

TEST(APrintJob, ReportsItsPagesWhereThereAreMore) {
  const File two = PrintJob().Page(OfWidth(100)).Page(OfWidth(200)).Build();
  EXPECT_THAT(ReportAsJson(ConvertPicture(two, {})), HasSubstr("\"pages\":2"));
  EXPECT_THAT(ReportAsJson(ConvertPicture(PrintJob().Page(OfWidth(9)).Build(), {})),
              Not(HasSubstr("\"pages\"")));
}

TEST(APrintJob, ReportsItsFonts) {
  const File job = PrintJob().Record(kSubsetFont, {1, 2}).Page(OfWidth(100)).Build();
  const auto records = ConvertPicture(job, {}).report.Records();
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].omission, Omission::kOnlyNearly);
  EXPECT_EQ(NameOf(records[0].record), "EMRI_SUBSET_FONT");
}

TEST(APrintJob, LacksAPageThatIsNoMetafile) {
  const File job = PrintJob().Page({1, 2, 3}).Page(OfWidth(100)).Build();
  ConversionOptions strict;
  strict.strict = true;
  const PictureConversion conversion = ConvertPicture(job, strict);
  EXPECT_EQ(conversion.status, ConversionStatus::kIncomplete);
  EXPECT_EQ(conversion.pages, 1U);
  const auto records = conversion.report.Records();
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].why, "its page is no metafile");
}

TEST(APrintJob, LeavesAllButItsFirstPageOutOfAnSvg) {
  ConversionOptions options;
  options.format = "svg";
  const File job = PrintJob().Page(OfWidth(100)).Page(OfWidth(200)).Page(OfWidth(300)).Build();
  const PictureConversion conversion = ConvertPicture(job, options);
  EXPECT_EQ(conversion.pages, 1U);
  const auto records = conversion.report.Records();
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].count, 2U);
  EXPECT_EQ(records[0].why, "a picture of this format has one page");
  EXPECT_FALSE(conversion.report.IsWhole());
}

TEST(APrintJob, WithoutAPageIsRefused) {
  EXPECT_EQ(DocumentOf(PrintJob().Record(3, {}).Build()), "it is a print job without a page");
}

TEST(APrintJob, SaysWhereItsRecordsEndTooEarly) {
  const File job = PrintJob().Page(OfWidth(100)).RecordOfSize(12, 99).Build();
  const PictureConversion conversion = ConvertPicture(job, {});
  EXPECT_THAT(conversion.report.Remarks(), ElementsAre("the records of the print job end at byte " +
                                                       std::to_string(job.size() - 8) +
                                                       ": a record claims more than the file has"));
  EXPECT_THAT(conversion.report.Records(), IsEmpty());
}

}  // namespace
}  // namespace kelvane::test
