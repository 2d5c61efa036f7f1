#include <cmath>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/corpus.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/playback.h"
#include "support/process.h"
#include "support/surface.h"
#include "support/text.h"

namespace kelvane::test {
namespace {

struct Point {
  double x;
  double y;
};

struct PlacedGlyph {
  Point origin;  // page space
  double em;     // along the baseline, page units
};

std::vector<double> Numbers(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<double>(words), {}};
}

/// A run of glyphs as the trace has it: its size, and text space to page space.
struct TracedRun {
  double size = 0;
  std::vector<double> matrix;

  [[nodiscard]] PlacedGlyph Place(Point origin) const {
    return {{matrix[0] * origin.x + matrix[2] * origin.y + matrix[4],
             matrix[1] * origin.x + matrix[3] * origin.y + matrix[5]},
            size * std::hypot(matrix[0], matrix[1])};
  }
};

/// @param line  text "..." FACE SIZE under A B C D X Y
TracedRun RunOf(const std::string& line) {
  constexpr std::string_view kUnder = " under ";
  const std::size_t under = line.rfind(kUnder);
  const std::size_t size = line.rfind(' ', under - 1);
  return {std::stod(line.substr(size)), Numbers(line.substr(under + kUnder.size()))};
}

/// Where the glyphs belong, from the trace of the same playback. A glyph that is alone at its run's
/// origin has no line of its own.
std::vector<PlacedGlyph> GlyphsOfTheTrace(const std::string& trace) {
  constexpr std::string_view kAt = "  at ";
  std::vector<PlacedGlyph> glyphs;
  TracedRun run;
  bool isFirst = false;
  std::istringstream lines(trace);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("text ")) {
      run = RunOf(line);
      glyphs.push_back(run.Place({0, 0}));
      isFirst = true;
    } else if (line.starts_with(kAt)) {
      const std::vector<double> at = Numbers(line.substr(kAt.size()));
      if (isFirst) glyphs.pop_back();
      glyphs.push_back(run.Place({at[0], at[1]}));
      isFirst = false;
    }
  }
  return glyphs;
}

double Attribute(const std::string& element, std::string_view start) {
  return std::stod(element.substr(element.rfind(start) + start.size()));
}

/// Where a reader puts the glyphs of the only page. What is filled and stroked comes twice; the
/// outlines do not count.
std::vector<Point> GlyphsOfTheReader(const std::string& pdf) {
  const TemporaryFolder folder;
  WriteFile(folder / "page.pdf", pdf);
  std::vector<Point> origins;
  std::istringstream lines(test::Run({"mutool", "trace", folder / "page.pdf"}).output);
  bool isOutline = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("<stroke_text ")) isOutline = true;
    if (line.starts_with("</stroke_text>")) isOutline = false;
    if (isOutline) continue;
    // What a code stands for beyond its first character comes after it without a glyph.
    if (line.find("<g ") == std::string::npos || line.find(" glyph=") == std::string::npos)
      continue;
    origins.push_back({Attribute(line, " x=\""), Attribute(line, " y=\"")});
  }
  return origins;
}

void ExpectAsTraced(const std::string& pdf, const std::string& trace) {
  constexpr double kTolerance = 0.0006;  // ems
  const std::vector<PlacedGlyph> expected = GlyphsOfTheTrace(trace);
  const std::vector<Point> found = GlyphsOfTheReader(pdf);
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    const Point& place = expected[i].origin;
    const double distance = std::hypot(found[i].x - place.x, found[i].y - place.y);
    EXPECT_LE(distance, kTolerance * expected[i].em) << "glyph " << i;
  }
}

struct Line {
  const char* font;
  float size;
  float rotation;  // degrees
};

void PrintTo(const Line& line, std::ostream* out) {
  *out << line.font << ' ' << line.size << ' ' << line.rotation;
}

class OriginsOnALine : public testing::TestWithParam<Line> {};

TEST_P(OriginsOnALine, AreFoundByAReaderWhereTheyBelong) {
  const Line& line = GetParam();
  std::u16string text;
  for (int i = 0; i < 5; ++i)
    text += u"The quick brown fox jumps over the lazy dog. ";
  const Drawing draw = [&](CGContextRef surface) {
    DrawText(surface, text,
             {.font = line.font, .size = line.size, .rotation = line.rotation, .x = 30, .y = 50});
  };
  const std::string trace = TraceOf(draw);
  ASSERT_EQ(GlyphsOfTheTrace(trace).size(), text.size());
  ExpectAsTraced(PdfBytesOf(draw), trace);
}

INSTANTIATE_TEST_SUITE_P(Each, OriginsOnALine,
                         testing::Values(Line{"Liberation Sans", 0.5F, 0},
                                         Line{"Liberation Sans", 9, 30},
                                         Line{"Liberation Serif Italic", 12, 0},
                                         Line{"Liberation Sans", 24, 90}, Line{"Junction", 12, 0},
                                         Line{"Junction", 250, -20}, Line{"DejaVu Sans", 4000, 0}));

class OriginsOfAFile : public testing::TestWithParam<std::string> {};

TEST_P(OriginsOfAFile, AreFoundByAReaderWhereTheyBelong) {
  const std::string text = ReadFile(GetParam());
  const std::vector<unsigned char> bytes(text.begin(), text.end());
  ParsedMetafile metafile(bytes);
  ExpectAsTraced(ConvertToPdf(bytes), FullTrace(metafile));
}

std::vector<std::string> Samples() {
  return {SourcePath("samples/text.emf"), SourcePath("samples/scripts.emf")};
}

std::vector<std::string> Corpus() {
  std::vector<std::string> paths;
  for (const std::string& name : CorpusNames("real"))
    paths.push_back(CorpusFolder("real") / name);
  return paths;
}

INSTANTIATE_TEST_SUITE_P(Samples, OriginsOfAFile, testing::ValuesIn(Samples()), CorpusTestName);
// Empty where the corpus is not there.
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(OriginsOfAFile);
INSTANTIATE_TEST_SUITE_P(Corpus, OriginsOfAFile, testing::ValuesIn(Corpus()), CorpusTestName);

}  // namespace
}  // namespace kelvane::test
