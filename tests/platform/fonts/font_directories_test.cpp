// Fonts in directories of a user's, beside those that are installed.

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

#include "platform/fonts/font_registry.h"
#include "platform/fonts/fontconfig_catalog.h"
#include "support/files.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

/// A machine with one font, and a directory with others.
class FontDirectories : public testing::Test {
 protected:
  /// Puts a font there, below a folder of its own perhaps.
  void Add(const std::string& name, const std::string& file) const {
    const std::filesystem::path path = directory.Path() / name;
    std::filesystem::create_directories(path.parent_path());
    test::WriteFile(path, test::ReadFile(file));
    // The times that the system gives are too coarse to tell changes apart that follow at once.
    std::filesystem::last_write_time(path.parent_path(),
                                     std::filesystem::file_time_type::clock::now());
  }

  [[nodiscard]] std::vector<std::string> Directories() const { return {directory.Path()}; }

  FontRegistry Registry() {
    return {[this] { return OpenInstalledFonts(Directories()); }, [this] { return now; }};
  }

  test::OtherFonts installed{{test::kLiberationSans}};
  test::TemporaryFolder directory;
  std::chrono::steady_clock::time_point now;
};

const CGFontDescription& Description(const StyledFace& face) {
  return face.typeface->Font()->Description();
}

std::string PostScriptNameOf(FontRegistry& registry, FontID font, bool isBold = false) {
  return Description(registry.Style(font, isBold, false, AnyFont).Face()).postScriptName;
}

TEST_F(FontDirectories, HaveFontsThatAreNotInstalled) {
  Add("Junction.otf", test::kJunction);
  FontRegistry registry = Registry();
  EXPECT_EQ(PostScriptNameOf(registry, registry.FindByFamily("Junction")), "Junction");
  EXPECT_EQ(PostScriptNameOf(registry, registry.FindByFamily("Liberation Sans")), "LiberationSans");
}

TEST_F(FontDirectories, HaveFontsInTheFoldersBelow) {
  Add("more/of/them/Junction.otf", test::kJunction);
  FontRegistry registry = Registry();
  EXPECT_NE(registry.FindByFullName("Junction"), kNoFont);
}

TEST_F(FontDirectories, LeaveTheFontsOfTheProcessAsTheyWere) {
  Add("Junction.otf", test::kJunction);
  Registry().FindByFamily("Junction");
  EXPECT_EQ(FontRegistry().FindByFamily("Junction"), kNoFont);
  const FcFontSet* const added = FcConfigGetFonts(nullptr, FcSetApplication);
  EXPECT_TRUE(added == nullptr || added->nfont == 0);
}

TEST_F(FontDirectories, ComeBeforeTheInstalledFontsOfTheSameFamilyAndStyle) {
  test::WriteFile(directory / "z.ttf", test::WithLicence(test::kLiberationSans, 4));
  FontRegistry registry = Registry();
  const FontStyle& style =
      registry.Style(registry.FindByFamily("Liberation Sans"), false, false, AnyFont);
  EXPECT_EQ(Description(style.Face()).licence, 4U);
}

TEST_F(FontDirectories, HaveTheFacesThatArePreferred) {
  Add("below/Regular.ttf", test::kLiberationSans);
  for (const InstalledFace& face :
       OpenInstalledFonts(Directories())->FacesOfFamily("Liberation Sans")) {
    EXPECT_EQ(face.isPreferred, face.path == directory / "below/Regular.ttf") << face.path;
  }
}

TEST_F(FontDirectories, LeaveAStyleThatTheyLackToTheInstalledFonts) {
  installed.Add("Bold.ttf", test::ReadFile(test::kLiberationSansBold));
  Add("Regular.ttf", test::kLiberationSans);
  FontRegistry registry = Registry();
  EXPECT_EQ(PostScriptNameOf(registry, registry.FindByFamily("Liberation Sans"), true),
            "LiberationSans-Bold");
}

TEST_F(FontDirectories, HaveStandInsForTheInstalledFonts) {
  Add("DejaVuSans.ttf", test::kDejaVuSans);
  FontRegistry registry = Registry();
  const FontStyle& style =
      registry.Style(registry.FindByFamily("Liberation Sans"), false, false, AnyFont);
  const auto standIn = style.StandIn(U'\u2654');  // a chess king
  ASSERT_TRUE(standIn);
  EXPECT_EQ(Description(*standIn).postScriptName, "DejaVuSans");
}

TEST_F(FontDirectories, ComeFirstAmongStandInsOfTheSameFamilyAndStyle) {
  installed.Add("a.ttf", test::ReadFile(test::kDejaVuSans));
  test::WriteFile(directory / "z.ttf", test::WithLicence(test::kDejaVuSans, 4));
  FontRegistry registry = Registry();
  const FontStyle& style =
      registry.Style(registry.FindByFamily("Liberation Sans"), false, false, AnyFont);
  const auto standIn = style.StandIn(U'\u2654');
  ASSERT_TRUE(standIn);
  EXPECT_EQ(Description(*standIn).licence, 4U);
}

TEST_F(FontDirectories, AreSeenToChange) {
  std::filesystem::create_directory(directory / "below");
  FontRegistry registry = Registry();
  EXPECT_EQ(registry.FindByFamily("Junction"), kNoFont);
  Add("below/Junction.otf", test::kJunction);
  now += FontRegistry::kCheckInterval;
  EXPECT_NE(registry.FindByFamily("Junction"), kNoFont);
}

TEST_F(FontDirectories, HaveNoFontsWhenTheyAreGone) {
  const FontRegistry::CatalogOpener open = [this] { return OpenInstalledFonts({directory / "x"}); };
  FontRegistry registry(open);
  EXPECT_EQ(PostScriptNameOf(registry, registry.FindByFamily("Liberation Sans")), "LiberationSans");
}

}  // namespace
}  // namespace kelvane
