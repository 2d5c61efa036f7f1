#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kelvane/kelvane.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/pdf.h"

namespace kelvane::test {
namespace {

using Words = std::vector<std::string>;

class KelvaneCommandLine : public KelvaneTool {
 protected:
  void SetUp() override { Write("a.emf", FileOfALine()); }

  [[nodiscard]] std::string PageWith(const Words& options) const {
    Words words = options;
    words.insert(words.end(), {"-o", "page.pdf", "a.emf"});
    const ToolResult result = Run(words);
    EXPECT_EQ(result.status, 0) << result.errors;
    return Pdf(Read("page.pdf")).MediaBox();
  }
};

TEST_F(KelvaneCommandLine, TellsItsUsage) {
  const ToolResult result = Run({"--help"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  EXPECT_NE(result.output.find("Usage: kelvane [OPTIONS] FILE..."), std::string::npos);
}

TEST_F(KelvaneCommandLine, TellsOfEveryOptionOfTheLibrary) {
  const std::string help = Run({"--help"}).output;
  for (std::size_t i = 0; kelvane_option_name(i) != nullptr; ++i) {
    EXPECT_NE(help.find(std::string("--") + kelvane_option_name(i)), std::string::npos)
        << kelvane_option_name(i);
    EXPECT_NE(help.find(kelvane_option_help(i)), std::string::npos) << kelvane_option_name(i);
  }
}

TEST_F(KelvaneCommandLine, TellsItsVersion) {
  const ToolResult result = Run({"--version"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output.substr(0, 8), "kelvane ");
}

TEST_F(KelvaneCommandLine, ChoosesThePage) {
  EXPECT_EQ(PageWith({"--page", "bounds"}), "[ 0 0 100 100 ]");
  EXPECT_NE(PageWith({"--page=frame"}), "[ 0 0 100 100 ]");
}

TEST_F(KelvaneCommandLine, ChoosesTheSizeOfThePage) {
  EXPECT_EQ(PageWith({"--page", "bounds", "--scale", "0.5"}), "[ 0 0 50 50 ]");
  EXPECT_EQ(PageWith({"--width", "30"}), "[ 0 0 30 30 ]");
  EXPECT_EQ(PageWith({"--width", "30", "--height", "70.5"}), "[ 0 0 30 70.5 ]");
}

TEST_F(KelvaneCommandLine, TakesTheLastOfAnOptionThatIsGivenTwice) {
  EXPECT_EQ(PageWith({"--width", "30", "--width", "40"}), "[ 0 0 40 40 ]");
}

TEST_F(KelvaneCommandLine, TakesSeveralDirectoriesOfFontsOneAtATime) {
  std::filesystem::create_directory(folder_ / "one");
  std::filesystem::create_directory(folder_ / "two");
  EXPECT_EQ(Run({"--font-dir", "one", "--font-dir", "two", "a.emf"}).status, 0);
  EXPECT_EQ(Names(), (Words{"a.emf", "a.pdf", "one", "two"}));
  EXPECT_EQ(Run({"--font-dir", "gone", "--font-dir", "two", "a.emf"}).status, 1);
}

TEST_F(KelvaneCommandLine, TakesAMapOfFonts) {
  WriteFile(folder_ / "fonts.txt", "Arial = Liberation Sans\n");
  EXPECT_EQ(Run({"--font-map", "fonts.txt", "a.emf"}).status, 0);
}

TEST_F(KelvaneCommandLine, TakesTheWishForOutlinesWithoutAValue) {
  EXPECT_EQ(Run({"--outline-text", "a.emf"}).status, 0);
  EXPECT_EQ(Names(), (Words{"a.emf", "a.pdf"}));
}

TEST_F(KelvaneCommandLine, TakesAFormatThatIsThere) {
  EXPECT_EQ(Run({"-f", "pdf", "a.emf"}).status, 0);
  EXPECT_EQ(Names(), (Words{"a.emf", "a.pdf"}));
}

TEST_F(KelvaneCommandLine, TakesTheFormatFromTheNameOfTheOutput) {
  EXPECT_EQ(Run({"-o", "figure.svg", "a.emf"}).status, 0);
  EXPECT_EQ(Read("figure.svg").substr(0, 5), "<?xml");
}

TEST_F(KelvaneCommandLine, NamesDocumentsForTheirFormat) {
  EXPECT_EQ(Run({"-f", "svg", "--no-embed-fonts", "a.emf"}).status, 0);
  EXPECT_EQ(Names(), (Words{"a.emf", "a.svg"}));
}

TEST_F(KelvaneCommandLine, PutsTheFormatThatIsAskedForBeforeTheNames) {
  EXPECT_EQ(Run({"-f", "pdf", "-o", "a.svg", "a.emf"}).status, 0);
  EXPECT_EQ(Read("a.svg").substr(0, 5), "%PDF-");
}

TEST_F(KelvaneCommandLine, TakesFilesThatLookLikeOptionsAfterTwoDashes) {
  Write("-o.emf", FileOfALine());
  EXPECT_EQ(Run({"--", "-o.emf"}).status, 0);
  EXPECT_EQ(Names(), (Words{"-o.emf", "-o.pdf", "a.emf"}));
}

struct Refusal {
  const char* test;
  Words words;
  const char* message;  // its first line
};

class KelvaneRefusal : public KelvaneTool, public testing::WithParamInterface<Refusal> {};

TEST_P(KelvaneRefusal, SaysWhyAndDoesNothing) {
  Write("a.emf", FileOfALine());
  Write("b.emf", FileOfALine());
  const ToolResult result = Run(GetParam().words);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors.substr(0, result.errors.find('\n')), GetParam().message);
  EXPECT_EQ(Names(), (Words{"a.emf", "b.emf"}));
}

INSTANTIATE_TEST_SUITE_P(
    , KelvaneRefusal,
    testing::Values(
        Refusal{"NoFiles", {}, "kelvane: FILE is required"},
        Refusal{"UnknownOption",
                {"--dots", "a.emf"},
                "kelvane: The following argument was not expected: --dots"},
        Refusal{"UnknownPage",
                {"--page", "paper", "a.emf"},
                "kelvane: page cannot be 'paper': it is frame or bounds"},
        Refusal{"WidthOfNothing",
                {"--width", "0", "a.emf"},
                "kelvane: width cannot be '0': it is a number from 1 to 14400"},
        Refusal{"NegativeScale",
                {"--scale", "-1", "a.emf"},
                "kelvane: scale cannot be '-1': it is a number from 0.001 to 1000"},
        Refusal{"DirectoryOfFontsThatIsNotThere",
                {"--font-dir", "gone", "a.emf"},
                "kelvane: font-dir cannot be 'gone': it is a directory that exists"},
        Refusal{"MapOfFontsThatIsNone",
                {"--font-map", "a.emf", "a.emf"},
                "kelvane: font-map cannot be 'a.emf': line 1 is not UTF-8"},
        Refusal{"UnknownFormat",
                {"-f", "ps", "a.emf"},
                "kelvane: format cannot be 'ps': it is pdf, svg or png"},
        Refusal{"NoJobs", {"-j", "0", "a.emf"}, "kelvane: --jobs: Value 0 not in range 1 to 256"},
        Refusal{"OneOutputOfTwo",
                {"-o", "x.pdf", "a.emf", "b.emf"},
                "kelvane: -o takes the document of one file; use -d"},
        Refusal{"OutputAndFolder",
                {"-o", "x.pdf", "-d", "out", "a.emf"},
                "kelvane: --output excludes --directory"},
        Refusal{"InputWithoutAName", {"-"}, "kelvane: standard input needs -o FILE or -o -"},
        Refusal{"BothToStandardOutput",
                {"-o", "-", "--report", "-", "a.emf"},
                "kelvane: the document and the report cannot both go to standard output"}),
    [](const auto& row) { return row.param.test; });

}  // namespace
}  // namespace kelvane::test
