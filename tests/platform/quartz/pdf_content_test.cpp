#include "platform/quartz/pdf_content.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

std::string ContentOf(const CGPath& path, const CGAffineTransform& transform) {
  std::string text;
  PdfContent content([&](std::string_view piece) { text += piece; });
  content.Path(path, transform);
  content.Finish();
  return text;
}

TEST(PdfContent, MapsARectangleByItsCorners) {
  CGPath path;
  path.AddRectangle({10, 20}, {30, 40});
  EXPECT_EQ(ContentOf(path, CGAffineTransformMake(0, 2, -1, 0, 5, 0)),
            "-15 20 m\n-15 80 l\n-55 80 l\n-55 20 l\nh\n");
}

/// @return the operators that `write` writes.
template <class Write>
std::string Written(const Write& write) {
  std::string text;
  PdfContent content([&](std::string_view piece) { text += piece; });
  write(content);
  content.Finish();
  return text;
}

PdfTextStyle Font(std::string_view name = "/F1") {
  return {name, 2, 10, {}};
}

constexpr CGColor kRed = {1, 0, 0, 1};

TEST(PdfContent, ShowsNeighbouringGlyphsAsOneLine) {
  EXPECT_EQ(Written([](PdfContent& content) {
              content.ShowGlyph(Font(), {0, 0}, 1, 500);
              content.ShowGlyph(Font(), {6, 0}, 2, 500);
            }),
            "BT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<0001>-100<0002>]TJ\nET\n");
}

TEST(PdfContent, SharesATextObjectAndAFontBetweenLines) {
  EXPECT_EQ(Written([](PdfContent& content) {
              content.ShowGlyph(Font(), {0, 0}, 1, 500);
              content.ShowGlyph(Font(), {0, 12}, 2, 500);
            }),
            "BT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<0001>]TJ\n1 0 0 1 0 12 Tm\n[<0002>]TJ\nET\n");
}

TEST(PdfContent, ChangesAColourInsideATextObject) {
  EXPECT_EQ(Written([](PdfContent& content) {
              content.ShowGlyph(Font(), {0, 0}, 1, 500);
              content.FillColor(kRed);
              content.ShowGlyph(Font(), {5, 0}, 2, 500);
            }),
            "BT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<0001>]TJ\n1 0 0 rg\n"
            "1 0 0 1 5 0 Tm\n[<0002>]TJ\nET\n");
}

TEST(PdfContent, EndsATextObjectBeforeAPath) {
  EXPECT_EQ(Written([](PdfContent& content) {
              CGPath path;
              path.AddRectangle({1, 2}, {3, 4});
              content.ShowGlyph(Font(), {0, 0}, 1, 500);
              content.Path(path);
              content.ShowGlyph(Font(), {0, 0}, 1, 500);
            }),
            "BT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<0001>]TJ\nET\n1 2 3 4 re\n"
            "BT\n1 0 0 1 0 0 Tm\n[<0001>]TJ\nET\n");
}

TEST(PdfContent, NamesAFontAgainThatARestoreTookBack) {
  EXPECT_EQ(Written([](PdfContent& content) {
              content.Save();
              content.ShowGlyph(Font(), {0, 0}, 1, 500);
              content.Restore();
              content.ShowGlyph(Font(), {0, 0}, 1, 500);
            }),
            "q\nBT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<0001>]TJ\nET\nQ\n"
            "BT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<0001>]TJ\nET\n");
}

TEST(PdfContent, IsNotEmptyWithAGlyphThatIsNotYetWritten) {
  PdfContent content([](std::string_view) {});
  content.ShowGlyph(Font(), {0, 0}, 1, 500);
  EXPECT_FALSE(content.IsEmpty());
}

}  // namespace
}  // namespace kelvane
