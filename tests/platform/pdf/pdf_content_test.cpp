#include "platform/pdf/pdf_content.h"

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

/// What one call writes.
template <class Call>
std::string Written(const Call& call) {
  std::string text;
  PdfContent content([&](std::string_view piece) { text += piece; });
  call(content);
  content.Finish();
  return text;
}

CGPath PathOfAllElements() {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 4});
  path.CurveTo({5, 6}, {7, 8}, {9, 10});
  path.Close();
  path.AddRectangle({11, 12}, {-13, 14});
  return path;
}

TEST(PdfContent, WritesAnOperatorALine) {
  EXPECT_EQ(Written([](PdfContent& c) {
              c.Save();
              c.Concat({1, 2, 3, 4, 5, 6});
              c.FillColor({0.25F, 0.5F, 1, 1});
              c.StrokeColor({255.0F / 256, 0, 1, 1});
              c.LineWidth(0);
              c.LineCap(kCGLineCapSquare);
              c.LineJoin(kCGLineJoinBevel);
              c.LineDash({{3, 1.5F}, 0.25F});
              c.LineDash({});
              c.MiterLimit(4);
              c.TextMode(kCGTextInvisible);
              c.Clip(false);
              c.Clip(true);
              c.DrawXObject("/Im1");
              c.FillPattern("/P1");
              c.StrokePattern("/P2");
              c.GraphicsState("/G1");
              c.Restore();
            }),
            "q\n1 2 3 4 5 6 cm\n0.25 0.5 1 rg\n0.99609375 0 1 RG\n0 w\n2 J\n2 j\n[3 1.5 ] 0.25 "
            "d\n[] 0 d\n4 M\n3 Tr\nW n\nW* n\n/Im1 Do\n"
            "/Pattern cs\n/P1 scn\n/Pattern CS\n/P2 SCN\n/G1 gs\nQ\n");
}

TEST(PdfContent, WritesAPathsElements) {
  EXPECT_EQ(Written([](PdfContent& c) { c.Path(PathOfAllElements()); }),
            "1 2 m\n3 4 l\n5 6 7 8 9 10 c\nh\n11 12 -13 14 re\n");
}

TEST(PdfContent, PaintsByTheModesOperator) {
  EXPECT_EQ(Written([](PdfContent& c) {
              c.Paint(kCGPathFill);
              c.Paint(kCGPathEOFill);
              c.Paint(kCGPathStroke);
              c.Paint(kCGPathFillStroke);
              c.Paint(kCGPathEOFillStroke);
            }),
            "f\nf*\nS\nB\nB*\n");
}

TEST(PdfContent, RaisesAMiterLimitToOne) {
  EXPECT_EQ(Written([](PdfContent& c) { c.MiterLimit(-3); }), "1 M\n");
}

TEST(PdfContent, WritesEndlessValuesAsFiniteOnes) {
  constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();
  EXPECT_EQ(Written([](PdfContent& c) { c.LineWidth(kInfinity); }).find_first_of("in"),
            std::string::npos);
}

TEST(PdfContent, CutsALongContentBetweenOperators) {
  std::vector<std::string> pieces;
  PdfContent content([&](std::string_view piece) { pieces.emplace_back(piece); });
  const CGPath path = PathOfAllElements();
  constexpr std::size_t kRounds = 60000;
  for (std::size_t i = 0; i < kRounds; ++i)
    content.Path(path);
  content.Finish();

  const std::string once = Written([&](PdfContent& c) { c.Path(path); });
  ASSERT_GT(pieces.size(), 2U);
  std::string whole;
  for (const std::string& piece : pieces) {
    EXPECT_EQ(piece.back(), '\n');
    EXPECT_LT(piece.size(), std::size_t{2} << 20);
    whole += piece;
  }
  ASSERT_EQ(whole.size(), kRounds * once.size());
  for (std::size_t i = 0; i < kRounds; ++i) {
    ASSERT_EQ(whole.compare(i * once.size(), once.size(), once), 0) << "in round " << i;
  }
}

TEST(PdfContent, HandsOnNothingWhenNothingWasWritten) {
  PdfContent content([](std::string_view) { FAIL(); });
  EXPECT_TRUE(content.IsEmpty());
  content.Finish();
}

TEST(PdfContent, IsEmptyAgainOnceItIsFinished) {
  PdfContent content([](std::string_view) {});
  content.Save();
  EXPECT_FALSE(content.IsEmpty());
  content.Finish();
  EXPECT_TRUE(content.IsEmpty());
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

TEST(PdfContent, WritesCodesOfOneByte) {
  EXPECT_EQ(Written([](PdfContent& content) {
              content.ShowGlyph({"/F1", 1, 10, {}}, {0, 0}, 0x41, 500);
            }),
            "BT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<41>]TJ\nET\n");
}

TEST(PdfContent, HasNoGapBetweenGlyphsThatFollowTheirWidths) {
  EXPECT_EQ(Written([](PdfContent& content) {
              content.ShowGlyph(Font(), {0, 0}, 1, 500);
              content.ShowGlyph(Font(), {5, 0}, 2, 500);
            }),
            "BT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<00010002>]TJ\nET\n");
}

TEST(PdfContent, CutsALongContentBetweenLinesOfText) {
  std::vector<std::string> pieces;
  PdfContent content([&](std::string_view piece) { pieces.emplace_back(piece); });
  for (int line = 0; line < 30000; ++line) {
    for (int glyph = 0; glyph < 10; ++glyph)
      content.ShowGlyph(Font(), {0, static_cast<CGFloat>(line)}, 1, 500);
  }
  content.Finish();
  ASSERT_GT(pieces.size(), 1U);
  for (const std::string& piece : pieces)
    EXPECT_EQ(piece.back(), '\n');
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
