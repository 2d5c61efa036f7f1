#include "gdi/font_book.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include <gtest/gtest.h>

#include "platform/fonts/fontconfig_catalog.h"
#include "support/files.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

constexpr double kPixel = 1;
constexpr double kNear = 1e-9;

LogFont Named(std::u16string_view name, std::int32_t height = -1) {
  LogFont font;
  font.height = height;
  std::ranges::copy(name, font.faceName.begin());
  return font;
}

class AFontBook : public testing::Test {
 protected:
  FontRegistry registry;
  FontMap map;
  FontBook book{registry, AnyFont, map};
};

// Of Liberation Sans: usWinAscent 1854, usWinDescent 434, 2048 units an em.
TEST_F(AFontBook, TakesAHeightBelowZeroForTheEms) {
  const TextFont& font = book.Resolve(Named(u"Liberation Sans", -2048), kPixel);
  EXPECT_EQ(font.em, 2048);
  EXPECT_EQ(font.ascent, 1854);
  EXPECT_EQ(font.descent, 434);
}

TEST_F(AFontBook, TakesAHeightAboveZeroForTheCells) {
  const TextFont& font = book.Resolve(Named(u"Liberation Sans", 1854 + 434), kPixel);
  EXPECT_NEAR(font.em, 2048, kNear);
  EXPECT_NEAR(font.ascent, 1854, kNear);
  EXPECT_NEAR(font.descent, 434, kNear);
}

TEST_F(AFontBook, MakesACellOfSixteenPixelsWhereThereIsNoHeight) {
  const TextFont& font = book.Resolve(Named(u"Liberation Sans", 0), 143);
  EXPECT_NEAR(font.em, 2048, kNear);
}

TEST_F(AFontBook, HasRoomForAnyHeight) {
  constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(book.Resolve(Named(u"Liberation Sans", kLeast), kPixel).em, 2147483648.0);
  const TextFont& font = book.Resolve(Named(u"Liberation Sans", kMost), kPixel);
  EXPECT_NEAR(font.ascent + font.descent, 2147483647.0, 1e-5);
}

}  // namespace
}  // namespace kelvane
