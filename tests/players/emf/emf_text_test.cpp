#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kEmrPolyTextOutA = 96;
constexpr std::uint32_t kEmrPolyTextOutW = 97;
constexpr std::uint32_t kEmrSmallTextOut = 108;
constexpr std::uint32_t kEmrSetTextJustification = 120;

constexpr std::uint32_t kCompatible = 1;
constexpr std::uint32_t kAdvanced = 2;

constexpr std::uint32_t kOpaqueBox = 0x2;
constexpr std::uint32_t kClipped = 0x4;
constexpr std::uint32_t kNoBox = 0x100;
constexpr std::uint32_t kSmallUnits = 0x200;
constexpr std::uint32_t kPairs = 0x2000;

/// A beginning after which text is 10 units high, on its baseline and without a cell.
Metafile WithText() {
  Metafile metafile;
  metafile.CreateFont(1, {}).SelectObject(1);
  return metafile.SetTextAlign(kTextBaseline).SetBkMode(kTransparent);
}

/// A text as records store it.
struct Item {
  At reference;
  std::uint32_t chars;
  std::uint32_t textAt;
  std::uint32_t advancesAt = 0;
  std::uint32_t options = 0;
  RectangleL box = {0, 0, -1, -1};
};

Bytes& AddItem(Bytes& body, const Item& item) {
  body.PointL(item.reference.x, item.reference.y).U32(item.chars).U32(item.textAt);
  body.U32(item.options).Rectangle(item.box.left, item.box.top, item.box.right, item.box.bottom);
  return body.U32(item.advancesAt);
}

Bytes Head(std::uint32_t mode = kCompatible) {
  return Bytes().Rectangle(0, 0, -1, -1).U32(mode).F32(1).F32(1);
}

std::string TraceOf(const Metafile& metafile) {
  const PlayedMetafile played = Played(metafile.Build());
  EXPECT_EQ(played.report, "");
  return played.trace;
}

/// What is left of text without turns. @param origins  of its glyphs, when there are several.
std::string Mark(std::string_view text, std::string_view reference,
                 const std::vector<std::string>& origins = {}) {
  std::string mark = "text \"" + std::string(text) + "\" LiberationSans 10 under 1 0 0 -1 " +
                     std::string(reference) + "\n";
  for (const std::string& origin : origins)
    mark += "  at " + origin + "\n";
  return mark;
}

TEST(ExtTextOut, SetsUnitsByTheirAdvances) {
  Bytes body = Head();
  AddItem(body, {{5, 6}, 2, kTextAt, kTextAt + 4}).Utf16(u"AB").I32(10).I32(7);
  EXPECT_EQ(TraceOf(WithText().Record(EMR_EXTTEXTOUTW, body)), Mark("AB", "5 6", {"0 0", "10 0"}));
}

TEST(ExtTextOut, SetsUnitsByTheFaceWithoutAdvances) {
  Bytes body = Head();
  AddItem(body, {{5, 6}, 2, kTextAt}).Utf16(u"AB");  // A is 6.67 wide
  EXPECT_EQ(TraceOf(WithText().Record(EMR_EXTTEXTOUTW, body)), Mark("AB", "5 6", {"0 0", "7 0"}));
}

TEST(ExtTextOut, LiftsByPairsOfAdvances) {
  Bytes body = Head();
  AddItem(body, {{5, 6}, 2, kTextAt, kTextAt + 4, kPairs});
  body.Utf16(u"AB").I32(10).I32(3).I32(7).I32(0);
  EXPECT_EQ(TraceOf(WithText().Record(EMR_EXTTEXTOUTW, body)), Mark("AB", "5 6", {"0 0", "10 3"}));
}

TEST(ExtTextOut, ReadsBytesByTheCharacterSetOfTheFont) {
  Bytes body = Head();
  AddItem(body, {{5, 6}, 2, kTextAt, kTextAt + 4}).Each({'A', 0xC4, 0, 0}).I32(10).I32(7);
  EXPECT_EQ(TraceOf(WithText().Record(EMR_EXTTEXTOUTA, body)),
            Mark("A\u00C4", "5 6", {"0 0", "10 0"}));
}

TEST(ExtTextOut, GoesByTheModeOfItsRecord) {
  const auto turned = [](std::uint32_t mode) {
    Bytes body = Head(mode);
    AddItem(body, {{5, 6}, 1, kTextAt}).Utf16(u"A").Zeros(2);
    Metafile metafile = WithText();
    metafile.SetWorldTransform({0, 1, -1, 0, 20, 0});
    return TraceOf(metafile.Record(EMR_EXTTEXTOUTW, body));
  };
  EXPECT_EQ(turned(kCompatible), Mark("A", "14 5"));
  EXPECT_EQ(turned(kAdvanced), "text \"A\" LiberationSans 10 under 0 1 1 0 14 5\n");
}

TEST(ExtTextOut, PaintsItsRectangleUnderTheText) {
  Bytes body = Head();
  AddItem(body, {{5, 6}, 1, kTextAt, 0, kOpaqueBox, {1, 2, 30, 40}}).Utf16(u"A").Zeros(2);
  Metafile metafile = WithText();
  metafile.SetBkColor(0xFF);
  EXPECT_EQ(TraceOf(metafile.Record(EMR_EXTTEXTOUTW, body)),
            "fill-color 1 0 0\nrect 1 2 29 38\neo-fill\nfill-color 0 0 0\n" + Mark("A", "5 6"));
}

