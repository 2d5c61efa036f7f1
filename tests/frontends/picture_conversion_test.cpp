#include "frontends/picture_conversion.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/files.h"
#include "support/fonts.h"
#include "support/metafile.h"
#include "support/pdf.h"

namespace kelvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using File = std::vector<unsigned char>;

// No record has such a type.
constexpr std::uint32_t kUnknownType = 200;

std::string DocumentIn(const PictureConversion& conversion) {
  const auto& bytes = conversion.document->bytes;
  return {bytes.begin(), bytes.end()};
}

std::string MediaBoxOf(const File& file, const ConversionOptions& options = {}) {
  return Pdf(DocumentIn(ConvertPicture(file, options))).MediaBox();
}

/// A frame of an inch by two, around bounds that would be another page. The device has 3.2 pixels a
/// millimetre.
File FileWithAFrame() {
  File file = Metafile().Bounds(0, 0, 80, 160).Polyline({{10, 20}, {30, 40}}).Build();
  file = WithField(file, kFrameAt + 8, 2540);
  return WithField(file, kFrameAt + 12, 5080);
}

File WithFrameEmpty(const File& file) {
  return WithField(WithField(file, kFrameAt, 0), kFrameAt + 8, 0);
}

TEST(PictureConversion, MakesADocumentOfOnePageWithoutFault) {
  const PictureConversion conversion = ConvertPicture(FileOfALine(), {});
  EXPECT_EQ(conversion.status, ConversionStatus::kDone);
  EXPECT_EQ(conversion.message, "");
  EXPECT_EQ(Pdf(DocumentIn(conversion)).PageCount(), 1U);
  const TemporaryFolder folder;
  WriteFile(folder / "a.pdf", DocumentIn(conversion));
  EXPECT_EQ(ComplaintsAbout(folder / "a.pdf"), "");
}

TEST(PictureConversion, CountsRecordsAndBytesOfTheInput) {
  const PictureConversion conversion = ConvertPicture(FileOfALine(), {});
  EXPECT_EQ(conversion.records, 3U);  // header, polyline, end
  EXPECT_EQ(conversion.bytes, FileOfALine().size());
  EXPECT_GE(conversion.milliseconds, 0);
}

TEST(PictureConversion, GivesTheSameBytesForTheSameInput) {
  EXPECT_EQ(DocumentIn(ConvertPicture(FileWithAFrame(), {})),
            DocumentIn(ConvertPicture(FileWithAFrame(), {})));
}

// The page.

TEST(PictureConversion, MakesThePageOfTheFrame) {
  EXPECT_EQ(MediaBoxOf(FileWithAFrame()), "[ 0 0 72 144 ]");
  EXPECT_EQ(ConvertPicture(FileWithAFrame(), {}).pageSize, (CGSize{72, 144}));
}

TEST(PictureConversion, MakesThePageOfTheBoundsWhenAsked) {
  ConversionOptions options;
  options.page = PageChoice::kBounds;
  EXPECT_EQ(MediaBoxOf(FileWithAFrame(), options), "[ 0 0 80 160 ]");
}

TEST(PictureConversion, FollowsTheSizeAskedFor) {
  ConversionOptions options;
  options.size.scale = 0.5;
  EXPECT_EQ(MediaBoxOf(FileWithAFrame(), options), "[ 0 0 36 72 ]");
  options.size.width = 100;
  EXPECT_EQ(MediaBoxOf(FileWithAFrame(), options), "[ 0 0 100 200 ]");
  options.size.height = 30;
  EXPECT_EQ(MediaBoxOf(FileWithAFrame(), options), "[ 0 0 100 30 ]");
}

TEST(PictureConversion, SaysThatAnEmptyFrameGivesWayToTheBounds) {
  const PictureConversion conversion = ConvertPicture(WithFrameEmpty(FileWithAFrame()), {});
  EXPECT_THAT(conversion.report.Remarks(),
              ElementsAre("the frame is empty: the page is the bounds"));
}

TEST(PictureConversion, SaysThatAnAbsurdFrameGivesWayToTheBounds) {
  const File file = WithField(FileWithAFrame(), kFrameAt + 8, 2'000'000'000);
  EXPECT_THAT(ConvertPicture(file, {}).report.Remarks(),
              ElementsAre("the frame cannot be meant, so far is it from the bounds: the page is "
                          "the bounds"));
}

TEST(PictureConversion, HasNothingToSayOfAFrameThatIsMeant) {
  EXPECT_THAT(ConvertPicture(FileWithAFrame(), {}).report.Remarks(), IsEmpty());
}

TEST(PictureConversion, MakesASmallSquareWhenNothingTellsOfAPage) {
  const File file = WithFrameEmpty(Metafile().Bounds(0, 0, -1, -1).Build());
  const PictureConversion conversion = ConvertPicture(file, {});
  EXPECT_EQ(Pdf(DocumentIn(conversion)).MediaBox(), "[ 0 0 3 3 ]");
  EXPECT_THAT(conversion.report.Remarks(),
              ElementsAre("nothing tells how large the picture is: the page is a small square"));
  ConversionOptions options;
  options.size.height = 50;
  EXPECT_EQ(MediaBoxOf(file, options), "[ 0 0 50 50 ]");
}

// What the document says of itself.

std::string Information(const File& file, const char* key) {
  const Pdf pdf(DocumentIn(ConvertPicture(file, {})));
  auto text = pdf.Document().getTrailer().getKey("/Info").getKey(key);
  return text.isString() ? text.getUTF8Value() : "none";
}

TEST(PictureConversion, TakesTitleAndCreatorFromTheHeader) {
  const File file = WithDescription(FileOfALine(), {u"Draw 2\0Gr\u00F6\u00DFen\0\0", 15});
  EXPECT_EQ(Information(file, "/Creator"), "Draw 2");
  EXPECT_EQ(Information(file, "/Title"), "Gr\u00F6\u00DFen");
}

TEST(PictureConversion, LeavesOutATitleThatIsNotThere) {
  EXPECT_EQ(Information(FileOfALine(), "/Title"), "none");
  EXPECT_EQ(Information(WithDescription(FileOfALine(), {u"Draw 2\0\0", 8}), "/Title"), "none");
}

// What is left out.

TEST(PictureConversion, ReportsARecordThatNobodyKnows) {
  const File file = Metafile().Record(kUnknownType).Record(kUnknownType).Build();
  const PictureConversion conversion = ConvertPicture(file, {});
  EXPECT_EQ(conversion.status, ConversionStatus::kDone);
  const auto records = conversion.report.Records();
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].omission, Omission::kLeftOut);
  EXPECT_EQ(records[0].record.type, kUnknownType);
  EXPECT_EQ(records[0].count, 2U);
}

