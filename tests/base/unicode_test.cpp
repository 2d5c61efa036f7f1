#include "base/unicode.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

using namespace std::string_view_literals;

TEST(DecodeUTF16, JoinsASurrogatePair) {
  const DecodedCharacter decoded = DecodeUTF16(u"\U0001D538", 0);
  EXPECT_EQ(decoded.character, U'\U0001D538');
  EXPECT_EQ(decoded.units, 2U);
}

TEST(DecodeUTF16, LeavesAHalfAtTheEndAlone) {
  const DecodedCharacter decoded = DecodeUTF16(u"\xD835", 0);
  EXPECT_EQ(decoded.character, 0xD835U);
  EXPECT_EQ(decoded.units, 1U);
}

TEST(DecodeUTF16, LeavesHalvesInTheWrongOrderAlone) {
  EXPECT_EQ(DecodeUTF16(u"\xDD38\xD835", 0).units, 1U);
}

TEST(IsUTF8, GoesByTheFormOfSequences) {
  EXPECT_TRUE(IsUTF8(""));
  EXPECT_TRUE(IsUTF8("A\u00FC\u6F22\U0001D538"));
  EXPECT_FALSE(IsUTF8("f\xFCnf"));   // no lead byte of four
  EXPECT_FALSE(IsUTF8("a\x80"));     // a tail without a lead
  EXPECT_FALSE(IsUTF8("\xC1\x81"));  // an ASCII letter in two bytes
  EXPECT_FALSE(IsUTF8("\xE6\xBC"));  // ends early
}

TEST(ToUTF8, WritesOneToFourBytes) {
  EXPECT_EQ(ToUTF8(u"A\u00FC\u6F22\U0001D538"), "A\u00FC\u6F22\U0001D538");
}

TEST(ToUTF8, ReplacesAnUnpairedSurrogate) {
  EXPECT_EQ(ToUTF8(u"a\xD835z"), "a\uFFFDz");
}

TEST(ToUTF8, KeepsBytesThatAreUTF8) {
  EXPECT_EQ(ToUTF8("f\u00FCnf"sv), "f\u00FCnf");
}

TEST(ToUTF8, TakesOtherBytesForLatin1) {
  EXPECT_EQ(ToUTF8("f\xFCnf"sv), "f\u00FCnf");
}

TEST(ToUTF8, TakesASequenceThatEndsEarlyForLatin1) {
  EXPECT_EQ(ToUTF8("f\xC3"sv), "f\u00C3");
}

}  // namespace
}  // namespace kelvane
