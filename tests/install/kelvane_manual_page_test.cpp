#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/install.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using Words = std::set<std::string>;

/// All that a pattern matches in a text.
Words MatchesOf(const std::string& text, const char* pattern) {
  const std::regex regex(pattern);
  const std::sregex_token_iterator first(text.begin(), text.end(), regex);
  return {first, std::sregex_token_iterator()};
}

class KelvaneManualPage : public testing::Test {
 protected:
  [[nodiscard]] std::string Path() const { return tree_ / "share/man/man1/kelvane.1"; }

  /// The page as plain text, with the dashes of options as they are typed.
  [[nodiscard]] std::string Text() const {
    const std::string page = std::regex_replace(ReadFile(Path()), std::regex(R"(\\-)"), "-");
    return std::regex_replace(page, std::regex(R"(\\f[BIR])"), "");
  }

 private:
  InstalledTree tree_;
};

std::string Help() {
  return test::Run({KelvanePath(), "--help"}).output;
}

TEST_F(KelvaneManualPage, GivesACheckerNothingToComplainOf) {
  const ProcessResult result = test::Run({"mandoc", "-Tlint", Path()});
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(KelvaneManualPage, TellsTheVersion) {
  EXPECT_NE(Text().find("\"kelvane " + LibraryVersion() + "\""), std::string::npos);
}

TEST_F(KelvaneManualPage, TellsOfTheOptionsThatTheToolHas) {
  constexpr const char* kLongOption = "--[a-z]+(?:-[a-z]+)*";
  EXPECT_GT(MatchesOf(Help(), kLongOption).size(), 10U);
  EXPECT_EQ(MatchesOf(Text(), kLongOption), MatchesOf(Help(), kLongOption));
}

TEST_F(KelvaneManualPage, TellsWhatTheOptionsMayBe) {
  const std::string page = Text();
  const Words ranges = MatchesOf(Help(), R"([\d.]+\d\.\.\d+|\d+\.\.\d+)");
  EXPECT_EQ(ranges, (Words{"1..14400", "0.001..1000", "1..9600"}));
  for (const std::string& range : ranges) {
    const std::size_t dots = range.find("..");
    const std::string words = range.substr(0, dots) + " to " + range.substr(dots + 2);
    EXPECT_NE(page.find(words), std::string::npos) << words;
  }
  EXPECT_NE(page.find("frame|bounds"), std::string::npos);
}

TEST_F(KelvaneManualPage, TellsTheExitStatusesThatTheToolTells) {
  const std::string page = Text();
  const Words statuses = MatchesOf(Help(), R"(\n  \d  )");
  EXPECT_EQ(statuses.size(), 5U);
  for (const std::string& status : statuses) {
    EXPECT_NE(page.find("\n.B " + status.substr(3, 1) + "\n"), std::string::npos) << status;
  }
}

}  // namespace
}  // namespace kelvane::test
