#include "frontends/conversion_options.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

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
  options.strict = true;
  for (const ConversionOption& option : ListedOptions()) {
    if (*option.standard == '\0') continue;  // the picture decides
    EXPECT_EQ(SetOption(options, option.name, option.standard), "");
  }
  EXPECT_EQ(options.format, before.format);
  EXPECT_EQ(options.page, before.page);
  EXPECT_EQ(options.size.scale, before.size.scale);
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
}

TEST(ConversionOptions, SayOfAFormatThatIsToComeThatItIsNotThereYet) {
  EXPECT_EQ(RefusalOf("format", "svg"), "format cannot be 'svg' yet: it is pdf");
  EXPECT_EQ(RefusalOf("format", "png"), "format cannot be 'png' yet: it is pdf");
  EXPECT_EQ(RefusalOf("format", "ps"), "format cannot be 'ps': it is pdf");
}

TEST(ConversionOptions, SayWhichThereAreWhenOneIsUnknown) {
  EXPECT_EQ(RefusalOf("dpi", "200"),
            "there is no option 'dpi': there are format, page, width, height, scale and strict");
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
  EXPECT_FALSE(options.strict);
}

INSTANTIATE_TEST_SUITE_P(, RefusedOption,
                         testing::Values(RefusedValue{"NoName", "", "1"},
                                         RefusedValue{"NoChoice", "page", ""},
                                         RefusedValue{"AnotherCase", "page", "Bounds"},
                                         RefusedValue{"TwoChoices", "page", "frame|bounds"},
                                         RefusedValue{"NoNumber", "width", ""},
                                         RefusedValue{"NumberAndMore", "width", "100pt"},
                                         RefusedValue{"BlankBeforeANumber", "width", " 100"},
                                         RefusedValue{"DecimalComma", "width", "99,5"},
                                         RefusedValue{"NotANumber", "width", "nan"},
                                         RefusedValue{"Infinity", "width", "inf"},
                                         RefusedValue{"BeyondDouble", "width", "1e999"},
                                         RefusedValue{"Negative", "width", "-100"},
                                         RefusedValue{"BelowTheLeast", "scale", "0.0009"},
                                         RefusedValue{"AboveTheMost", "scale", "1000.1"},
                                         RefusedValue{"NoAnswer", "strict", "true"}),
                         [](const auto& row) { return row.param.test; });

}  // namespace
}  // namespace kelvane
