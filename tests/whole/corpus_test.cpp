#include "support/corpus.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include "support/converter.h"
#include "support/files.h"
#include "support/library.h"
#include "support/pdf.h"
#include "support/process.h"
#include "support/slowdown.h"

namespace kelvane::test {
namespace {

using Names = std::vector<std::string>;

/// A copy of a file of the corpus, converted.
class CorpusFile : public testing::TestWithParam<std::string> {
 protected:
  ProcessResult Convert(const std::string& kind) {
    WriteFile(folder_ / "copy.emf", CorpusBytes(kind, GetParam()));
    return RunConverter({folder_ / "copy.emf"});
  }

  TemporaryFolder folder_;
};

class RealFile : public CorpusFile {
 protected:
  void SetUp() override { result_ = Convert("real"); }

  [[nodiscard]] std::string Document() const { return folder_ / "copy.pdf"; }

  ProcessResult result_;
};

TEST_P(RealFile, IsConverted) {
  EXPECT_EQ(result_.output, kSuccess);
  EXPECT_EQ(result_.status, 0);
}

TEST_P(RealFile, MakesADocumentOfOnePageWithoutFault) {
  EXPECT_EQ(ComplaintsAbout(Document()), "");
  EXPECT_EQ(Pdf(ReadFile(Document())).PageCount(), 1U);
}

TEST_P(RealFile, RendersWithoutAComplaint) {
  const ProcessResult rendering =
      test::Run({"pdftoppm", "-r", "20", "-singlefile", Document(), folder_ / "page"});
  EXPECT_EQ(rendering.output, "");
  EXPECT_EQ(rendering.status, 0);
}

std::int32_t FieldAt(const std::vector<unsigned char>& bytes, std::size_t offset) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;)
    value = value << 8 | bytes.at(offset + i);
  return static_cast<std::int32_t>(value);
}

/// The corners that the metafile's bounds, the header's third field, give its page.
std::vector<double> CornersFromTheHeader(const std::vector<unsigned char>& metafile) {
  const double left = FieldAt(metafile, 8);
  const double top = FieldAt(metafile, 12);
  const double right = FieldAt(metafile, 16);
  const double bottom = FieldAt(metafile, 20);
  const double x = std::min(left, right);
  const double y = -bottom;
  return {x, y, x + std::abs(right - left), y + std::abs(bottom - top)};
}

TEST_P(RealFile, HasItsBoundsAsThePage) {
  std::vector<double> corners;
  const Pdf document(ReadFile(Document()));
  for (QPDFObjectHandle& corner : document.Page().getKey("/MediaBox").getArrayAsVector()) {
    corners.push_back(corner.getNumericValue());
  }
  EXPECT_EQ(corners, CornersFromTheHeader(CorpusBytes("real", GetParam())));
}

/// Follows the states that a content stream saves and restores.
class StateCounter : public QPDFObjectHandle::ParserCallbacks {
 public:
  void handleObject(QPDFObjectHandle object) override {
    if (!object.isOperator()) return;
    if (object.getOperatorValue() == "q") ++depth_;
    if (object.getOperatorValue() == "Q") --depth_;
    lowest_ = std::min(lowest_, depth_);
  }
  void handleEOF() override {}

  [[nodiscard]] bool IsBalanced() const { return depth_ == 0 && lowest_ == 0; }

 private:
  int depth_ = 0;
  int lowest_ = 0;
};

TEST_P(RealFile, RestoresEveryStateThatItSaves) {
  const Pdf document(ReadFile(Document()));
  StateCounter states;
  QPDFPageObjectHelper(document.Page()).parseContents(&states);
  EXPECT_TRUE(states.IsBalanced());
}

TEST_P(RealFile, HasThePageThatIsMadeInMemory) {
  const Conversion made = ConvertInMemory(CorpusBytes("real", GetParam()));
  ASSERT_EQ(made.status, 0);
  EXPECT_EQ(Pdf(ReadFile(Document())).Content(), Pdf(made.output).Content());
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealFile);
INSTANTIATE_TEST_SUITE_P(Corpus, RealFile, testing::ValuesIn(CorpusNames("real")), CorpusTestName);

class DamagedFile : public CorpusFile {};

TEST_P(DamagedFile, EndsPromptly) {
  const ProcessResult result = Convert("damaged");
  EXPECT_TRUE(result.status == 0 || result.status == kFailed) << result.status;
  EXPECT_LT(result.processorSeconds, 1 * kSlowdown);
}

TEST_P(DamagedFile, LeavesADocumentOnlyWhenItWasConverted) {
  Names expected = {"copy.emf"};
  if (Convert("damaged").status == 0) expected.emplace_back("copy.pdf");
  EXPECT_EQ(NamesIn(folder_), expected);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(DamagedFile);
INSTANTIATE_TEST_SUITE_P(Corpus, DamagedFile, testing::ValuesIn(CorpusNames("damaged")),
                         CorpusTestName);

/// All real files together.
class Corpus : public testing::Test {
 protected:
  void SetUp() override {
    if (names_.empty()) GTEST_SKIP() << "there is no corpus at " << CorpusFolder("real");
  }

  const Names names_ = CorpusNames("real");
};

TEST_F(Corpus, IsConvertedInTenSecondsOfProcessorTime) {
  const TemporaryFolder folder;
  double seconds = 0;
  for (const std::string& name : names_) {
    WriteFile(folder / name, CorpusBytes("real", name));
    seconds += RunConverter({folder / name}).processorSeconds;
  }
  RecordProperty("seconds", std::to_string(seconds));
  EXPECT_LT(seconds, 10 * kSlowdown);
}

TEST_F(Corpus, GivesTheSameBytesOnManyThreadsAtOnce) {
  constexpr std::size_t kThreads = 8;
  const auto convert = [&](std::vector<std::string>& made, std::size_t first, std::size_t step) {
    for (std::size_t i = first; i < names_.size(); i += step) {
      made[i] = ConvertInMemory(CorpusBytes("real", names_[i])).output;
    }
  };
  std::vector<std::string> together(names_.size());
  std::vector<std::string> alone(names_.size());
  {
    std::vector<std::jthread> threads;
    for (std::size_t first = 0; first < kThreads; ++first) {
      threads.emplace_back([&, first] { convert(together, first, kThreads); });
    }
  }
  convert(alone, 0, 1);
  for (std::size_t i = 0; i < names_.size(); ++i)
    EXPECT_TRUE(together[i] == alone[i]) << names_[i];
}

}  // namespace
}  // namespace kelvane::test
