#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/pdf.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::At;
using test::Metafile;
using test::Trace;

/// Random records in random order, the same ones for the same seed.
class RandomMetafile {
 public:
  explicit RandomMetafile(std::uint32_t seed) : random_(seed) {}

  Metafile Make() {
    Metafile metafile;
    for (int i = Number(5, 40); i > 0; --i)
      Add(metafile);
    return metafile;
  }

 private:
  int Number(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
  At Point() { return {Number(-50, 150), Number(-50, 150)}; }
  RectangleL Box() { return {Number(0, 50), Number(0, 50), Number(0, 99), Number(0, 99)}; }
  std::uint32_t Index() { return static_cast<std::uint32_t>(Number(1, 4)); }
  std::uint32_t Color() { return static_cast<std::uint32_t>(Number(0, 0xFFFFFF)); }

  XForm Transform() {
    const auto element = [this] { return static_cast<float>(Number(-8, 8)) / 4; };
    return {element(), element(), element(), element(), element() * 8, element() * 8};
  }

  void Add(Metafile& metafile) {
    switch (Number(0, 21)) {
      case 0:
      case 1:
        metafile.SaveDC();
        break;
      case 2:
      case 3:
        metafile.RestoreDC(-Number(1, 3));
        break;
      case 4:
      case 5:
        AddTransform(metafile, Number(1, 5));
        break;
      case 6:
        metafile.BeginPath();
        break;
      case 7:
        metafile.EndPath();
        break;
      case 8:
        metafile.FillPath();
        break;
      case 9:
        metafile.StrokePath();
        break;
      case 10:
        metafile.StrokeAndFillPath();
        break;
      case 11:
      case 12:
        metafile.SelectClipPath(Number(0, 2) > 0 ? test::kRegionAnd : test::kRegionCopy);
        break;
      case 13:
        AddPen(metafile, Index());
        break;
      case 14:
        AddBrush(metafile, Index());
        break;
      case 15:
        metafile.SelectObject(Number(0, 3) > 0 ? Index() : 0x80000000 | Index() * 2);
        break;
      case 16:
        metafile.Rectangle(Box());
        break;
      case 17:
        metafile.Ellipse(Box());
        break;
      case 18:
        metafile.Polygon({Point(), Point(), Point()});
        break;
      case 19:
        metafile.Polybezier({Point(), Point(), Point(), Point()});
        break;
      case 20:
        AddLine(metafile, Point());
        break;
      default:
        AddArc(metafile, static_cast<std::uint32_t>(Number(0, 40)));
    }
  }

  void AddTransform(Metafile& metafile, int mode) {
    metafile.ModifyWorldTransform(Transform(), mode);
  }

  void AddPen(Metafile& metafile, std::uint32_t index) {
    const int width = Number(0, 5);
    metafile.CreatePen(index, width, Color());
  }

  void AddBrush(Metafile& metafile, std::uint32_t index) { metafile.CreateBrush(index, Color()); }

  void AddLine(Metafile& metafile, At start) {
    metafile.MoveTo(start.x, start.y);
    const At end = Point();
    metafile.LineTo(end.x, end.y);
  }

  void AddArc(Metafile& metafile, std::uint32_t radius) {
    const At centre = Point();
    const auto start = static_cast<float>(Number(-400, 400));
    metafile.AngleArc(centre, radius, start, static_cast<float>(Number(-400, 400)));
  }

  std::mt19937 random_;
};

/// One line of a trace.
struct Step {
  std::string word;
  std::vector<double> numbers;
};

bool IsPath(const std::string& word) {
  return word == "move" || word == "line" || word == "curve" || word == "rect" || word == "close";
}

std::vector<double> Numbers(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<double>(words), {}};
}

/// The points in `numbers`, mapped.
std::vector<double> Mapped(const std::vector<double>& numbers, const std::vector<double>& t) {
  std::vector<double> mapped;
  for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
    const double x = numbers[i];
    const double y = numbers[i + 1];
    mapped.insert(mapped.end(), {t[0] * x + t[2] * y + t[4], t[1] * x + t[3] * y + t[5]});
  }
  return mapped;
}

/// A rectangle's corners as the figure that it stands for.
std::vector<Step> Corners(const std::vector<double>& rectangle) {
  const double x = rectangle[0];
  const double y = rectangle[1];
  const double right = x + rectangle[2];
  const double top = y + rectangle[3];
  return {{"move", {x, y}},
          {"line", {right, y}},
          {"line", {right, top}},
          {"line", {x, top}},
          {"close", {}}};
}

