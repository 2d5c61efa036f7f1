// What bash offers when a command line is completed.

#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kelvane/kelvane.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using Offers = std::set<std::string>;

class KelvaneCompletion : public KelvaneTool {
 protected:
  /// What is offered for the last word, bash having split the line into these.
  [[nodiscard]] Offers OffersFor(const std::vector<std::string>& words) const {
    std::vector<std::string> command = {
        "env",
        "-C",
        folder_.Path(),
        "bash",
        "--norc",
        "-c",
        R"(source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _kelvane
           [ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\n' "${COMPREPLY[@]}")",
        SourcePath("src/frontends/kelvane/completion.bash")};
    command.insert(command.end(), words.begin(), words.end());
    std::istringstream lines(test::Run(command).output);
    Offers offers;
    for (std::string line; std::getline(lines, line);)
      offers.insert(line);
    return offers;
  }
};

TEST_F(KelvaneCompletion, OffersEveryOptionThatTheToolHas) {
  Offers inHelp;
  std::istringstream words(Run({"--help"}).output);
  for (std::string word; words >> word;) {
    const std::size_t at = word.find("--");
    if (at == 0 || (at == 3 && word[0] == '-')) inHelp.insert(word.substr(at));
  }
  EXPECT_GT(inHelp.size(), 10U);
  EXPECT_EQ(OffersFor({"kelvane", "--"}), inHelp);
}

/// The values of an option as the library lists them.
Offers ChoicesOf(const std::string& option) {
  Offers choices;
  for (std::size_t i = 0; kelvane_option_name(i) != nullptr; ++i) {
    if (option != kelvane_option_name(i)) continue;
    std::istringstream values(kelvane_option_values(i));
    for (std::string value; std::getline(values, value, '|');)
      choices.insert(value);
  }
  return choices;
}

TEST_F(KelvaneCompletion, OffersTheValuesThatTheLibraryTakes) {
  EXPECT_EQ(OffersFor({"kelvane", "--page", ""}), ChoicesOf("page"));
  EXPECT_EQ(OffersFor({"kelvane", "--page", "=", "b"}), Offers{"bounds"});
  EXPECT_EQ(OffersFor({"kelvane", "--page", "="}), ChoicesOf("page"));
  EXPECT_EQ(OffersFor({"kelvane", "--format", ""}), ChoicesOf("format"));
  EXPECT_EQ(OffersFor({"kelvane", "-f", ""}), ChoicesOf("format"));
}

TEST_F(KelvaneCompletion, OffersMetafilesAndFolders) {
  std::filesystem::create_directory(folder_ / "folder");
  for (const char* const name : {"a.emf", "my plan.EMF", "a.pdf", "text"})
    Write(name, {});
  EXPECT_EQ(OffersFor({"kelvane", "a.emf", ""}), (Offers{"a.emf", "folder", "my plan.EMF"}));
  EXPECT_EQ(OffersFor({"kelvane", "info", "a"}), Offers{"a.emf"});
  EXPECT_EQ(OffersFor({"kelvane", "--strict", "my"}), Offers{"my plan.EMF"});
}

TEST_F(KelvaneCompletion, OffersTheOtherCommandsOnlyFirst) {
  EXPECT_EQ(OffersFor({"kelvane", ""}), (Offers{"dump", "info"}));
  EXPECT_EQ(OffersFor({"kelvane", "a.emf", ""}), Offers{});
}

TEST_F(KelvaneCompletion, OffersFoldersForADirectoryAndFilesForAnOutput) {
  std::filesystem::create_directory(folder_ / "folder");
  Write("file", {});
  EXPECT_EQ(OffersFor({"kelvane", "-d", "f"}), Offers{"folder"});
  EXPECT_EQ(OffersFor({"kelvane", "--font-dir", "f"}), Offers{"folder"});
  EXPECT_EQ(OffersFor({"kelvane", "-o", "f"}), (Offers{"file", "folder"}));
  EXPECT_EQ(OffersFor({"kelvane", "--font-map", "f"}), (Offers{"file", "folder"}));
}

TEST_F(KelvaneCompletion, OffersNothingForANumber) {
  Write("a.emf", {});
  EXPECT_EQ(OffersFor({"kelvane", "--width", ""}), Offers{});
}

TEST_F(KelvaneCompletion, IsForTheTool) {
  EXPECT_EQ(test::Run({"bash", "--norc", "-c", "source \"$0\"; complete -p kelvane",
                       SourcePath("src/frontends/kelvane/completion.bash")})
                .output,
            "complete -F _kelvane kelvane\n");
}

}  // namespace
}  // namespace kelvane::test
