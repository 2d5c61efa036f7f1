#include "frontends/conversion_options.h"

#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "support/files.h"

namespace kelvane {
namespace {

/// What the options are once one of them is set, which must be allowed.
ConversionOptions With(std::string_view name, std::string_view value) {
  ConversionOptions options;
  EXPECT_EQ(SetOption(options, name, value), "");
  return options;
}

std::string RefusalOf(std::string_view name, std::string_view value) {
  ConversionOptions options;
  return SetOption(options, name, value);
}

TEST(ConversionOptions, SetThePage) {
  EXPECT_EQ(With("page", "bounds").page, PageChoice::kBounds);
  EXPECT_EQ(With("page", "frame").page, PageChoice::kFrame);
}

TEST(ConversionOptions, SetTheSizeOfThePage) {
  EXPECT_EQ(With("width", "595.5").size.width, 595.5);
  EXPECT_EQ(With("height", "1e2").size.height, 100);
  EXPECT_EQ(With("scale", "0.25").size.scale, 0.25);
}

TEST(ConversionOptions, SetWhetherOmissionsAreFailures) {
  EXPECT_TRUE(With("strict", "yes").strict);
  EXPECT_FALSE(With("strict", "no").strict);
}

TEST(ConversionOptions, SetWhetherTextBecomesShapes) {
  EXPECT_TRUE(With("outline-text", "yes").outlinesText);
  EXPECT_FALSE(With("outline-text", "no").outlinesText);
}

TEST(ConversionOptions, SetWhichRecordsMakeThePicture) {
  EXPECT_EQ(ConversionOptions().emfPlus, EmfPlusChoice::kAuto);
  EXPECT_EQ(With("emfplus", "always").emfPlus, EmfPlusChoice::kAlways);
  EXPECT_EQ(With("emfplus", "never").emfPlus, EmfPlusChoice::kNever);
  EXPECT_EQ(With("emfplus", "auto").emfPlus, EmfPlusChoice::kAuto);
}

TEST(ConversionOptions, AddDirectoriesOfFontsByTheirWholePaths) {
  const test::TemporaryFolder folder;
  std::filesystem::create_directory(folder / "more");
  std::filesystem::create_directory_symlink("more", folder / "link");
  ConversionOptions options;
  EXPECT_EQ(SetOption(options, "font-dir", "."), "");
  EXPECT_EQ(SetOption(options, "font-dir", folder / "more"), "");
  EXPECT_EQ(SetOption(options, "font-dir", folder / "link/"), "");
  EXPECT_EQ(options.fontDirectories, (std::vector<std::string>{std::filesystem::current_path(),
                                                               folder / "more", folder / "more"}));
}

TEST(ConversionOptions, ReadTheMapOfFontsAtOnceAndTakeTheLast) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "first", "Arial = Junction\nTahoma = DejaVu Sans\n");
  test::WriteFile(folder / "last", "Arial = Liberation Sans\n");
  ConversionOptions options;
  EXPECT_EQ(SetOption(options, "font-map", folder / "first"), "");
  EXPECT_EQ(SetOption(options, "font-map", folder / "last"), "");
  std::filesystem::remove(folder / "last");
  EXPECT_EQ(options.fontMap.Find("Arial"), "Liberation Sans");
  EXPECT_EQ(options.fontMap.Find("Tahoma"), "");
}

TEST(ConversionOptions, KeepTheMapOfFontsWhenAnotherIsRefused) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "good", "Arial = Junction\n");
  test::WriteFile(folder / "bad", "Arial = DejaVu Sans\nTahoma\n");
  ConversionOptions options = With("font-map", folder / "good");
  EXPECT_EQ(SetOption(options, "font-map", folder / "bad"),
            "font-map cannot be '" + folder / "bad" + "': line 2 is not of the form asked = used");
  EXPECT_EQ(options.fontMap.Find("Arial"), "Junction");
}

TEST(ConversionOptions, TakeTheLeastAndTheMostOfANumber) {
  EXPECT_EQ(With("width", "1").size.width, 1);
  EXPECT_EQ(With("width", "14400").size.width, 14400);
}