/// A page's content as steps of a trace. The points of a stroke under a transform are brought back
/// to page space.
std::vector<Step> StepsOf(const std::vector<test::Operation>& operations) {
  static const std::map<std::string, std::string> kWords = {
      {"q", "save"},       {"Q", "restore"},     {"rg", "fill-color"}, {"RG", "stroke-color"},
      {"w", "line-width"}, {"M", "miter-limit"}, {"m", "move"},        {"l", "line"},
      {"c", "curve"},      {"re", "rect"},       {"h", "close"},       {"f", "fill"},
      {"f*", "eo-fill"},   {"S", "stroke"},      {"B", "fill-stroke"}, {"B*", "eo-fill-stroke"},
      {"W", "clip"},
  };
  std::vector<Step> steps;
  std::vector<double> transform;  // of the stroke being read
  for (const auto& [op, operands] : operations) {
    if (op == "n") continue;  // follows every W
    if (op == "cm") {
      transform = Numbers(operands);
      steps.pop_back();  // the save around it
    } else if (transform.empty()) {
      steps.push_back({kWords.at(op), Numbers(operands)});
    } else if (op == "Q") {
      transform.clear();
    } else if (op == "re") {
      for (const Step& side : Corners(Numbers(operands)))
        steps.push_back({side.word, Mapped(side.numbers, transform)});
    } else {
      const std::string& word = kWords.at(op);
      steps.push_back({IsPath(word) ? word : word + " under",
                       IsPath(word) ? Mapped(Numbers(operands), transform) : transform});
    }
  }
  return steps;
}

/// The rectangles in the path that ends the steps, corner by corner: under a transform they are no
/// longer upright.
void TakeRectanglesApart(std::vector<Step>& steps) {
  std::size_t start = steps.size();
  while (start > 0 && IsPath(steps[start - 1].word))
    --start;
  const std::vector<Step> path(steps.begin() + static_cast<std::ptrdiff_t>(start), steps.end());
  steps.resize(start);
  for (const Step& step : path) {
    if (step.word != "rect") {
      steps.push_back(step);
      continue;
    }
    const std::vector<Step> corners = Corners(step.numbers);
    steps.insert(steps.end(), corners.begin(), corners.end());
  }
}

std::vector<Step> StepsOf(const std::string& trace) {
  constexpr std::string_view kUnder = " under";
  std::istringstream lines(trace);
  std::vector<Step> steps;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t under = line.find(kUnder);
    const std::size_t end =
        under != std::string::npos ? under + kUnder.size() : std::min(line.find(' '), line.size());
    if (under != std::string::npos) TakeRectanglesApart(steps);
    steps.push_back({line.substr(0, end), Numbers(line.substr(end))});
  }
  return steps;
}

/// How much a transform blows up rounding on the way through it and back: its condition number, at
/// least 1.
double Condition(const std::vector<double>& t) {
  const double squares = t[0] * t[0] + t[1] * t[1] + t[2] * t[2] + t[3] * t[3];
  return squares / std::abs(t[0] * t[3] - t[1] * t[2]);
}

/// Numbers agree but for what single precision loses on the way through a transform and back.
void ExpectAlike(const std::vector<Step>& trace, const std::vector<Step>& page) {
  ASSERT_EQ(trace.size(), page.size());
  double condition = 1;
  for (std::size_t i = trace.size(); i-- > 0;) {
    ASSERT_EQ(trace[i].word, page[i].word) << "step " << i;
    ASSERT_EQ(trace[i].numbers.size(), page[i].numbers.size()) << "step " << i;
    if (!IsPath(trace[i].word)) {
      const bool under = trace[i].word.ends_with("under");
      condition = under ? Condition(trace[i].numbers) : 0;
    }
    for (std::size_t k = 0; k < trace[i].numbers.size(); ++k) {
      const double expected = trace[i].numbers[k];
      const double rounding = 1e-6 * condition * (100 + std::abs(expected));
      ASSERT_NEAR(expected, page[i].numbers[k], rounding) << "step " << i;
    }
  }
}

std::vector<test::Operation> Operations(const Metafile& metafile) {
  return test::Pdf(test::ConvertToPdf(metafile.Build())).Operations();
}

TEST(Playback, TracesTheMarksThatThePageHolds) {
  for (std::uint32_t seed = 0; seed < 3000; ++seed) {
    const Metafile metafile = RandomMetafile(seed).Make();
    SCOPED_TRACE(seed);
    ExpectAlike(StepsOf(Trace(metafile)), StepsOf(Operations(metafile)));
    if (HasFatalFailure()) return;
  }
}

TEST(Playback, BalancesSavesAndRestores) {
  for (std::uint32_t seed = 0; seed < 3000; ++seed) {
    int depth = 0;
    std::istringstream lines(Trace(RandomMetafile(seed).Make()));
    for (std::string line; std::getline(lines, line);) {
      depth += line == "save" ? 1 : 0;
      depth -= line == "restore" ? 1 : 0;
      ASSERT_GE(depth, 0) << "seed " << seed;
    }
    ASSERT_EQ(depth, 0) << "seed " << seed;
  }
}

// A program is started for each file, so fewer of them.
TEST(Playback, MakesDocumentsThatACheckerAccepts) {
  const test::TemporaryFolder folder;
  for (std::uint32_t seed = 0; seed < 40; ++seed) {
    const std::string path = folder / "page.pdf";
    test::WriteFile(path, test::ConvertToPdf(RandomMetafile(seed).Make().Build()));
    ASSERT_EQ(test::ComplaintsAbout(path), "") << "seed " << seed;
  }
}

}  // namespace
}  // namespace kelvane
