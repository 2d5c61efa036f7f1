#include "gdi/font_names.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(FaceName, EndsAtTheFirstZero) {
  LogFont font;
  std::ranges::copy(std::u16string_view(u"Arial\0Black", 11), font.faceName.begin());
  EXPECT_EQ(FaceName(font), u"Arial");
  EXPECT_EQ(FaceName(LogFont{}), u"");
}

TEST(FaceName, HasRoomForTheZero) {
  LogFont font;
  font.faceName.fill(u'a');
  EXPECT_EQ(FaceName(font), std::u16string(31, u'a'));
}

TEST(WithoutScript, TakesOffAWholeWordOnly) {
  EXPECT_EQ(WithoutScript("Arial CE"), "Arial");
  EXPECT_EQ(WithoutScript("arial cyr"), "arial");
  EXPECT_EQ(WithoutScript("Peace"), std::nullopt);
  EXPECT_EQ(WithoutScript(" CE"), std::nullopt);
  EXPECT_EQ(WithoutScript(""), std::nullopt);
}

TEST(FindWindowsFontName, ComparesWithoutCaseAndBlanks) {
  ASSERT_NE(FindWindowsFontName("ms SHELL dlg2"), nullptr);
  EXPECT_EQ(FindWindowsFontName("ms SHELL dlg2")->faces.front(), "Tahoma");
  EXPECT_EQ(FindWindowsFontName("Arial"), nullptr);
  EXPECT_EQ(FindWindowsFontName(""), nullptr);
}

}  // namespace
}  // namespace kelvane
