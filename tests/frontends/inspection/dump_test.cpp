#include "frontends/inspection/dump.h"

#include <algorithm>
#include <ostream>
#include <sstream>
#include <streambuf>

#include <gtest/gtest.h>

#include "dumped.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

/// What a text of these units looks like in a dump.
std::string DumpedText(std::u16string_view text) {
  const std::string line = Dumped(Metafile().TextOut({0, 0}, text).Build()).at(1);
  const std::size_t start = line.find("OutputString=") + std::string_view("OutputString=").size();
  return line.substr(start);
}

TEST(Dump, HasALineForEachRecord) {
  const auto lines = Dumped(Metafile().MoveTo(10, 20).LineTo(-30, 40).Build());
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[1], "108 EMR_MOVETOEX Size=16 Offset=(10,20)");
  EXPECT_EQ(lines[2], "124 EMR_LINETO Size=16 Point=(-30,40)");
  EXPECT_EQ(lines[3], "140 EMR_EOF Size=20 PaletteBuffer=0");
}

TEST(Dump, BeginsWithTheHeader) {
  EXPECT_EQ(Dumped(FileOfALine()).front().substr(0, 51),
            "0 EMR_HEADER Size=108 Bounds=(0,0,100,100) Frame=(0");
}

TEST(Dump, HasTheBytesOfARecordOfNoKnownType) {
  EXPECT_EQ(Dumped(Metafile().Record(69, Bytes().U32(0x01020304)).Build()).at(1),
            "108 UNKNOWN Type=69 Size=12 Data=4:04030201");
  EXPECT_EQ(Dumped(Metafile().Record(0xFFFFFFFF).Build()).at(1),
            "108 UNKNOWN Type=4294967295 Size=8 Data=0");
}

TEST(Dump, HasTheFirstOfManyBytes) {
  const std::string line = Dumped(Metafile().Record(69, Bytes().Zeros(36)).Build()).at(1);
  EXPECT_EQ(line, "108 UNKNOWN Type=69 Size=44 Data=36:" + std::string(64, '0') + "...");
}

TEST(Dump, SaysWhichRecordIsDamaged) {
  EXPECT_EQ(Dumped(Metafile().Record(EMR_LINETO, Bytes().U32(7)).Build()).at(1),
            R"(108 EMR_LINETO Size=12 Point=(0,0) Damaged="its data end early")");
}

TEST(Dump, HasThePointsThatAreThereWhateverTheirCount) {
  const Bytes body = Bytes().Rectangle(0, 0, 1, 1).U32(0x40000000).Point(1, 2).Point(3, 4);
  EXPECT_EQ(Dumped(Metafile().Record(EMR_POLYLINE16, body).Build()).at(1),
            "108 EMR_POLYLINE16 Size=36 Bounds=(0,0,1,1) aPoints=2:(1,2),(3,4) "
            R"(Damaged="its data end early")");
}

TEST(Dump, SaysWhereTheRecordsBreakOff) {
  const auto file = Metafile().RecordOfSize(EMR_LINETO, 1000, Bytes().PointL(1, 2)).Build();
  EXPECT_EQ(Dumped(file).back(),
            R"(108 END Bytes=36 Damaged="a record claims more than the file has")");
}

TEST(Dump, SaysThatTheEndIsMissing) {
  EXPECT_EQ(Dumped(Metafile().BuildWithoutEnd()).back(),
            R"(108 END Bytes=0 Damaged="the file ends without an EMR_EOF")");
}

TEST(Dump, SaysWhatLiesBehindTheEnd) {
  auto file = FileOfALine();
  const std::size_t size = file.size();
  file.resize(size + 3);
  EXPECT_EQ(Dumped(file).back(), std::to_string(size) + " END Bytes=3");
}

TEST(Dump, IsRefusedOfWhatIsNoMetafile) {
  std::stringstream out;
  EXPECT_FALSE(Dump({}, out));
  EXPECT_FALSE(Dump(Bytes().U32(EMR_EOF).U32(8).Data(), out));
  EXPECT_EQ(out.str(), "");
  EXPECT_TRUE(Dump(FileOfALine(), out));
}

TEST(Dump, NamesStockObjectsAndNumbersOthers) {
  const auto lines = Dumped(
      Metafile().SelectObject(kStockNullPen).SelectObject(7).SelectObject(0x80000063).Build());
  EXPECT_EQ(lines.at(1), "108 EMR_SELECTOBJECT Size=12 ihObject=NULL_PEN");
  EXPECT_EQ(lines.at(2), "120 EMR_SELECTOBJECT Size=12 ihObject=7");
  EXPECT_EQ(lines.at(3), "132 EMR_SELECTOBJECT Size=12 ihObject=0x80000063");
}

