#include "platform/quartz/cg_standard_font.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

struct CodeCase {
  char32_t character;
  CGGlyph code;
};

class WinAnsi : public testing::TestWithParam<CodeCase> {};

TEST_P(WinAnsi, HasACodeForTheCharacter) {
  EXPECT_EQ(WinAnsiCode(GetParam().character), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(Each, WinAnsi,
                         testing::Values(CodeCase{U' ', 0x20}, CodeCase{U'~', 0x7E},
                                         CodeCase{0x20AC, 0x80}, CodeCase{0x2022, 0x95},
                                         CodeCase{0x0178, 0x9F}, CodeCase{0x00A0, 0xA0},
                                         CodeCase{0x00FF, 0xFF}));

class NotWinAnsi : public testing::TestWithParam<char32_t> {};

TEST_P(NotWinAnsi, HasNoCode) {
  EXPECT_EQ(WinAnsiCode(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Each, NotWinAnsi,
                         testing::Values(0x00, 0x1F, 0x7F, 0x81, 0x9F, 0x100, 0x3B1, 0x1F600));

TEST(StandardHelvetica, AdvancesAsItsMetricsSay) {
  EXPECT_FLOAT_EQ(CGFontGetStandardHelvetica()->Advance('A'), 0.667F);
}

TEST(StandardHelvetica, DoesNotAdvanceForWhatItDoesNotHave) {
  EXPECT_EQ(CGFontGetStandardHelvetica()->Advance(0), 0);
  EXPECT_EQ(CGFontGetStandardHelvetica()->Advance(256), 0);
}

TEST(StandardHelvetica, HasNoOutlines) {
  EXPECT_TRUE(CGFontGetStandardHelvetica()->Outline('A').IsEmpty());
}

TEST(StandardHelvetica, HasNoProgram) {
  EXPECT_TRUE(CGFontGetStandardHelvetica()->Program().empty());
  EXPECT_EQ(CGFontGetStandardHelvetica()->ProgramIndex(), 0U);
}

}  // namespace
}  // namespace kelvane
