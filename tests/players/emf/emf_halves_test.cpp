#include "players/emf/emf_halves.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "support/metafile.h"
#include "support/plus_records.h"

namespace kelvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

PlusRecords& AddSquare(PlusRecords& records) {
  return records.FillRectangle(0xFFFF0000, {10, 20}, {5, 5});
}

/// A header and a red square at (10, 20) with sides of 5.
PlusRecords SquareBehind(std::uint32_t headerFlags, std::uint32_t version = kPlusVersion) {
  PlusRecords records;
  return AddSquare(records.Header(headerFlags, version));
}

/// The same, and StrokeFillPath, which no program is known to write.
PlusRecords UnplayableBehind(std::uint32_t headerFlags) {
  return SquareBehind(headerFlags).Record(0x4037, 0);
}

const std::string kSquare = "fill-color 1 0 0\n";
const std::string kLine = "move 0 0\nline 1 1\n";

/// A line in the records of EMF.
Metafile& AddEmfLine(Metafile& metafile) {
  return metafile.Polyline({{0, 0}, {1, 1}});
}

std::vector<unsigned char> FileOf(const PlusRecords& records) {
  Metafile metafile;
  records.AddTo(metafile);
  return AddEmfLine(metafile).Build();
}

bool HasSquare(const PlayedMetafile& played) {
  return played.trace.find(kSquare) != std::string::npos;
}
bool HasLine(const PlayedMetafile& played) {
  return played.trace.find(kLine) != std::string::npos;
}

TEST(EmfHalves, AreNotPlayedBoth) {
  const PlayedMetafile played = Played(FileOf(SquareBehind(kPlusDual)));
  EXPECT_TRUE(HasSquare(played)) << played.trace;
  EXPECT_FALSE(HasLine(played));
  EXPECT_EQ(played.report, "");
  EXPECT_THAT(played.remarks, ElementsAre("the picture is drawn from its EMF+ half: all of its 2 "
                                          "EMF+ records can be played"));
}

TEST(EmfHalves, AreTheOneInEmfWhereTheOtherCannotBePlayedWhole) {
  const PlayedMetafile played = Played(FileOf(UnplayableBehind(kPlusDual)));
  EXPECT_FALSE(HasSquare(played));
  EXPECT_TRUE(HasLine(played));
  EXPECT_EQ(played.report, "");
  EXPECT_THAT(
      played.remarks,
      ElementsAre("the picture is drawn from its EMF half: 1 EMF+ record cannot be played"));
}

/// A square and an image that is a file.
PlusRecords ImageBehind(std::uint32_t headerFlags, const Bytes& file) {
  constexpr std::uint32_t kImage = 5;
  constexpr std::uint32_t kBitmap = 1;
  constexpr std::uint32_t kOfAFile = 1;
  Bytes object;
  object.U32(kBitmap).U32(0).U32(0).U32(0).U32(0).U32(kOfAFile).Append(file.Data());
  return SquareBehind(headerFlags).Object(kImage, 0, object);
}

TEST(EmfHalves, AreJudgedByTheImagesWithinThem) {
  Bytes gif;
  gif.Each({'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0, 0x80, 0, 0, 1, 2, 3, 4, 5, 6});
  gif.Each({0x2C, 0, 0, 0, 0, 1, 0, 1, 0, 0, 2, 2, 0x44, 0x01, 0, 0x3B});
  EXPECT_TRUE(HasSquare(Played(FileOf(ImageBehind(kPlusDual, gif)))));
  Bytes unknown;
  unknown.Each({'G', 'I', 'F', '9', '9', 'a', 1, 0, 1, 0, 0x80, 0, 0, 1, 2, 3, 4, 5, 6});
  EXPECT_TRUE(HasLine(Played(FileOf(ImageBehind(kPlusDual, unknown)))));
}

TEST(EmfHalves, AreTheOneInEmfWhereTheOtherIsOfNoVersion) {
  constexpr std::uint32_t kNoVersion = 0x10000;
  const PlayedMetafile played = Played(FileOf(SquareBehind(kPlusDual, kNoVersion)));
  EXPECT_FALSE(HasSquare(played));
  EXPECT_TRUE(HasLine(played));
  EXPECT_THAT(
      played.remarks,
      ElementsAre("the picture is drawn from its EMF half: the other is of no version of EMF+"));
  EXPECT_TRUE(HasSquare(Played(FileOf(SquareBehind(0, kNoVersion)))));
}

TEST(EmfHalves, AreTheOneInEmfPlusWhereTheOtherIsNotWhole) {
  const PlayedMetafile played = Played(FileOf(UnplayableBehind(0)));
  EXPECT_TRUE(HasSquare(played));
  EXPECT_FALSE(HasLine(played));
  EXPECT_THAT(played.report, HasSubstr("it is of a kind that is not played"));
  EXPECT_FALSE(played.isWhole);
}

TEST(EmfHalves, AreTheOneThatIsAskedFor) {
  const auto unplayable = FileOf(UnplayableBehind(kPlusDual));
  EXPECT_TRUE(HasSquare(Played(unplayable, EmfPlusChoice::kAlways)));
  EXPECT_FALSE(HasLine(Played(unplayable, EmfPlusChoice::kAlways)));
  for (const std::uint32_t flags : {0U, kPlusDual}) {
    const PlayedMetafile never = Played(FileOf(SquareBehind(flags)), EmfPlusChoice::kNever);
    EXPECT_FALSE(HasSquare(never));
    EXPECT_TRUE(HasLine(never));
    EXPECT_THAT(never.remarks, ElementsAre("the picture is drawn from its EMF half: as was asked"));
  }
}

TEST(EmfHalves, HandOverToEmfUntilTheNextRecordOfEmfPlus) {
  Metafile metafile;
  PlusRecords().Header(0).GetDC().AddTo(metafile);
  AddEmfLine(metafile);
  PlusRecords square;
  AddSquare(square).AddTo(metafile);
  metafile.Polyline({{7, 7}, {8, 8}});
  const PlayedMetafile played = Played(metafile.Build());
  EXPECT_TRUE(HasLine(played));
  EXPECT_TRUE(HasSquare(played));
  EXPECT_LT(played.trace.find(kLine), played.trace.find(kSquare));
  EXPECT_EQ(played.trace.find("move 7 7"), std::string::npos);
}

// What is made and set between them counts where EMF draws again.
TEST(EmfHalves, ShareTheStateOfEmfWhereverItIsSet) {
  Metafile metafile;
  PlusRecords().Header(0).AddTo(metafile);
  metafile.SetWindowOrg(10, 20);
  PlusRecords().GetDC().AddTo(metafile);
  EXPECT_THAT(Played(metafile.Polyline({{10, 20}, {11, 21}}).Build()).trace, HasSubstr(kLine));
}

TEST(EmfHalves, SayNothingOfFilesWithoutEmfPlus) {
  Metafile metafile;
  EXPECT_THAT(Played(AddEmfLine(metafile).Build()).remarks, testing::IsEmpty());
}

}  // namespace
}  // namespace kelvane::test
