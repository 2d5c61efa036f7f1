#include <algorithm>
#include <cctype>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "classic/text/text_records.h"
#include "support/corpus.h"
#include "support/files.h"
#include "support/playback.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

/// The letters and digits of ASCII, which every font of the tests has.
using Letters = std::set<char>;

template <class Text>
void AddLetters(const Text& text, Letters& letters) {
  for (const auto unit : text) {
    if (unit >= 0 && unit < 0x80 && std::isalnum(static_cast<int>(unit)) != 0) {
      letters.insert(static_cast<char>(unit));
    }
  }
}

/// What stands between `wanted` and `found`.
std::string Missing(const Letters& wanted, const Letters& found) {
  std::string missing;
  std::set_difference(wanted.begin(), wanted.end(), found.begin(), found.end(),
                      std::back_inserter(missing));
  return missing;
}

Letters LettersOfTheRecords(ParsedMetafile& metafile) {
  Letters letters;
  for (const auto& record : metafile->records) {
    const auto* const text = dynamic_cast<const ExtTextOutRecord<std::uint16_t>*>(record.get());
    if (text != nullptr) AddLetters(text->text, letters);
  }
  return letters;
}

/// The last numbers of a line.
std::vector<double> NumbersAfter(const std::string& line, std::string_view word) {
  std::istringstream words(line.substr(line.find(word) + word.size()));
  return {std::istream_iterator<double>(words), {}};
}

/// The letters that a trace marks.
Letters LettersOfTheTrace(const std::string& trace) {
  std::istringstream lines(trace);
  Letters letters;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t start = line.find('"') + 1;
    if (line.starts_with("text ")) {
      AddLetters(line.substr(start, line.find('"', start) - start), letters);
    }
  }
  return letters;
}

/// Those of single units that start well inside the page: readers leave out what lies beyond its
/// edge.
Letters LettersOnThePage(const std::string& trace) {
  constexpr std::string_view kSingleUnit = "text \"?\" ";
  constexpr double kEdge = 20;
  std::istringstream lines(trace);
  Letters letters;
  std::vector<double> page;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("page ")) page = NumbersAfter(line, "page");
    if (!line.starts_with("text ") || line[kSingleUnit.size() - 2] != '"') continue;
    const std::vector<double> matrix = NumbersAfter(line, " under");
    const double x = matrix[4] - page[0];
    const double y = matrix[5] - page[1];
    if (x > kEdge && x < page[2] - kEdge && y > kEdge && y < page[3] - kEdge) {
      AddLetters(line.substr(kSingleUnit.find('?'), 1), letters);
    }
  }
  return letters;
}

class RealText : public testing::TestWithParam<std::string> {};

TEST_P(RealText, IsDrawnToTheLastLetter) {
  ParsedMetafile metafile(CorpusBytes("real", GetParam()));
  const Letters wanted = LettersOfTheRecords(metafile);
  EXPECT_EQ(Missing(wanted, LettersOfTheTrace(FullTrace(metafile))), "");
}

TEST_P(RealText, IsFoundByAReader) {
  const std::vector<unsigned char> bytes = CorpusBytes("real", GetParam());
  ParsedMetafile metafile(bytes);
  const Letters wanted = LettersOnThePage(FullTrace(metafile));
  if (wanted.empty()) return;
  const TemporaryFolder folder;
  WriteFile(folder / "page.pdf", ConvertToPdf(bytes));
  Letters found;
  AddLetters(test::Run({"pdftotext", folder / "page.pdf", "-"}).output, found);
  EXPECT_EQ(Missing(wanted, found), "");
}

INSTANTIATE_TEST_SUITE_P(Corpus, RealText, testing::ValuesIn(CorpusNames("real")), CorpusTestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealText);

}  // namespace
}  // namespace kelvane::test
