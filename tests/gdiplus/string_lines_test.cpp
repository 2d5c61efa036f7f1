#include "gdiplus/string_lines.h"

#include <chrono>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/unicode.h"

namespace kelvane::gdiplus {
namespace {

using enum EmfPlusStringTrimming;

constexpr double kUnlimited = std::numeric_limits<double>::infinity();

/// @return a text as it is broken where each unit is 1 long, and an ellipsis 2; a | behind each
///         line, a ~ for an ellipsis.
std::string Broken(const std::u16string& text, LineRules rules) {
  const std::vector<double> advances(text.size(), 1);
  const TabStops tabs(0, {}, 4);
  rules.ellipsis = 2;
  std::string lines;
  const std::u16string_view view = text;
  for (const StringLine& line : BreakLines({text, advances, tabs}, rules)) {
    lines += ToUTF8(view.substr(line.begin, line.end - line.begin));
    if (line.isTrimmed)
      lines += '~' + ToUTF8(view.substr(line.tailBegin, line.tailEnd - line.tailBegin));
    lines += '|';
  }
  return lines;
}

LineRules Within(double available) {
  LineRules rules;
  rules.available = available;
  return rules;
}

LineRules OneLine(EmfPlusStringTrimming trimming, double available) {
  LineRules rules = Within(available);
  rules.wraps = false;
  rules.trimming = trimming;
  return rules;
}

TEST(LinesOfAString, EndWhereTheTextSaysSo) {
  EXPECT_EQ(Broken(u"one\ntwo\n\nfour", Within(kUnlimited)), "one|two||four|");
}

TEST(LinesOfAString, NeedNoLineBehindTheLastEnd) {
  EXPECT_EQ(Broken(u"one\n", Within(kUnlimited)), "one|");
  EXPECT_EQ(Broken(u"", Within(kUnlimited)), "");
}

TEST(LinesOfAString, AreBrokenBehindSpaces) {
  EXPECT_EQ(Broken(u"one two three", Within(8)), "one two|three|");
}

TEST(LinesOfAString, HaveRoomForSpacesThatNobodySees) {
  EXPECT_EQ(Broken(u"one    two", Within(3)), "one|two|");
}

TEST(LinesOfAString, KeepTheSpacesThatCount) {
  LineRules rules = Within(3);
  rules.keepsSpaces = true;
  EXPECT_EQ(Broken(u"one  two ", rules), "one  |two |");
}

TEST(LinesOfAString, AreBrokenWithinAWordThatIsTooLong) {
  EXPECT_EQ(Broken(u"a lengthy word", Within(4)), "a|leng|thy|word|");
}

TEST(LinesOfAString, HaveACharacterHoweverNarrowTheyAre) {
  EXPECT_EQ(Broken(u"abc", Within(-5)), "a|b|c|");
}

TEST(LinesOfAString, AreBrokenBetweenCharactersOfTheEast) {
  EXPECT_EQ(Broken(u"a\u4E00\u4E8C\u4E09", Within(3)), "a\u4E00\u4E8C|\u4E09|");
}

TEST(LinesOfAString, AreNotBrokenWithoutWrapping) {
  EXPECT_EQ(Broken(u"one two\nthree", OneLine(kNone, 2)), "one two|three|");
}

TEST(LinesOfAString, FitInWhatIsAsWideToSinglePrecision) {
  EXPECT_EQ(Broken(u"abcd", Within(double{4.0F / 3} * 3 - 1e-7)), "abcd|");
}

TEST(LinesOfAString, AreNoMoreThanThereMayBe) {
  LineRules rules = Within(3);
  rules.mostLines = 2;
  EXPECT_EQ(Broken(u"one two six", rules), "one|two|");
  rules.mostLines = 0;
  EXPECT_EQ(Broken(u"one two six", rules), "");
}

TEST(TabsInAString, TakeTheLineToTheirStops) {
  const std::u16string text = u"a\tb";
  const std::vector<double> advances = {1, 0, 1};
  const TabStops tabs(0, {}, 4);
  EXPECT_EQ(BreakLines({text, advances, tabs}, {}).front().width, 5);
}

// Trimming.

TEST(ATrimmedLine, EndsBehindTheLastCharacter) {
  EXPECT_EQ(Broken(u"one two", OneLine(kCharacter, 5)), "one t|");
}

TEST(ATrimmedLine, EndsBehindTheLastWord) {
  EXPECT_EQ(Broken(u"one two", OneLine(kWord, 5)), "one|");
}

TEST(ATrimmedLine, EndsInAnEllipsisBehindTheLastCharacter) {
  EXPECT_EQ(Broken(u"one two", OneLine(kEllipsisCharacter, 6)), "one~|");
  EXPECT_EQ(Broken(u"one two", OneLine(kEllipsisCharacter, 7)), "one two|");
}

TEST(ATrimmedLine, EndsInAnEllipsisBehindTheLastWord) {
  EXPECT_EQ(Broken(u"one twofold", OneLine(kEllipsisWord, 9)), "one~|");
}

TEST(ATrimmedLine, KeepsTheNameOfAPath) {
  EXPECT_EQ(Broken(u"c:\\folder\\name", OneLine(kEllipsisPath, 10)), "c:\\~\\name|");
}

TEST(ATrimmedLine, KeepsBothEndsOfWhatIsNoPath) {
  EXPECT_EQ(Broken(u"abcdefghij", OneLine(kEllipsisPath, 8)), "abc~hij|");
}

TEST(ATrimmedLine, IsTheLastOfThoseThatHaveRoom) {
  LineRules rules = Within(8);
  rules.mostLines = 2;
  rules.trimming = kEllipsisCharacter;
  EXPECT_EQ(Broken(u"one two three four", rules), "one two|three~|");
  rules.trimming = kCharacter;
  EXPECT_EQ(Broken(u"one two three four", rules), "one two|three fo|");
}

TEST(ATrimmedLine, IsAsWideAsItsPartsAndItsEllipsis) {
  const std::u16string text = u"abcdefghij";
  const std::vector<double> advances(text.size(), 1);
  const TabStops tabs(0, {}, 4);
  LineRules rules = OneLine(kEllipsisPath, 8.5);
  rules.ellipsis = 2;
  EXPECT_EQ(BreakLines({text, advances, tabs}, rules).front().width, 8);
}

TEST(LinesOfAString, TakeTimeInProportion) {
  for (const auto trimming : {kNone, kEllipsisCharacter, kEllipsisPath}) {
    LineRules rules = Within(-1);
    rules.trimming = trimming;
    rules.mostLines = 999'999;
    const std::u16string text(1'000'000, u'x');
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(Broken(text, rules).empty());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  }
}

}  // namespace
}  // namespace kelvane::gdiplus
