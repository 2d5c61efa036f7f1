#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "support/metafile.h"
#include "support/plus_records.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using File = std::vector<unsigned char>;

constexpr std::uint32_t kEmfForm = 0x464D4520;
constexpr std::uint32_t kEpsForm = 0x46535045;
constexpr const char* kRemark = "its own records draw nothing: a metafile in its comments is drawn";
constexpr const char* kDiagonal = "move 0 0\nline 100 100\n";

Bytes Public(std::uint32_t identifier, const Bytes& fields) {
  constexpr std::uint32_t kPublic = 0x43494447;
  const Bytes data = Bytes().U32(kPublic).U32(identifier).Append(fields.Data());
  return Bytes().U32(static_cast<std::uint32_t>(data.Size())).Append(data.Data());
}

/// A comment with a 16-bit metafile.
Bytes WindowsForm(const File& file) {
  const auto size = static_cast<std::uint32_t>(file.size());
  return Public(0x80000001, Bytes().U16(0x300).U16(0).U32(0).U32(0).U32(size).Append(file));
}

struct Form {
  std::uint32_t signature;
  File file;
};

/// A comment with forms for a box of logical units.
Bytes Forms(const RectangleL& box, const std::vector<Form>& forms) {
  const auto count = static_cast<std::uint32_t>(forms.size());
  Bytes fields = Bytes().Rectangle(box.left, box.top, box.right, box.bottom).U32(count);
  std::uint32_t offset = 28 + 16 * count;  // from the comment's identifier
  for (const auto& [signature, file] : forms) {
    const auto size = static_cast<std::uint32_t>(file.size());
    fields.U32(signature).U32(1).U32(size).U32(offset);
    offset += size;
  }
  for (const Form& form : forms)
    fields.Append(form.file);
  return Public(0x40000004, fields);
}

/// A line across 96 by 96 units, which are all of the picture.
File WindowsDiagonal() {
  constexpr std::uint16_t kSetWindowExt = 0x020C;
  constexpr std::uint16_t kLineTo = 0x0213;
  return WindowsMetafile().Record(kSetWindowExt, {96, 96}).Record(kLineTo, {96, 96}).Build();
}

/// A line across the page of a metafile.
File Diagonal() {
  return Metafile().Polyline({{0, 0}, {100, 100}}).Build();
}

PlayedMetafile PlayedComment(const Bytes& comment) {
  return Played(Metafile().Record(EMR_GDICOMMENT, comment).Build());
}

TEST(EmfOtherForms, IsTheWindowsMetafileOfAFileThatDrawsNothing) {
  const PlayedMetafile played = PlayedComment(WindowsForm(WindowsDiagonal()));
  EXPECT_THAT(played.trace, HasSubstr(kDiagonal));
  EXPECT_EQ(played.report, "");
  EXPECT_THAT(played.remarks, ElementsAre(kRemark));
}

TEST(EmfOtherForms, IsAMetafileInTheBoxOfItsComment) {
  Metafile metafile;
  metafile.SetWindowOrg(-10, -20);
  metafile.Record(EMR_GDICOMMENT, Forms({0, 0, 40, 20}, {{kEmfForm, Diagonal()}}));
  const PlayedMetafile played = Played(metafile.Build());
  EXPECT_THAT(played.trace, HasSubstr("move 10 20\nline 50 40\n"));
  EXPECT_THAT(played.remarks, ElementsAre(kRemark));
}

TEST(EmfOtherForms, IsTheFirstThatCanBePlayed) {
  const PlayedMetafile played = PlayedComment(Forms({0, 0, 40, 20}, {{kEpsForm, {1, 2, 3, 4}},
                                                                     {kEmfForm, {1, 2, 3, 4}},
                                                                     {kEmfForm, Diagonal()},
                                                                     {kEmfForm, Diagonal()}}));
  const std::size_t line = played.trace.find("line 40 20");
  ASSERT_NE(line, std::string::npos);
  EXPECT_EQ(played.trace.find("line 40 20", line + 1), std::string::npos);
}

TEST(EmfOtherForms, AreOnePictureHoweverManyCommentsHaveIt) {
  Metafile metafile;
  metafile.Record(EMR_GDICOMMENT, WindowsForm(WindowsDiagonal()));
  metafile.Record(EMR_GDICOMMENT, Forms({0, 0, 40, 20}, {{kEmfForm, Diagonal()}}));
  const PlayedMetafile played = Played(metafile.Build());
  EXPECT_THAT(played.trace, HasSubstr(kDiagonal));
  EXPECT_EQ(played.trace.find("line 40 20"), std::string::npos);
}

TEST(EmfOtherForms, ArePassedOverWhereAnyRecordMakesAMark) {
  const Bytes comment = WindowsForm(WindowsDiagonal());
  Metafile line;
  line.Record(EMR_GDICOMMENT, comment).Polyline({{7, 8}, {9, 10}});
  EXPECT_EQ(Played(line.Build()).trace.find(kDiagonal), std::string::npos);
  EXPECT_THAT(Played(line.Build()).remarks, IsEmpty());
  Metafile path;
  path.Record(EMR_GDICOMMENT, comment).StrokePath();
  EXPECT_EQ(Played(path.Build()).trace, "");
  Metafile emfPlus;
  PlusRecords().Header().AddTo(emfPlus.Record(EMR_GDICOMMENT, comment));
  EXPECT_EQ(Played(emfPlus.Build()).trace, "");
}

TEST(EmfOtherForms, ArePlayedWhereRecordsOnlySetTheScene) {
  Metafile metafile;
  metafile.MoveTo(5, 5).CreatePen(1, 2, 0).SelectObject(1).BeginPath().EndPath();
  metafile.Record(EMR_GDICOMMENT, WindowsForm(WindowsDiagonal()));
  EXPECT_THAT(Played(metafile.Build()).trace, HasSubstr(kDiagonal));
}

TEST(EmfOtherForms, AreReportedWhereNoneIsDrawn) {
  for (const Bytes& comment :
       {Forms({0, 0, 9, 9}, {{kEpsForm, {1, 2, 3, 4}}}),
        Forms({0, 0, 0, 9}, {{kEmfForm, Diagonal()}}), Forms({}, {}), WindowsForm({1, 2, 3, 4})}) {
    const PlayedMetafile played = PlayedComment(comment);
    EXPECT_EQ(played.trace, "");
    EXPECT_THAT(played.report,
                HasSubstr("none of the forms in which it has the picture can be drawn"));
    EXPECT_FALSE(played.isWhole);
  }
}

TEST(EmfOtherForms, MayHoldEachOtherOnlySoDeep) {
  constexpr int kFarTooDeep = 50;
  File file = Diagonal();
  for (int i = 0; i < kFarTooDeep; ++i) {
    const Bytes comment = Forms({0, 0, 100, 100}, {{kEmfForm, file}});
    file = Metafile().Record(EMR_GDICOMMENT, comment).Build();
  }
  const PlayedMetafile played = Played(file);
  EXPECT_EQ(played.trace, "");
  EXPECT_THAT(played.report, HasSubstr("its metafile lies within too many others"));
}

}  // namespace
}  // namespace kelvane::test