TEST(ExtTextOut, PaintsItsRectangleWithoutText) {
  Bytes body = Head();
  AddItem(body, {{5, 6}, 0, 0, 0, kOpaqueBox, {30, 40, 1, 2}});
  EXPECT_EQ(TraceOf(WithText().Record(EMR_EXTTEXTOUTW, body)),
            "fill-color 1 1 1\nrect 30 40 -29 -38\neo-fill\n");
}

// Several texts.

constexpr std::uint32_t kItemsAt = 40;
constexpr std::uint32_t kItemSize = 40;

TEST(PolyTextOut, WritesEachTextAtItsPoint) {
  constexpr std::uint32_t kText = kItemsAt + 2 * kItemSize;
  Bytes body = Head().U32(2);
  AddItem(body, {{5, 6}, 2, kText, kText + 8});
  AddItem(body, {{50, 60}, 1, kText + 4, kText + 16, kOpaqueBox, {40, 50, 60, 70}});
  body.Utf16(u"AB").Utf16(u"C").Zeros(2).I32(10).I32(7).I32(8);
  EXPECT_EQ(TraceOf(WithText().Record(kEmrPolyTextOutW, body)),
            Mark("AB", "5 6", {"0 0", "10 0"}) +
                "fill-color 1 1 1\nrect 40 50 20 20\neo-fill\nfill-color 0 0 0\n" +
                Mark("C", "50 60"));
}

TEST(PolyTextOut, ReadsBytes) {
  constexpr std::uint32_t kText = kItemsAt + kItemSize;
  Bytes body = Head().U32(1);
  AddItem(body, {{5, 6}, 2, kText, kText + 4}).Each({'A', 0xE9, 0, 0}).I32(10).I32(7);
  EXPECT_EQ(TraceOf(WithText().Record(kEmrPolyTextOutA, body)),
            Mark("A\u00E9", "5 6", {"0 0", "10 0"}));
}

// Small texts.

Bytes SmallHead(std::uint32_t chars, std::uint32_t options, std::uint32_t mode = kCompatible) {
  return Bytes().PointL(5, 6).U32(chars).U32(options).U32(mode).F32(1).F32(1);
}

TEST(SmallTextOut, WritesTheLowHalvesOfUnits) {
  const Bytes body = SmallHead(2, kNoBox | kSmallUnits).Each({'A', 0xE9, 0, 0});
  EXPECT_EQ(TraceOf(WithText().Record(kEmrSmallTextOut, body)),
            Mark("A\u00E9", "5 6", {"0 0", "7 0"}));
}

TEST(SmallTextOut, WritesWholeUnits) {
  const Bytes body = SmallHead(2, kNoBox).Utf16(u"A\u03B1");
  EXPECT_EQ(TraceOf(WithText().Record(kEmrSmallTextOut, body)),
            Mark("A\u03B1", "5 6", {"0 0", "7 0"}));
}

TEST(SmallTextOut, HasARectangleUnlessItSaysOtherwise) {
  for (const std::uint32_t units : {0U, kSmallUnits}) {
    Bytes body = SmallHead(1, kOpaqueBox | units).Rectangle(1, 2, 30, 40);
    body.U8('A').Zeros(3);
    EXPECT_EQ(TraceOf(WithText().Record(kEmrSmallTextOut, body)),
              "fill-color 1 1 1\nrect 1 2 29 38\neo-fill\nfill-color 0 0 0\n" + Mark("A", "5 6"));
  }
}

TEST(SmallTextOut, IsCutToItsRectangle) {
  Bytes body = SmallHead(1, kClipped | kSmallUnits).Rectangle(1, 2, 30, 40);
  body.U8('A').Zeros(3);
  EXPECT_EQ(TraceOf(WithText().Record(kEmrSmallTextOut, body)),
            "save\nrect 1 2 29 38\neo-clip\n" + Mark("A", "5 6"));
}

TEST(SmallTextOut, GoesByTheModeOfItsRecord) {
  const Bytes body = SmallHead(1, kNoBox | kSmallUnits, kAdvanced).U8('A').Zeros(3);
  Metafile metafile = WithText();
  metafile.SetWorldTransform({1, 0, 0, -1, 0, 0});
  EXPECT_EQ(TraceOf(metafile.Record(kEmrSmallTextOut, body)),
            "text \"A\" LiberationSans 10 under 1 0 0 1 5 -6\n");
}

// State.

TEST(SetTextJustification, WidensSpacesOfTextWithoutAdvances) {
  Bytes body = Head();
  AddItem(body, {{5, 6}, 3, kTextAt}).Utf16(u"A A").Zeros(2);  // a space is 2.78 wide
  Metafile metafile = WithText();
  metafile.Record(kEmrSetTextJustification, Bytes().I32(12).I32(3));
  EXPECT_EQ(TraceOf(metafile.Record(EMR_EXTTEXTOUTW, body)),
            Mark("A A", "5 6", {"0 0", "7 0", "14 0"}));
}

}  // namespace
}  // namespace kelvane::test