TEST(PictureConversion, IsIncompleteUnderStrictButHasTheDocument) {
  ConversionOptions strict;
  strict.strict = true;
  const PictureConversion conversion =
      ConvertPicture(Metafile().Record(kUnknownType).Build(), strict);
  EXPECT_EQ(conversion.status, ConversionStatus::kIncomplete);
  EXPECT_EQ(conversion.message, "1 record left out of the picture");
  EXPECT_EQ(Pdf(DocumentIn(conversion)).PageCount(), 1U);
}

TEST(PictureConversion, IsDoneUnderStrictWhenNothingIsLeftOut) {
  ConversionOptions strict;
  strict.strict = true;
  EXPECT_EQ(ConvertPicture(FileOfALine(), strict).status, ConversionStatus::kDone);
}

// What is no picture.

struct NoPicture {
  const char* test;
  File file;
  const char* message;
};

class PictureRefused : public testing::TestWithParam<NoPicture> {};

TEST_P(PictureRefused, SaysWhatItIsInstead) {
  const PictureConversion conversion = ConvertPicture(GetParam().file, {});
  EXPECT_EQ(conversion.status, ConversionStatus::kNoPicture);
  EXPECT_EQ(conversion.message, GetParam().message);
  EXPECT_EQ(conversion.document, nullptr);
}

File CutShort(std::size_t size) {
  File file = FileOfALine();
  file.resize(size);
  return file;
}

INSTANTIATE_TEST_SUITE_P(
    , PictureRefused,
    testing::Values(NoPicture{"Empty", {}, "it is empty"},
                    NoPicture{"Text", {'h', 'e', 'l', 'l', 'o'}, "it is no metafile"},
                    NoPicture{"OneByte", {1}, "it is no metafile"},
                    NoPicture{"HalfAWmfHeader", Bytes().U16(1).U16(9).U16(0x300).Zeros(11).Data(),
                              "it is no metafile"},
                    NoPicture{"Gzip", Bytes().Each({0x1F, 0x8B, 8, 0}).Zeros(20).Data(),
                              "its compressed data are damaged"},
                    NoPicture{"HalfAHeader", CutShort(60), "its header is damaged"},
                    NoPicture{"AnotherSignature", WithField(FileOfALine(), 40, 0),
                              "its header is damaged"}),
    [](const auto& row) { return row.param.test; });

// Text, by the options that a user has for it.

File FileWithText(const std::u16string& face) {
  return Metafile()
      .Bounds(0, 0, 200, 50)
      .CreateFont(1, {.face = face})
      .SelectObject(1)
      .TextOut({5, 5}, u"Junction")
      .Build();
}

// The directory's fonts are listed once; a file that is gone cannot be opened again.
TEST(PictureConversion, OpensNoFontAnewForAnotherFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "font.otf", ReadFile(kJunction));
  ConversionOptions options;
  options.fontDirectories = {folder.Path()};
  const PictureConversion first = ConvertPicture(FileWithText(u"Junction"), options);
  ASSERT_THAT(first.report.Fonts(), ElementsAre(FontUse{"Junction", "Junction"}));
  std::filesystem::remove(folder / "font.otf");
  EXPECT_EQ(DocumentIn(ConvertPicture(FileWithText(u"Junction"), options)), DocumentIn(first));
}

TEST(PictureConversion, TakesFontsByTheUsersWishes) {
  ConversionOptions options;
  options.fontMap.Add("Arial", "DejaVu Sans");
  EXPECT_THAT(ConvertPicture(FileWithText(u"Arial"), options).report.Fonts(),
              ElementsAre(FontUse{"Arial", "DejaVu Sans"}));
}

TEST(PictureConversion, DrawsTextAsShapesWhenAsked) {
  const File file = FileWithText(u"Arial");
  const Pdf text(DocumentIn(ConvertPicture(file, {})));
  ConversionOptions options;
  options.outlinesText = true;
  const Pdf shapes(DocumentIn(ConvertPicture(file, options)));
  EXPECT_THAT(text.Content(), testing::HasSubstr(" Tf\n"));
  EXPECT_THAT(shapes.Content(), testing::Not(testing::HasSubstr(" Tf\n")));
  EXPECT_THAT(shapes.Content(), testing::HasSubstr(" c\n"));
}

}  // namespace
}  // namespace kelvane::test
