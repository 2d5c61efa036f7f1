// How large the picture of a Windows metafile is, and of what.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "players/wmf/wmf_page.h"

namespace kelvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using File = std::vector<unsigned char>;

/// "width x height" of the page in points; "none" when nothing tells it.
std::string PageOf(const File& file) {
  const auto size = PageSizeOf(file);
  if (!size) return "none";
  return std::to_string(static_cast<int>(size->width)) + " x " +
         std::to_string(static_cast<int>(size->height));
}

WindowsMetafile OfWindow(std::int32_t width, std::int32_t height) {
  return WindowsMetafile().Record(0x020C, {height, width});
}

WindowsMetafile& Mark(WindowsMetafile& windows) {
  return windows.Record(0x0213, {9, 9});
}

WindowsMetafile& NameFont(WindowsMetafile& windows, const std::string& name) {
  Bytes font = Bytes().Zeros(18);
  for (const char letter : name)
    font.U8(static_cast<unsigned char>(letter));
  return windows.Record(0x02FB, font.U8(0));
}

TEST(AWmfPage, IsTheBoxOfAPlaceableHeader) {
  EXPECT_EQ(PageOf(WindowsMetafile().Placeable(0, 0, 1440, 720, 1440).Build()), "72 x 36");
  EXPECT_EQ(PageOf(WindowsMetafile().Placeable(1440, 720, 0, 0, 1440).Build()), "72 x 36");
  EXPECT_EQ(PageOf(WindowsMetafile().Placeable(-10, -10, 86, 38, 0).Build()), "72 x 36");
}

TEST(AWmfPage, IsThatBoxAlsoWhenTheWindowHasOtherUnits) {
  WindowsMetafile file = WindowsMetafile().Placeable(0, 0, 1000, 500, 1000);
  EXPECT_EQ(PageOf(Mark(file.Record(0x020C, {1896, 9978})).Build()), "72 x 36");
}

TEST(AWmfPage, IsTheWindowInUnitsThatAreGuessed) {
  EXPECT_EQ(PageOf(OfWindow(960, 96).Build()), "720 x 72");
  EXPECT_EQ(PageOf(OfWindow(1440, -720).Build()), "72 x 36");
  WindowsMetafile equation = OfWindow(2304, 1152);
  EXPECT_EQ(PageOf(NameFont(equation, "MT Extra").Build()), "72 x 36");
}

TEST(AWmfPage, IsTheWindowInTheUnitsOfItsMapMode) {
  constexpr std::int32_t kHiMetric = 3;
  WindowsMetafile metric = OfWindow(2540, 1270);
  EXPECT_EQ(PageOf(metric.Record(0x0103, {kHiMetric}).Build()), "72 x 36");
}

TEST(AWmfPage, IsTheWindowThatIsThereAtTheFirstMark) {
  WindowsMetafile file = OfWindow(1, 1);
  Mark(file.Record(0x020C, {96, 192})).Record(0x020C, {500, 500});
  EXPECT_EQ(PageOf(file.Build()), "144 x 72");
}

TEST(AWmfPage, IsNotTheWindowOfAStateThatIsLeftBeforeThat) {
  WindowsMetafile file = OfWindow(192, 96);
  file.Record(0x001E).Record(0x020C, {500, 500}).Record(0x0127, {-1});
  EXPECT_EQ(PageOf(Mark(file).Build()), "144 x 72");
}

TEST(AWmfPage, IsWhatIsDrawnWithoutAWindow) {
  WindowsMetafile file;
  Mark(file);
  EXPECT_EQ(PageOf(file.Build()), "none");
  const auto area = DrawnAreaOf(file.Build());
  ASSERT_TRUE(area);
  constexpr double kPixelsInAUnit = 15;  // which is 1/96 inch then
  EXPECT_NEAR(area->right, 9 * kPixelsInAUnit, kPixelsInAUnit);
}

TEST(AWmfPage, ShowsTheWindowWhole) {
  WindowsMetafile file = WindowsMetafile().Placeable(0, 0, 1440, 1440, 1440);
  file.Record(0x020B, {-50, -50}).Record(0x020C, {100, 100}).Record(0x041B, {50, 50, -50, -50});
  // An inch of 1440 device units, each of them a point of the traced page.
  EXPECT_THAT(Played(file.Build()).trace, testing::HasSubstr("rect 0 0 14"));
}

// The enhanced metafile that one was made of.

File Enhanced() {
  return Metafile().Ellipse({10, 10, 40, 40}).Build();
}

/// A comment with a piece of the enhanced metafile.
Bytes Piece(const File& whole, std::size_t from, std::size_t to, std::uint32_t pieces) {
  const auto size = static_cast<std::uint32_t>(to - from);
  const auto left = static_cast<std::uint32_t>(whole.size() - to);
  const File data(whole.begin() + static_cast<std::ptrdiff_t>(from),
                  whole.begin() + static_cast<std::ptrdiff_t>(to));
  return Bytes()
      .U16(15)
      .U16(34 + size)
      .U32(0x43464D57)
      .U32(1)
      .U32(0x10000)
      .U16(0)
      .U32(0)
      .U32(pieces)
      .U32(size)
      .U32(left)
      .U32(static_cast<std::uint32_t>(whole.size()))
      .Append(data);
}

WindowsMetafile WithPieces(const std::vector<Bytes>& pieces) {
  WindowsMetafile file = OnPlainPage();
  for (const Bytes& piece : pieces)
    file.Record(0x0626, piece);
  return Mark(file);
}

TEST(AnEmfInWmf, IsDrawnInItsPlace) {
  const File whole = Enhanced();
  const WindowsMetafile file =
      WithPieces({Piece(whole, 0, 40, 2), Piece(whole, 40, whole.size(), 2)});
  const PlayedMetafile played = Played(file.Build());
  EXPECT_EQ(played.trace, Played(whole).trace);
  EXPECT_THAT(played.remarks, IsEmpty());
}

TEST(AnEmfInWmf, GivesWayToTheFilesOwnMarksWhenItIsDamaged) {
  const File whole = Enhanced();
  const std::size_t end = whole.size();
  const File none(end);
  const std::vector<std::vector<Bytes>> damaged = {
      {Piece(whole, 0, 40, 2)},
      {Piece(whole, 40, end, 2), Piece(whole, 0, 40, 2)},
      {Piece(whole, 0, 40, 2), Piece(whole, 44, end, 2)},
      {Piece(whole, 0, 40, 3), Piece(whole, 40, end, 3)},
      {Piece(none, 0, end, 1)},
  };
  const std::string own = Played(WithPieces({}).Build()).trace;
  for (const auto& pieces : damaged) {
    const PlayedMetafile played = Played(WithPieces(pieces).Build());
    EXPECT_EQ(played.trace, own);
    EXPECT_THAT(played.remarks, ElementsAre("the enhanced metafile in its comments is damaged: its "
                                            "own records are drawn"));
  }
}

TEST(Comments, OfProgramsAreRemarkedOn) {
  WindowsMetafile file = OnPlainPage();
  file.Record(0x0626, Bytes().U16(15).U16(4).U32(0x12345678));
  EXPECT_THAT(Played(file.Build()).remarks, ElementsAre("1 comments of programs were passed over"));
}

}  // namespace
}  // namespace kelvane::test
