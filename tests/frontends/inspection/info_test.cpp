#include "frontends/inspection/info.h"

#include <gtest/gtest.h>

#include "support/metafile.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kEmfPlusIdentifier = 0x2B464D45;

/// A comment of EMF+ records without data.
Bytes EmfPlusComment(std::initializer_list<std::pair<std::uint32_t, std::uint32_t>> typesAndFlags) {
  Bytes records;
  for (const auto& [type, flags] : typesAndFlags)
    records.U16(type).U16(flags).U32(12).U32(0);
  return Bytes()
      .U32(4 + static_cast<std::uint32_t>(records.Size()))
      .U32(kEmfPlusIdentifier)
      .Append(records.Data());
}

/// The value of a line of the text.
std::string InfoLine(const std::vector<unsigned char>& file, const std::string& label) {
  const std::string text = InfoOf(file, "picture.emf").value();
  std::size_t start = text.find("\n  " + label + "  ");
  if (start == std::string::npos) return "no such line";
  start = text.find_first_not_of(' ', start + 3 + label.size());
  return text.substr(start, text.find('\n', start) - start);
}

std::vector<unsigned char> FileWith(const Bytes& comment) {
  return Metafile().Record(EMR_GDICOMMENT, comment).Build();
}

/// A file with a description behind its header.
std::vector<unsigned char> FileWithDescription(std::u16string_view description) {
  auto file = FileOfALine();
  const Bytes text = Bytes().Utf16(description).Zeros(description.size() % 2 * 2);
  file.insert(file.begin() + kHeaderSize, text.Data().begin(), text.Data().end());
  file = WithField(file, kHeaderSizeAt, kHeaderSize + static_cast<std::uint32_t>(text.Size()));
  file = WithField(file, kDescriptionOffsetAt, kHeaderSize);
  return WithField(file, kDescriptionLengthAt, static_cast<std::uint32_t>(description.size()));
}

TEST(Info, BeginsWithTheNameOfTheFile) {
  EXPECT_EQ(InfoOf(FileOfALine(), "a.emf").value().substr(0, 14), "a.emf\n  format");
}

TEST(Info, SaysWhatTheHeaderSays) {
  const auto file = WithField(FileOfALine(), 24 + 8, 2550);  // the right of the frame
  EXPECT_EQ(InfoLine(file, "format"), "EMF");
  EXPECT_EQ(InfoLine(file, "size"), std::to_string(file.size()) + " bytes");
  EXPECT_EQ(InfoLine(file, "frame").substr(0, 7), "25.5 x ");
  EXPECT_EQ(InfoLine(file, "bounds"), "0,0 to 100,100 device units");
  EXPECT_EQ(InfoLine(file, "header"), "108 bytes");
}

TEST(Info, SaysHowLargeTheReferenceDeviceIs) {
  auto file = WithField(WithField(FileOfALine(), 72, 1920), 76, 1080);
  file = WithField(WithField(file, 80, 508), 84, 286);
  EXPECT_EQ(InfoLine(WithField(WithField(file, 100, 0), 104, 0), "device"),
            "1920 x 1080 pixels, 508 x 286 mm");
  EXPECT_EQ(InfoLine(WithField(WithField(file, 100, 508000), 104, 285750), "device"),
            "1920 x 1080 pixels, 508 x 285.75 mm");
}

TEST(Info, HasProgramAndTitleOfTheDescription) {
  const auto file = FileWithDescription({u"Prog\u001b\0Pic\0\0", 11});
  EXPECT_EQ(InfoLine(file, "program"), R"("Prog\u{1b}")");
  EXPECT_EQ(InfoLine(file, "title"), R"("Pic")");
  EXPECT_EQ(InfoLine(FileOfALine(), "program"), "not said");
}

TEST(Info, HasEachFontOnceInOrder) {
  Metafile file;
  file.CreateFont(1, {.face = u"B"}).CreateFont(2, {.face = u"A"}).CreateFont(3, {.face = u"B"});
  EXPECT_EQ(InfoLine(file.Build(), "fonts"), R"("B", "A")");
  EXPECT_EQ(InfoLine(FileOfALine(), "fonts"), "none");
}

TEST(Info, CountsRecordsByType) {
  const auto file = Metafile().MoveTo(0, 0).LineTo(1, 1).LineTo(2, 2).Record(200).Build();
  const std::string text = InfoOf(file, "").value();
  EXPECT_EQ(text.substr(text.find("  records")),
            "  records       6\n"
            "         1 EMR_HEADER\n"
            "         1 EMR_EOF\n"
            "         1 EMR_MOVETOEX\n"
            "         2 EMR_LINETO\n"
            "         1 of no known type\n");
}

TEST(Info, SaysWhenTheHeaderCountsOtherwise) {
  EXPECT_EQ(InfoLine(WithField(FileOfALine(), kRecordCountAt, 99), "records"),
            "3 (its header says 99)");
}

TEST(Info, CountsEmfPlusRecords) {
  const auto file = FileWith(EmfPlusComment({{0x4001, 0}, {0x4002, 0}}));
  EXPECT_EQ(InfoLine(file, "EMF+ records"), "2");
  EXPECT_EQ(InfoLine(file, "format"), "EMF+ within EMF");
}

TEST(Info, CountsEmfPlusRecordsByType) {
  const auto file =
      FileWith(EmfPlusComment({{0x4001, 0}, {0x4014, 0}, {0x4014, 0}, {0x4000, 0}, {0x403A, 0}}));
  const std::string text = InfoOf(file, "").value();
  const std::size_t start = text.find("  EMF+ records");
  EXPECT_EQ(text.substr(start, text.find("  records", start) - start),
            "  EMF+ records  5\n"
            "         1 EmfPlusHeader\n"
            "         2 EmfPlusFillPath\n"
            "         1 EmfPlusSetTSClip\n"
            "         1 of no known type\n");
}

TEST(Info, SaysWhenEmfHasThePictureBesideEmfPlus) {
  EXPECT_EQ(InfoLine(FileWith(EmfPlusComment({{0x4001, 1}})), "format"),
            "EMF with EMF+, each the whole picture");
}

TEST(Info, SaysWhetherTheFramingEndsWell) {
  auto file = FileOfALine();
  EXPECT_EQ(InfoLine(file, "framing"), "whole");
  file.resize(file.size() + 4);
  EXPECT_EQ(InfoLine(file, "framing"), "whole, with 4 bytes behind it");
  EXPECT_EQ(InfoLine(Metafile().RecordOfSize(EMR_LINETO, 4).Build(), "framing"),
            "broken at byte 108: a record claims less than the 8 bytes of its type and size");
}

TEST(Info, IsOfEnhancedMetafilesOnly) {
  EXPECT_FALSE(InfoOf({}, ""));
  EXPECT_FALSE(InfoOf(Bytes().U32(14).U32(20).Zeros(12).Data(), ""));
  EXPECT_FALSE(InfoOf(WithField(FileOfALine(), 40, 0), ""));  // the signature
}

}  // namespace
}  // namespace kelvane::test
