#include "platform/fonts/typeface.h"

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/fonts.h"
#include "support/paths.h"

namespace kelvane {
namespace {

TEST(Typeface, ReadsTrueTypeOutlines) {
  const auto face = Typeface::Open(test::kLiberationSans, 0);
  ASSERT_NE(face, nullptr);
  EXPECT_EQ(face->Font()->Description().outlines, CGFontOutlines::kTrueType);
}

TEST(Typeface, ReadsCompactOutlines) {
  const auto face = Typeface::Open(test::kJunction, 0);
  ASSERT_NE(face, nullptr);
  EXPECT_EQ(face->Font()->Description().outlines, CGFontOutlines::kCompact);
}

TEST(Typeface, ReadsTheMemberOfACollectionThatIsAskedFor) {
  const auto face = Typeface::Open(test::kMicroHei, 1);
  ASSERT_NE(face, nullptr);
  EXPECT_EQ(face->Font()->Description().postScriptName, "WenQuanYiMicroHeiMono");
}

TEST(Typeface, IsNotThereBehindTheLastMember) {
  EXPECT_EQ(Typeface::Open(test::kMicroHei, 2), nullptr);
}

TEST(Typeface, IsNotInAFileThatIsMissing) {
  EXPECT_EQ(Typeface::Open("/nowhere/font.ttf", 0), nullptr);
}

TEST(Typeface, IsNotInAFileThatIsNoFont) {
  EXPECT_EQ(Typeface::Open(test::SourcePath("CMakeLists.txt"), 0), nullptr);
}

TEST(Typeface, AdvancesInEms) {
  const auto face = Typeface::Open(test::kLiberationSans, 0);
  EXPECT_FLOAT_EQ(face->Font()->Advance(face->GlyphFor(U'A').value()), 1366.0F / 2048);
}

TEST(Typeface, HasNoGlyphForWhatItLacks) {
  EXPECT_FALSE(Typeface::Open(test::kLiberationSans, 0)->GlyphFor(U'\u6F22').has_value());
}

TEST(Typeface, HasTheGlyphsThatItCounts) {
  const auto face = Typeface::Open(test::kLiberationSans, 0);  // 681 of them
  EXPECT_TRUE(face->HasGlyph(0));
  EXPECT_TRUE(face->HasGlyph(680));
  EXPECT_FALSE(face->HasGlyph(681));
  EXPECT_FALSE(face->HasGlyph(0xFFFF));
}

TEST(StandardTypeface, MapsCharactersToWinAnsi) {
  const auto face = Typeface::StandardHelvetica();
  EXPECT_EQ(face->GlyphFor(U'\u20AC'), 0x80);
  EXPECT_FALSE(face->GlyphFor(U'\u6F22').has_value());
}

}  // namespace
}  // namespace kelvane
