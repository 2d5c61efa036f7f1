#include "platform/fonts/glyph_outline.h"

#include <sstream>

#include <gtest/gtest.h>

#include "platform/fonts/typeface.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

CGPath OutlineOf(const char* path, char32_t character) {
  const auto face = Typeface::Open(path, 0);
  return face->Font()->Outline(face->GlyphFor(character).value());
}

/// The elements, a letter each, and their points.
std::string Described(const CGPath& path) {
  std::ostringstream words;
  path.ForEach([&words](CGPath::Element element, const CGPoint* points) {
    words << "mlczr"[static_cast<std::size_t>(element)];
    for (std::size_t i = 0; i < CGPath::PointCount(element); ++i)
      words << ' ' << points[i].x << ' ' << points[i].y;
    words << '\n';
  });
  return words.str();
}

std::size_t CountOf(const CGPath& path, CGPath::Element wanted) {
  std::size_t count = 0;
  path.ForEach(
      [&](CGPath::Element element, const CGPoint*) { count += element == wanted ? 1 : 0; });
  return count;
}

TEST(GlyphOutline, IsInTheFacesOwnUnits) {
  EXPECT_EQ(Described(OutlineOf(test::kLiberationSans, U'I')),
            "m 189 0\nl 189 1409\nl 380 1409\nl 380 0\nl 189 0\nz\n");
}

TEST(GlyphOutline, IsReadFromAMemberOfACollection) {
  EXPECT_EQ(Described(OutlineOf(test::kMicroHei, U'\u4E00')),
            "m 168 896\nl 1872 896\nl 1872 744\nl 168 744\nl 168 896\nz\n");
}

TEST(GlyphOutline, HasCubicCurvesWhateverTheFaceHas) {
  for (const char* path : {test::kLiberationSans, test::kJunction}) {
    const CGPath ring = OutlineOf(path, U'o');
    EXPECT_EQ(CountOf(ring, CGPath::Element::kClose), 2U) << path;
    EXPECT_GE(CountOf(ring, CGPath::Element::kCurve), 8U) << path;
  }
}

TEST(GlyphOutline, IsEmptyForABlank) {
  EXPECT_TRUE(OutlineOf(test::kLiberationSans, U' ').IsEmpty());
}

TEST(GlyphOutline, IsEmptyForAGlyphThatTheFaceDoesNotHave) {
  EXPECT_TRUE(Typeface::Open(test::kJunction, 0)->Font()->Outline(0xFFFF).IsEmpty());
}

}  // namespace
}  // namespace kelvane