TEST(ConversionOptions, StandAsTheListSaysBeforeAnyIsSet) {
  const ConversionOptions before;
  ConversionOptions options;
  options.format = "";
  options.page = PageChoice::kBounds;
  options.size.scale = 7;
  options.outlinesText = true;
  options.embedsFonts = false;
  options.emfPlus = EmfPlusChoice::kNever;
  options.dotsPerInch = 7;
  options.background.reset();
  options.strict = true;
  for (const ConversionOption& option : ListedOptions()) {
    if (*option.standard == '\0') continue;  // there is none, or the picture decides
    EXPECT_EQ(SetOption(options, option.name, option.standard), "");
  }
  EXPECT_EQ(options.format, before.format);
  EXPECT_EQ(options.page, before.page);
  EXPECT_EQ(options.size.scale, before.size.scale);
  EXPECT_EQ(options.outlinesText, before.outlinesText);
  EXPECT_EQ(options.embedsFonts, before.embedsFonts);
  EXPECT_EQ(options.emfPlus, before.emfPlus);
  EXPECT_EQ(options.dotsPerInch, before.dotsPerInch);
  EXPECT_EQ(options.background, before.background);
  EXPECT_EQ(options.strict, before.strict);
}

TEST(ConversionOptions, HaveANameOfTheirOwnAndHelpThatFitsOnALine) {
  std::set<std::string> names;
  for (const ConversionOption& option : ListedOptions()) {
    EXPECT_TRUE(names.insert(option.name).second) << option.name;
    EXPECT_LT(std::string(option.help).size(), 90U) << option.name;
    EXPECT_FALSE(std::string(option.help).empty()) << option.name;
  }
}

TEST(ConversionOptions, AreRefusedInWordsThatNameOptionValueAndWhatIsAllowed) {
  EXPECT_EQ(RefusalOf("page", "paper"), "page cannot be 'paper': it is frame or bounds");
  EXPECT_EQ(RefusalOf("width", "0"), "width cannot be '0': it is a number from 1 to 14400");
  EXPECT_EQ(RefusalOf("font-dir", "/nowhere"),
            "font-dir cannot be '/nowhere': it is a directory that exists");
  EXPECT_EQ(RefusalOf("font-map", "/nowhere"),
            "font-map cannot be '/nowhere': it cannot be read: No such file or directory");
}

TEST(ConversionOptions, SayWhichFormatsThereAre) {
  EXPECT_EQ(RefusalOf("format", "ps"), "format cannot be 'ps': it is pdf, svg or png");
}

TEST(ConversionOptions, SayWhichThereAreWhenOneIsUnknown) {
  EXPECT_EQ(RefusalOf("dots", "200"),
            "there is no option 'dots': there are format, page, width, height, scale, font-dir, "
            "font-map, outline-text, no-embed-fonts, emfplus, dpi, background and strict");
}

struct RefusedValue {
  const char* test;
  const char* name;
  const char* value;
};

class RefusedOption : public testing::TestWithParam<RefusedValue> {};

TEST_P(RefusedOption, LeavesTheOptionsAsTheyWere) {
  ConversionOptions options;
  EXPECT_NE(SetOption(options, GetParam().name, GetParam().value), "");
  EXPECT_EQ(options.page, PageChoice::kFrame);
  EXPECT_EQ(options.size.width, std::nullopt);
  EXPECT_EQ(options.size.scale, 1);
  EXPECT_TRUE(options.fontDirectories.empty());
  EXPECT_FALSE(options.outlinesText);
  EXPECT_FALSE(options.strict);
}

INSTANTIATE_TEST_SUITE_P(
    , RefusedOption,
    testing::Values(
        RefusedValue{"NoName", "", "1"}, RefusedValue{"NoChoice", "page", ""},
        RefusedValue{"AnotherCase", "page", "Bounds"},
        RefusedValue{"TwoChoices", "page", "frame|bounds"}, RefusedValue{"NoNumber", "width", ""},
        RefusedValue{"NumberAndMore", "width", "100pt"},
        RefusedValue{"BlankBeforeANumber", "width", " 100"},
        RefusedValue{"DecimalComma", "width", "99,5"}, RefusedValue{"NotANumber", "width", "nan"},
        RefusedValue{"Infinity", "width", "inf"}, RefusedValue{"BeyondDouble", "width", "1e999"},
        RefusedValue{"Negative", "width", "-100"}, RefusedValue{"BelowTheLeast", "scale", "0.0009"},
        RefusedValue{"AboveTheMost", "scale", "1000.1"},
        RefusedValue{"NoDirectory", "font-dir", ""}, RefusedValue{"AFile", "font-dir", "/dev/null"},
        RefusedValue{"NoAnswerOnText", "outline-text", "maybe"},
        RefusedValue{"NoHalf", "emfplus", "yes"}, RefusedValue{"NoAnswer", "strict", "true"}),
    [](const auto& row) { return row.param.test; });

}  // namespace
}  // namespace kelvane