TEST(Dump, NamesEachPartOfAValue) {
  const auto lines = Dumped(Metafile().SetTextAlign(0x119).SetTextAlign(0x4001).Build());
  EXPECT_EQ(lines.at(1),
            "108 EMR_SETTEXTALIGN Size=12 "
            "TextAlignmentMode=TA_UPDATECP|TA_LEFT|TA_BASELINE|TA_RTLREADING");
  EXPECT_EQ(lines.at(2),
            "120 EMR_SETTEXTALIGN Size=12 TextAlignmentMode=TA_UPDATECP|TA_LEFT|TA_TOP|0x4000");
}

TEST(Dump, WritesColorsAsTheyLookUnlessTheyAreMore) {
  const auto lines =
      Dumped(Metafile().SetTextColor(Rgb(1, 0xAB, 3)).SetTextColor(0x01000002).Build());
  EXPECT_EQ(lines.at(1), "108 EMR_SETTEXTCOLOR Size=12 Color=#01ab03");
  EXPECT_EQ(lines.at(2), "120 EMR_SETTEXTCOLOR Size=12 Color=0x1000002");
}

TEST(Dump, WritesTextAsUTF8) {
  EXPECT_EQ(DumpedText(u"a\u00e9\u4e16\U0001F600 b"), "\"a\u00e9\u4e16\U0001F600 b\"");
}

TEST(Dump, EscapesWhatDoesNotPrint) {
  EXPECT_EQ(DumpedText(u"\"\\\n\u001b[1m\u009b"), R"("\"\\\n\u{1b}[1m\u{9b}")");
  EXPECT_EQ(DumpedText({u"a\0b", 3}), R"("a\u{0}b")");
}

TEST(Dump, EscapesWhatTurnsTextRound) {
  EXPECT_EQ(DumpedText(u"\u202eab\u2028\ufeff"), R"("\u{202e}ab\u{2028}\u{feff}")");
}

TEST(Dump, EscapesHalvesOfCharacters) {
  const std::u16string halves = {u'a', 0xD83D, u'b', 0xDE00};
  EXPECT_EQ(DumpedText(halves), R"("a\u{d83d}b\u{de00}")");
}

TEST(Dump, LeavesBytesOfUnknownCodePagesAsTheyAre) {
  const std::string line = Dumped(Metafile().TextOutA({0, 0}, "a\xE9\n").Build()).at(1);
  EXPECT_EQ(line.substr(line.find("OutputString=")), R"(OutputString="a\xe9\n")");
}

TEST(Dump, IsNoLongerForTextsThatOverlap) {
  constexpr std::uint32_t kPolyTextOutA = 96;
  constexpr std::uint32_t kTexts = 100;
  constexpr std::uint32_t kUnits = 4000;
  constexpr std::uint32_t kTextsAt = 40;
  constexpr std::uint32_t kStoredText = 40;
  Bytes body = Bytes().Zeros(28).U32(kTexts);
  for (std::uint32_t i = 0; i < kTexts; ++i)
    body.Zeros(8).U32(kUnits).U32(kTextsAt + kTexts * kStoredText).Zeros(24);
  body.Append(std::vector<unsigned char>(kUnits, 'a'));
  const std::string line = Dumped(Metafile().Record(kPolyTextOutA, body).Build()).at(1);
  EXPECT_LT(line.size(), 4 * body.Size());
  EXPECT_NE(line.find(R"( Damaged="its texts overlap")"), std::string::npos);
}

TEST(Dump, GivesLongListsToTheStreamPieceByPiece) {
  /// Counts what it is given at once.
  class Pieces : public std::streambuf {
   public:
    std::streamsize longest = 0;

   protected:
    std::streamsize xsputn(const char* /*text*/, std::streamsize size) override {
      longest = std::max(longest, size);
      return size;
    }
  } pieces;
  std::ostream out(&pieces);
  Dump(Metafile().Polyline(Points(100000, {-10000, 10000})).Build(), out);
  EXPECT_GT(pieces.longest, 60000);
  EXPECT_LT(pieces.longest, 70000);
}

TEST(Dump, EndsWhenTheStreamFails) {
  std::ostream out(nullptr);
  Metafile many;
  for (int i = 0; i < 100; ++i)
    many.LineTo(i, i);
  Dump(many.Build(), out);
  EXPECT_TRUE(out.fail());
}

}  // namespace
}  // namespace kelvane::test
