#include "gdiplus/string_text.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdi/symbol_encoding.h"

namespace kelvane::gdiplus {
namespace {

using Units = std::vector<std::size_t>;

StringText Read(std::u16string_view text, const EmfPlusStringFormat& format = {}) {
  return ReadString(text, TextFont{}, format);
}

StringText ReadWith(std::u16string_view text, EmfPlusHotkeyPrefix hotkeys) {
  EmfPlusStringFormat format;
  format.hotkeys = hotkeys;
  return Read(text, format);
}

TEST(TheTextOfAString, HasOneKindOfEndOfLines) {
  EXPECT_EQ(Read(u"a\r\nb\rc\nd\r").written.units, u"a\nb\nc\nd\n");
}

TEST(TheTextOfAString, HasNoOtherControlsThanTabs) {
  EXPECT_EQ(Read(u"a\x01\tb\x1F").written.units, u"a\tb");
}

TEST(TheTextOfAString, KeepsPrefixesThatMeanNothing) {
  EXPECT_EQ(ReadWith(u"a&b", EmfPlusHotkeyPrefix::kNone).written.units, u"a&b");
}

TEST(TheTextOfAString, UnderlinesWhatPrefixesMark) {
  const StringText text = ReadWith(u"a&bc&&d&e&", EmfPlusHotkeyPrefix::kShow);
  EXPECT_EQ(text.written.units, u"abc&de");
  EXPECT_EQ(text.hotkeys, (Units{1, 5}));
}

TEST(TheTextOfAString, HidesPrefixes) {
  const StringText text = ReadWith(u"a&bc&&d", EmfPlusHotkeyPrefix::kHide);
  EXPECT_EQ(text.written.units, u"abc&d");
  EXPECT_TRUE(text.hotkeys.empty());
}

TEST(TheTextOfAString, HasTheDigitsOfItsLanguageWhereItAsksForThem) {
  constexpr std::uint32_t kArabicOfEgypt = 0x0C01;
  EmfPlusStringFormat format;
  format.digitLanguage = kArabicOfEgypt;
  EXPECT_EQ(Read(u"a09", format).written.units, u"a09");
  format.digits = EmfPlusDigitSubstitution::kNational;
  EXPECT_EQ(Read(u"a09", format).written.units, u"a\u0660\u0669");
  format.digitLanguage = 0x0409;
  EXPECT_EQ(Read(u"a09", format).written.units, u"a09");
  format.digitLanguage = 0;
  format.language = 0x041E;
  EXPECT_EQ(Read(u"a09", format).written.units, u"a\u0E50\u0E59");
}

TEST(TheTextOfAString, TakesCodesOfSymbolsAndKeepsLines) {
  TextFont font;
  font.symbols = FindSymbolEncoding(u"Symbol");
  EXPECT_EQ(ReadString(u"ab\n\xF067", font, {}).written.units, u"\u03B1\u03B2\n\u03B3");
}

}  // namespace
}  // namespace kelvane::gdiplus
