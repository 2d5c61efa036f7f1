#include "gdi/font_map.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(FontMap, WantsNothingElseForANameWithoutAWish) {
  FontMap map;
  map.Add("Arial", "DejaVu Sans");
  EXPECT_EQ(map.Find("Arial Black"), "");
  EXPECT_EQ(map.Find(""), "");
}

TEST(FontMap, ComparesNamesWithoutCaseAndBlanks) {
  FontMap map;
  map.Add("Times New Roman", "DejaVu Serif");
  EXPECT_EQ(map.Find("TIMES newroman"), "DejaVu Serif");
  EXPECT_EQ(map.Find(" Times  New Roman "), "DejaVu Serif");
}

TEST(FontMap, LeavesTheBytesOfOtherLettersAlone) {
  FontMap map;
  map.Add("ＭＳ 明朝", "WenQuanYi Micro Hei");
  EXPECT_EQ(map.Find("ＭＳ明朝"), "WenQuanYi Micro Hei");
  EXPECT_EQ(map.Find("ｍｓ 明朝"), "");
}

TEST(FontMap, HoldsToTheLastWishForAName) {
  FontMap map;
  map.Add("Arial", "DejaVu Sans");
  map.Add("arial", "Junction");
  EXPECT_EQ(map.Find("Arial"), "Junction");
  map.Add("ARIAL", "");
  EXPECT_EQ(map.Find("Arial"), "");
}

TEST(FontMap, DoesNotFollowOneWishToAnother) {
  FontMap map;
  map.Add("Arial", "Helvetica");
  map.Add("Helvetica", "Junction");
  EXPECT_EQ(map.Find("Arial"), "Helvetica");
}

}  // namespace
}  // namespace kelvane
