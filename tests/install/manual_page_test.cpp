#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "support/converter.h"
#include "support/files.h"
#include "support/install.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

/// All that the first group of a pattern matches in a text.
std::set<std::string> Matches(const std::string& text, const std::regex& pattern) {
  const std::sregex_token_iterator first(text.begin(), text.end(), pattern, 1);
  return {first, std::sregex_token_iterator()};
}

class ManualPage : public testing::Test {
 protected:
  [[nodiscard]] std::string Path() const { return tree_ / "share/man/man1/kelvaneConverter.1"; }
  [[nodiscard]] std::string Source() const { return ReadFile(Path()); }
  [[nodiscard]] bool HasLine(std::string_view line) const {
    return Source().find("\n" + std::string(line) + "\n") != std::string::npos;
  }

 private:
  InstalledTree tree_;
};

TEST_F(ManualPage, GivesACheckerNothingToComplainOf) {
  const ProcessResult result = test::Run({"mandoc", "-Tlint", Path()});
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(ManualPage, TellsTheVersion) {
  EXPECT_NE(Source().find("\"kelvane " + LibraryVersion() + "\""), std::string::npos);
}

TEST_F(ManualPage, TellsTheUsageThatTheToolPrints) {
  const std::string argument = RunConverter({}).output.substr(sizeof "Usage: kelvaneConverter");
  EXPECT_TRUE(HasLine(".I " + argument.substr(0, argument.find(' ')))) << argument;
}

TEST_F(ManualPage, TellsTheMessagesOfTheTool) {
  EXPECT_TRUE(HasLine(kSuccess));
  EXPECT_TRUE(HasLine(kFailure));
}

TEST_F(ManualPage, TellsTheExitStatusesOfTheTool) {
  const std::set<std::string> statuses{
      std::to_string(RunConverter({}).status),
      std::to_string(RunConverter({"/there/is/no.emf"}).status),
      "0",
  };
  EXPECT_EQ(Matches(Source(), std::regex(R"(\.TP\n\.B (\d+)\n)")), statuses);
}

TEST_F(ManualPage, GivesExamplesOfNamesThatTheToolFollows) {
  const std::regex becomes(R"(\.I (\S+)\nbecomes\n\.IR? (\S+))");
  const std::string source = Source();
  const std::sregex_iterator first(source.begin(), source.end(), becomes);
  const std::ptrdiff_t examples = std::distance(first, std::sregex_iterator());
  EXPECT_EQ(examples, 3);
  for (std::sregex_iterator i = first; i != std::sregex_iterator(); ++i) {
    const TemporaryFolder folder;
    WriteFile(folder / i->str(1), ReadFile(SourcePath("samples/shapes.emf")));
    RunConverterIn(folder, i->str(1));
    EXPECT_EQ(ReadFile(folder / i->str(2)).substr(0, 5), "%PDF-");
  }
}

}  // namespace
}  // namespace kelvane::test
