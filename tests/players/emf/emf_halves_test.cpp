#include "players/emf/emf_halves.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/bytes.h"
#include "support/metafile.h"
#include "traced_emf.h"

namespace kelvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::uint32_t kEmfPlus = 0x2B464D45;
constexpr std::uint32_t kDual = 1;
constexpr std::uint32_t kRed = 0xFFFF0000;

/// Records of EMF+ in one comment.
class PlusRecords {
 public:
  PlusRecords& Record(std::uint32_t type, std::uint32_t flags, const Bytes& data = {}) {
    const auto size = static_cast<std::uint32_t>(data.Size());
    records_.U16(type).U16(flags).U32(12 + size).U32(size).Append(data.Data());
    return *this;
  }

  PlusRecords& Header(std::uint32_t flags) {
    return Record(0x4001, flags, Bytes().U32(0xDBC01002).U32(1).U32(96).U32(96));
  }

  /// A red square at (10, 20) with sides of 5.
  PlusRecords& FillSquare() {
    return Record(0x400A, 0xC000, Bytes().U32(kRed).U32(1).Point(10, 20).Point(5, 5));
  }

  PlusRecords& GetDC() { return Record(0x4004, 0); }

  /// StrokeFillPath, which no program is known to write.
  PlusRecords& Unplayable() { return Record(0x4037, 0); }

  Metafile& AddTo(Metafile& metafile) const {
    return metafile.Record(
        EMR_GDICOMMENT,
        Bytes().U32(static_cast<std::uint32_t>(records_.Size())).Append(records_.Data()));
  }

 private:
  Bytes records_ = Bytes().U32(kEmfPlus);
};

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

bool HasSquare(const PlayedEmf& played) {
  return played.trace.find(kSquare) != std::string::npos;
}
bool HasLine(const PlayedEmf& played) {
  return played.trace.find(kLine) != std::string::npos;
}

TEST(EmfHalves, AreNotPlayedBoth) {
  const PlayedEmf played = Played(FileOf(PlusRecords().Header(kDual).FillSquare()));
  EXPECT_TRUE(HasSquare(played)) << played.trace;
  EXPECT_FALSE(HasLine(played));
  EXPECT_EQ(played.report, "");
  EXPECT_THAT(played.remarks, ElementsAre("the picture is drawn from its EMF+ half: all of its 2 "
                                          "EMF+ records can be played"));
}

TEST(EmfHalves, AreTheOneInEmfWhereTheOtherCannotBePlayedWhole) {
  const PlayedEmf played = Played(FileOf(PlusRecords().Header(kDual).FillSquare().Unplayable()));
  EXPECT_FALSE(HasSquare(played));
  EXPECT_TRUE(HasLine(played));
  EXPECT_EQ(played.report, "");
  EXPECT_THAT(
      played.remarks,
      ElementsAre("the picture is drawn from its EMF half: 1 EMF+ record cannot be played"));
}

TEST(EmfHalves, AreTheOneInEmfPlusWhereTheOtherIsNotWhole) {
  const PlayedEmf played = Played(FileOf(PlusRecords().Header(0).FillSquare().Unplayable()));
  EXPECT_TRUE(HasSquare(played));
  EXPECT_FALSE(HasLine(played));
  EXPECT_THAT(played.report, HasSubstr("it is of a kind that is not played"));
  EXPECT_FALSE(played.isWhole);
}

TEST(EmfHalves, AreTheOneThatIsAskedFor) {
  const auto unplayable = FileOf(PlusRecords().Header(kDual).FillSquare().Unplayable());
  EXPECT_TRUE(HasSquare(Played(unplayable, EmfPlusChoice::kAlways)));
  EXPECT_FALSE(HasLine(Played(unplayable, EmfPlusChoice::kAlways)));
  for (const std::uint32_t flags : {0U, kDual}) {
    const PlayedEmf never =
        Played(FileOf(PlusRecords().Header(flags).FillSquare()), EmfPlusChoice::kNever);
    EXPECT_FALSE(HasSquare(never));
    EXPECT_TRUE(HasLine(never));
    EXPECT_THAT(never.remarks, ElementsAre("the picture is drawn from its EMF half: as was asked"));
  }
}

TEST(EmfHalves, HandOverToEmfUntilTheNextRecordOfEmfPlus) {
  Metafile metafile;
  PlusRecords().Header(0).GetDC().AddTo(metafile);
  AddEmfLine(metafile);
  PlusRecords().FillSquare().AddTo(metafile);
  metafile.Polyline({{7, 7}, {8, 8}});
  const PlayedEmf played = Played(metafile.Build());
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
