#include "platform/fonts/text_items.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(MarksNothing, IsTrueOfControlsAndSurrogates) {
  for (const char32_t character :
       {U'\0', U'\t', U'\x7F', U'\x85', char32_t{0xD800}, char32_t{0xDFFF}}) {
    EXPECT_TRUE(MarksNothing(character)) << static_cast<std::uint32_t>(character);
  }
  for (const char32_t character : {U' ', U'A', U'\u200E', U'\uFFFD', U'\U0010FFFF'}) {
    EXPECT_FALSE(MarksNothing(character)) << static_cast<std::uint32_t>(character);
  }
}

TEST(OnlySteers, IsTrueOfMarksOfDirectionJoinersSeparatorsAndVariationSelectors) {
  for (const char32_t character : {U'\u200D', U'\u200E', U'\u2028', U'\u2029', U'\uFE00', U'\uFE0F',
                                   U'\U000E0100', U'\U000E01EF'}) {
    EXPECT_TRUE(OnlySteers(character)) << static_cast<std::uint32_t>(character);
  }
  for (const char32_t character :
       {U'A', U'\u2027', U'\uFDFF', U'\uFE10', U'\U000E0200', U'\U0001F600'}) {
    EXPECT_FALSE(OnlySteers(character)) << static_cast<std::uint32_t>(character);
  }
}

}  // namespace
}  // namespace kelvane
