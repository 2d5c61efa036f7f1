#include "frontends/font_map_file.h"

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "support/files.h"

namespace kelvane {
namespace {

constexpr std::size_t kMebibyte = std::size_t{1024} * 1024;

/// @return what is said of a text that is refused; empty when it is not.
std::string ComplaintAbout(std::string_view text) {
  try {
    ParseFontMap(text);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return {};
}

std::string ComplaintAboutFile(const std::string& path) {
  try {
    ReadFontMap(path);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return {};
}

TEST(FontMapFile, HasAWishALine) {
  const FontMap map = ParseFontMap("Arial = Liberation Sans\nCourier New=DejaVu Sans Mono");
  EXPECT_EQ(map.Find("Arial"), "Liberation Sans");
  EXPECT_EQ(map.Find("Courier New"), "DejaVu Sans Mono");
  EXPECT_EQ(map.Find("Times"), "");
}

TEST(FontMapFile, MayHaveBlanksAroundNames) {
  EXPECT_EQ(ParseFontMap(" \tArial\t =  Liberation Sans \t\n").Find("Arial"), "Liberation Sans");
}

TEST(FontMapFile, MayComeFromWindows) {
  const FontMap map = ParseFontMap(
      "\xEF\xBB\xBF"
      "Arial = Liberation Sans\r\n\r\nTahoma = DejaVu Sans\r\n");
  EXPECT_EQ(map.Find("Arial"), "Liberation Sans");
  EXPECT_EQ(map.Find("Tahoma"), "DejaVu Sans");
}

TEST(FontMapFile, MayHaveNamesInAnyScript) {
  EXPECT_EQ(ParseFontMap("\uFF2D\uFF33 \u660E\u671D = Noto Serif CJK JP")
                .Find("\uFF2D\uFF33 \u660E\u671D"),
            "Noto Serif CJK JP");
}

TEST(FontMapFile, MayHaveCommentsAndEmptyLines) {
  const FontMap map = ParseFontMap("# Arial = Junction\n\n   \n  # more\nArial = C# Sans # 1\n");
  EXPECT_EQ(map.Find("Arial"), "C# Sans # 1") << "names may have the sign, too";
}

TEST(FontMapFile, HasTheLastWordOnAName) {
  EXPECT_EQ(ParseFontMap("Arial = Junction\nArial = DejaVu Sans\n").Find("Arial"), "DejaVu Sans");
}

TEST(FontMapFile, MayBeEmpty) {
  EXPECT_EQ(ComplaintAbout(""), "");
  EXPECT_EQ(ComplaintAbout("\xEF\xBB\xBF"), "");
}

TEST(FontMapFile, IsRefusedByTheNumberOfALineThatIsNoWish) {
  EXPECT_EQ(ComplaintAbout("Arial = Junction\n# comment\nTahoma\n"),
            "line 3 is not of the form asked = used");
  EXPECT_EQ(ComplaintAbout("= Junction"), "line 1 is not of the form asked = used");
  EXPECT_EQ(ComplaintAbout("Arial ="), "line 1 is not of the form asked = used");
}

TEST(FontMapFile, IsRefusedByTheNumberOfALineThatIsNotUtf8) {
  EXPECT_EQ(ComplaintAbout("\n# caf\xE9"), "line 2 is not UTF-8");
}

TEST(FontMapFile, IsReadUpToAMebibyte) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "most", "Arial = Junction\n" + std::string(kMebibyte - 17, ' '));
  test::WriteFile(folder / "more", std::string(kMebibyte + 1, ' '));
  EXPECT_EQ(ReadFontMap(folder / "most").Find("Arial"), "Junction");
  EXPECT_EQ(ComplaintAboutFile(folder / "more"), "it has more than 1 MiB");
  EXPECT_EQ(ComplaintAboutFile("/dev/zero"), "it has more than 1 MiB");
}

TEST(FontMapFile, IsRefusedWhenItCannotBeRead) {
  const test::TemporaryFolder folder;
  EXPECT_EQ(ComplaintAboutFile(folder / "gone"), "it cannot be read: No such file or directory");
  EXPECT_EQ(ComplaintAboutFile(folder.Path()), "it cannot be read: Is a directory");
}

}  // namespace
}  // namespace kelvane
