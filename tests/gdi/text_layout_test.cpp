#include "gdi/text_layout.h"

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/unicode.h"
#include "gdi/font_map.h"

namespace kelvane {
namespace {

// Of Liberation Sans and DejaVu Sans, 2048 units an em. At that size a logical unit is one of them.
constexpr std::int32_t kUnits = 2048;
constexpr int kLiberationUpperA = 1366;
constexpr int kLiberationA = 1139;
constexpr int kLiberationSpace = 569;
constexpr int kDejaVuAlef = 1369;
constexpr int kDejaVuBet = 1184;

constexpr char16_t kPlain[] = u"Liberation Sans";
constexpr char16_t kOfManyScripts[] = u"DejaVu Sans";

std::string Number(double value) {
  std::string text = std::to_string(value);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

/// Where the glyphs of a line stand, those of a face after its name: the text of each, and how far
/// along the line it is; then how far up, when it is not on it. A glyph without text is a number.
std::string Words(const PlacedLine& line) {
  std::string words;
  for (const PlacedRun& run : line.runs) {
    words += run.face.typeface->Font()->Description().postScriptName + ':';
    for (const CGPositionedGlyph& glyph : run.glyphs) {
      words += ' ';
      words += glyph.text.empty() ? std::to_string(glyph.glyph) : ToUTF8(glyph.text);
      words += '@' + Number(glyph.origin.x);
      if (glyph.origin.y != 0) words += '^' + Number(glyph.origin.y);
    }
    words += ' ';
  }
  words += "end@" + Number(line.end.x);
  if (line.end.y != 0) words += '^' + Number(line.end.y);
  return words;
}

using Advances = std::vector<PointD>;

Advances Along(const std::vector<double>& advances) {
  Advances along;
  for (const double advance : advances)
    along.push_back({advance, 0});
  return along;
}

/// A line to be set.
class Line {
 public:
  explicit Line(std::u16string units, std::u16string_view face = kPlain,
                std::int32_t height = -kUnits)
      : text_{std::move(units), {}} {
    LogFont asked;
    asked.height = height;
    std::ranges::copy(face, asked.faceName.begin());
    font_ = Book().Resolve(asked, 1);
    frame_ = FrameOf(asked, font_, Mapping({{1000, 1000}, {250, 250}, 0, 1000}), GM_COMPATIBLE);
  }

  Line& With(Advances advances) {
    text_.advances = std::move(advances);
    return *this;
  }
  Line& With(const Spacing& spacing) {
    spacing_ = spacing;
    return *this;
  }
  Line& InOrder() {
    reading_.isOrdered = true;
    return *this;
  }
  Line& Leftwards() {
    reading_.isLeftwards = true;
    return *this;
  }
  Line& OfGlyphs() {
    text_.areGlyphs = true;
    return *this;
  }

  void PlacePieces(const std::function<void(PlacedLine&)>& take) const {
    PlaceText(text_, font_, frame_, spacing_, reading_, take);
  }

  /// Borrows the text of this line, which is not long.
  [[nodiscard]] PlacedLine Place() const {
    PlacedLine line;
    PlacePieces([&line](const PlacedLine& piece) { line = piece; });
    return line;
  }

  [[nodiscard]] std::vector<double> Measured() const {
    return MeasureText(text_, font_, frame_, reading_);
  }

  [[nodiscard]] std::string Placed() const { return Words(Place()); }

 private:
  static FontBook& Book() {
    static const FontMap kNoWishes;
    static FontBook book(FontRegistry::Shared(), AnyFont, kNoWishes);
    return book;
  }

  WrittenText text_;
  TextFont font_;
  TextFrame frame_;
  Spacing spacing_;
  Reading reading_;
};

std::string At(std::string_view what, double place) {
  return std::string(what) + '@' + Number(place) + ' ';
}

std::string End(double place) {
  return "end@" + Number(place);
}

// Advances of the face.

TEST(MeasuredText, HasTheAdvancesOfItsFace) {
  EXPECT_THAT(Line(u"A a").Measured(),
              testing::ElementsAre(kLiberationUpperA, kLiberationSpace, kLiberationA));
}

TEST(MeasuredText, TakesNoAdvancesThatAreGiven) {
  EXPECT_THAT(Line(u"Aa").With(Along({5, 6})).Measured(),
              testing::ElementsAre(kLiberationUpperA, kLiberationA));
}

TEST(MeasuredText, CountsALetterWithItsMarksOnce) {
  EXPECT_THAT(Line(u"A\u0301\u0301a").Measured(),
              testing::ElementsAre(kLiberationUpperA, 0, 0, kLiberationA));
}

TEST(MeasuredText, KeepsTheOrderOfItsUnitsWhereTheyReadLeftwards) {
  EXPECT_THAT(Line(u"\u05D0\u05D1", kOfManyScripts).Leftwards().Measured(),
              testing::ElementsAre(kDejaVuAlef, kDejaVuBet));
}

TEST(ALineOfText, HasTheAdvancesOfItsFace) {
  EXPECT_EQ(Line(u"Aa").Placed(), "LiberationSans: " + At("A", 0) + At("a", kLiberationUpperA) +
                                      End(kLiberationUpperA + kLiberationA));
}

// A is 10.67 pixels wide and a 8.9.
TEST(ALineOfText, RoundsAdvancesOfTheFaceToPixels) {
  EXPECT_EQ(Line(u"AAa", kPlain, -16).With(Spacing{.pixel = 1}).Placed(),
            "LiberationSans: A@0 A@11 a@22 end@31");
}

// With two units a pixel, A is 5.34 pixels wide.
TEST(ALineOfText, RoundsToPixelsOfTheDevice) {
  EXPECT_EQ(Line(u"AAa", kPlain, -16).With(Spacing{.pixel = 2}).Placed(),
            "LiberationSans: A@0 A@10 a@20 end@28");
}

TEST(ALineOfText, HasSpaceBehindEachCharacter) {
  EXPECT_EQ(Line(u"Aa").With(Spacing{.perUnit = 10}).Placed(),
            "LiberationSans: " + At("A", 0) + At("a", kLiberationUpperA + 10) +
                End(kLiberationUpperA + kLiberationA + 20));
  EXPECT_EQ(Line(u"AA").With(Spacing{.perUnit = -2000}).Placed(),
            "LiberationSans: " + At("A", 0) + At("A", kLiberationUpperA - 2000) +
                End(2 * kLiberationUpperA - 4000));
}

TEST(ALineOfText, HasThatSpaceOnceBehindACharacterOfTwoUnits) {
  const double natural = Line(u"\U0001D538", kOfManyScripts).Place().end.x;
  EXPECT_EQ(Line(u"\U0001D538", kOfManyScripts).With(Spacing{.perUnit = 10}).Place().end.x,
            natural + 10);
}

TEST(ALineOfText, IsJustifiedAtItsSpaces) {
  const double step = kLiberationA + kLiberationSpace + 100;
  EXPECT_EQ(Line(u"a a").With(Spacing{.perSpace = 100}).Placed(),
            "LiberationSans: " + At("a", 0) + At(" ", kLiberationA) + At("a", step) +
                End(step + kLiberationA));
}

TEST(ALineOfText, IsNotJustifiedAtSpacesThatDoNotBreak) {
  EXPECT_EQ(Line(u"a\u00A0a").With(Spacing{.perSpace = 100}).Place().end.x,
            2 * kLiberationA + kLiberationSpace);
}

TEST(ALineOfText, IsJustifiedInAnyScript) {
  const double natural = Line(u"\u05D0 \u05D0", kOfManyScripts).Place().end.x;
  EXPECT_EQ(Line(u"\u05D0 \u05D0", kOfManyScripts).With(Spacing{.perSpace = 100}).Place().end.x,
            natural + 100);
}

TEST(ALineOfText, IsEmptyWithoutCharacters) {
  EXPECT_EQ(Line(u"").Placed(), "end@0");
}

// Advances of the file.

TEST(StoredAdvances, MoveThePenAfterEachUnit) {
  EXPECT_EQ(Line(u"abcd").With(Along({100, -50, 0, 7})).Placed(),
            "LiberationSans: a@0 b@100 c@50 d@50 end@57");
}

TEST(StoredAdvances, SetAllOfALineAtItsStartWhenTheyAreZero) {
  EXPECT_EQ(Line(u"abc").With(Along({0, 0, 0})).Placed(), "LiberationSans: a@0 b@0 c@0 end@0");
}

TEST(StoredAdvances, LiftWhatFollows) {
  EXPECT_EQ(Line(u"abc").With({{10, 3}, {10, -5}, {10, 4}}).Placed(),
            "LiberationSans: a@0 b@10^3 c@20^-2 end@30^2");
}

TEST(StoredAdvances, AreNeitherRoundedNorAddedTo) {
  EXPECT_EQ(Line(u"a b")
                .With(Along({3, 4, 5}))
                .With(Spacing{.pixel = 2, .perUnit = 100, .perSpace = 1000})
                .Placed(),
            "LiberationSans: a@0  @3 b@7 end@12");
}

TEST(StoredAdvances, OfACharacterOfTwoUnitsAddUp) {
  for (const bool isOrdered : {true, false}) {
    Line line(u"\U0001D538a", kOfManyScripts);
    if (isOrdered) line.InOrder();
    EXPECT_EQ(line.With(Along({3, 4, 5})).Placed(), "DejaVuSans: \U0001D538@0 a@7 end@12");
  }
}

TEST(StoredAdvances, OfAMarkAndItsBaseAddUp) {
  const PlacedLine line = Line(u"x\u0323b", kOfManyScripts).With(Along({10, 5, 3})).Place();
  EXPECT_EQ(line.end.x, 18);
  EXPECT_EQ(line.runs.back().glyphs.back().origin.x, 15);
}

// No mark shows where they are, but the file says how wide they are.
TEST(StoredAdvances, AreKeptByWhatShowsNothing) {
  for (const std::u16string_view nothing :
       {u"\t", u"\n", u"\x7F", u"\xD800", u"\xDC00", u"\u200E"}) {
    const std::u16string units = u"a" + std::u16string(nothing) + u"b";
    EXPECT_EQ(Line(units).With(Along({1, 2, 4})).InOrder().Placed(),
              "LiberationSans: a@0 b@3 end@7")
        << int{nothing.front()};
  }
  EXPECT_EQ(Line(u"a\tb").With(Along({1, 2, 4})).Placed(), "LiberationSans: a@0 b@3 end@7");
}

TEST(ALineOfText, TakesNoRoomForWhatShowsNothing) {
  EXPECT_EQ(Line(u"A\ta\n").Placed(), Line(u"Aa").Placed());
  EXPECT_EQ(Line(u"A\u200Ea").Place().end.x, Line(u"Aa").Place().end.x);
}

// Faces.

// Han characters are an em wide.
TEST(AStandIn, TakesOverForWhatTheFaceLacks) {
  EXPECT_EQ(Line(u"a\u6F22a").Placed(),
            "LiberationSans: a@0 WenQuanYiMicroHei: \u6F22@1139 LiberationSans: a@3187 end@4326");
}

TEST(AStandIn, KeepsTheAdvancesOfTheFile) {
  EXPECT_EQ(Line(u"a\u6F22a").With(Along({1, 2, 4})).Placed(),
            "LiberationSans: a@0 WenQuanYiMicroHei: \u6F22@1 LiberationSans: a@3 end@7");
}

TEST(ALineOfText, TellsOfCharactersThatNoFaceHas) {
  for (const std::u16string_view missing : {u"\uE123", u"\U000F1234"}) {
    const PlacedLine line = Line(u"a" + std::u16string(missing)).Place();
    EXPECT_TRUE(line.lacksCharacters);
    EXPECT_EQ(line.runs.back().glyphs.back().glyph, 0);
  }
  EXPECT_FALSE(Line(u"a\u6F22").Place().lacksCharacters);
}

// Order.

TEST(ALineOfText, PutsHebrewIntoItsOrder) {
  EXPECT_EQ(
      Line(u"\u05D0\u05D1", kOfManyScripts).Placed(),
      "DejaVuSans: " + At("\u05D1", 0) + At("\u05D0", kDejaVuBet) + End(kDejaVuBet + kDejaVuAlef));
}

TEST(ALineOfText, MovesByTheAdvanceOfEachLetterInAnyOrder) {
  EXPECT_EQ(Line(u"\u05D0\u05D1", kOfManyScripts).With(Along({10, 20})).Placed(),
            "DejaVuSans: \u05D1@0 \u05D0@20 end@30");
}

TEST(ALineOfText, IsLeftAsItStandsWhenItIsInOrder) {
  EXPECT_EQ(
      Line(u"\u05D0\u05D1", kOfManyScripts).InOrder().Placed(),
      "DejaVuSans: " + At("\u05D0", 0) + At("\u05D1", kDejaVuAlef) + End(kDejaVuBet + kDejaVuAlef));
  EXPECT_EQ(Line(u"\u05D0\u05D1", kOfManyScripts).InOrder().Leftwards().Placed(),
            Line(u"\u05D0\u05D1", kOfManyScripts).InOrder().Placed());
}

TEST(ALineOfText, JoinsArabicLettersAndSetsThemFromRightToLeft) {
  const Line letters(u"\u0628\u0639", kOfManyScripts);
  const PlacedLine line = letters.Place();
  ASSERT_EQ(line.runs.size(), 1U);
  const auto& [face, glyphs, isTurned] = line.runs.front();
  ASSERT_EQ(glyphs.size(), 2U);
  EXPECT_EQ(ToUTF8(glyphs[0].text), "\u0639");
  EXPECT_EQ(ToUTF8(glyphs[1].text), "\u0628");
  EXPECT_NE(glyphs[0].glyph, face.typeface->GlyphFor(0x0639));
  EXPECT_NE(glyphs[1].glyph, face.typeface->GlyphFor(0x0628));
  EXPECT_EQ(glyphs[0].origin.x, 0);
  EXPECT_EQ(glyphs[1].origin.x, face.typeface->Font()->Advance(glyphs[0].glyph) * kUnits);
}

TEST(ALineOfText, LeavesArabicLettersAloneWhenItIsInOrder) {
  const Line letters = Line(u"\u0628\u0639", kOfManyScripts).InOrder();
  const PlacedLine line = letters.Place();
  const auto& [face, glyphs, isTurned] = line.runs.front();
  EXPECT_EQ(glyphs[0].glyph, face.typeface->GlyphFor(0x0628));
  EXPECT_EQ(glyphs[1].glyph, face.typeface->GlyphFor(0x0639));
}

// The character is in no face of Liberation; its box is as wide as the cell is high.
TEST(AVerticalLine, TurnsWideCharactersAlone) {
  constexpr int kAscent = 1854;
  constexpr int kDescent = 434;
  const Line letters(u"A\u4E00A", u"@Liberation Sans");
  const PlacedLine line = letters.Place();
  ASSERT_EQ(line.runs.size(), 3U);
  EXPECT_FALSE(line.runs[0].isTurned);
  EXPECT_TRUE(line.runs[1].isTurned);
  EXPECT_FALSE(line.runs[2].isTurned);
  EXPECT_EQ(line.runs[1].glyphs.at(0).origin, (CGPoint{kLiberationUpperA + kAscent, -kDescent}));
  EXPECT_EQ(line.runs[2].glyphs.at(0).origin.x, kLiberationUpperA + kAscent + kDescent);
  EXPECT_EQ(line.end.x, 2 * kLiberationUpperA + kAscent + kDescent);
}

TEST(AShapedLine, EndsBehindTheAdvancesOfWhatMakesNoGlyph) {
  const Line letters = Line(u"\u05D0\x01\u05D1", kOfManyScripts).With(Along({10, 20, 40}));
  EXPECT_EQ(letters.Place().end.x, 70);
}

TEST(ALongLine, IsPlacedInPiecesAsAWhole) {
  const std::u16string units(3 * kMostUnitsOfAPiece + 1, u'A');
  std::size_t glyphs = 0;
  double end = 0;
  Line(units).PlacePieces([&](const PlacedLine& piece) {
    for (const PlacedRun& run : piece.runs) {
      EXPECT_LE(run.glyphs.size(), kMostUnitsOfAPiece);
      for (const CGPositionedGlyph& glyph : run.glyphs)
        EXPECT_EQ(glyph.origin.x, static_cast<CGFloat>(glyphs++) * kLiberationUpperA);
    }
    end = piece.end.x;
  });
  EXPECT_EQ(glyphs, units.size());
  EXPECT_EQ(end, static_cast<double>(units.size()) * kLiberationUpperA);
}

TEST(ALigature, MovesByTheAdvancesOfItsLetters) {
  EXPECT_EQ(Line(u"\u0644\u0627\u05D0", kOfManyScripts).With(Along({10, 20, 40})).Placed(),
            "DejaVuSans: \u05D0@0 \u0644\u0627@40 end@70");
}

TEST(ALineOfText, ReadsFromRightToLeftAsAWholeWhenToldSo) {
  EXPECT_EQ(Line(u"ab!").With(Along({1, 2, 4})).Leftwards().Placed(),
            "LiberationSans: !@0 a@4 b@5 end@7");
}

// Glyph numbers.

TEST(GlyphNumbers, AreDrawnAsTheyStand) {
  EXPECT_EQ(Line({36, 68}).OfGlyphs().Placed(), "LiberationSans: " + At("36", 0) +
                                                    At("68", kLiberationUpperA) +
                                                    End(kLiberationUpperA + kLiberationA));
  EXPECT_EQ(Line({36, 68}).OfGlyphs().With(Along({5, 7})).Placed(),
            "LiberationSans: 36@0 68@5 end@12");
}

}  // namespace
}  // namespace kelvane
