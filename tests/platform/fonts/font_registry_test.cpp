#include "platform/fonts/font_registry.h"

#include <thread>

#include <gtest/gtest.h>

#include "platform/fonts/fontconfig_catalog.h"
#include "support/files.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

constexpr unsigned kRestricted = 2;

/// An output that cannot show every face.
bool OnlyUnrestricted(const CGFontDescription& face) {
  return face.licence != kRestricted;
}

bool OnlyDejaVu(const CGFontDescription& face) {
  return face.postScriptName.starts_with("DejaVu");
}

FontRegistry RegistryOf(const std::vector<std::string>& files) {
  return FontRegistry([files] { return OpenFontFiles(files); });
}

std::string NameOf(const StyledFace& face) {
  return face.typeface->Font()->Description().postScriptName;
}

/// The name of the face for a font in regular style, for an output that shows every face.
std::string NameOf(FontRegistry& registry, FontID font) {
  return NameOf(registry.Style(font, false, false, AnyFont).Face());
}

TEST(FontRegistry, HasTheStandardHelveticaWhenThereIsNoFont) {
  FontRegistry registry = RegistryOf({});
  EXPECT_EQ(registry.FindByFamily("Liberation Sans"), kNoFont);
  EXPECT_EQ(NameOf(registry, kDefaultFont), "Helvetica");
}

TEST(FontRegistry, FindsNoStandInWhenThereIsNoFont) {
  FontRegistry registry = RegistryOf({});
  EXPECT_FALSE(registry.Style(kDefaultFont, false, false, AnyFont).StandIn(U'\u6F22'));
}

TEST(FontRegistry, HasTheFontsOfTheCatalogueThatItIsGivenAlone) {
  FontRegistry registry = RegistryOf({test::kJunction, test::kMicroHei});
  EXPECT_NE(registry.FindByFamily("Junction"), kNoFont);
  EXPECT_NE(registry.FindByFullName("WenQuanYi Micro Hei Mono"), kNoFont);
  EXPECT_EQ(registry.FindByFamily("Liberation Sans"), kNoFont);
}

TEST(FontRegistry, OpensItsCatalogueWithTheFirstQuestion) {
  bool isOpen = false;
  FontRegistry registry([&isOpen] {
    isOpen = true;
    return OpenFontFiles({});
  });
  EXPECT_FALSE(isOpen);
  registry.FindByFamily("Arial");
  EXPECT_TRUE(isOpen);
}

TEST(FontRegistry, DoesNotOpenWhatIsNoFont) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "broken.ttf", test::ReadFile(test::kLiberationSans).substr(0, 5000));
  FontRegistry registry = RegistryOf({folder / "broken.ttf"});
  EXPECT_EQ(NameOf(registry, kDefaultFont), "Helvetica");
}

TEST(FontRegistry, ReplacesAFamilyThatTheOutputCannotShowByTheDefaultFont) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "restricted.ttf", test::WithLicence(test::kLiberationSans, kRestricted));
  FontRegistry registry = RegistryOf({folder / "restricted.ttf", test::kDejaVuSans});
  const FontID font = registry.FindByFamily("Liberation Sans");
  EXPECT_EQ(NameOf(registry.Style(font, false, false, OnlyUnrestricted).Face()), "DejaVuSans");
}

TEST(FontRegistry, ReplacesAFaceThatTheOutputCannotShowByTheClosestOfItsFamily) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "bold.ttf", test::WithLicence(test::kLiberationSansBold, kRestricted));
  FontRegistry registry = RegistryOf({folder / "bold.ttf", test::kLiberationSans});
  const FontID font = registry.FindByFamily("Liberation Sans");
  const StyledFace face = registry.Style(font, true, false, OnlyUnrestricted).Face();
  EXPECT_EQ(NameOf(face), "LiberationSans");
  EXPECT_TRUE(face.isEmboldened);
}

TEST(FontRegistry, ReplacesAFamilyThatTheOutputCannotShowByOneOfTheSameMetrics) {
  test::OtherFonts fonts({test::kDejaVuSans});
  fonts.Add("restricted.ttf", test::WithLicence(test::kLiberationSans, kRestricted));
  fonts.Add("Junction.otf", test::ReadFile(test::kJunction));
  fonts.Alias("Liberation Sans", "Junction");
  FontRegistry registry;
  const FontID font = registry.FindByFamily("Liberation Sans");
  EXPECT_EQ(NameOf(registry.Style(font, false, false, OnlyUnrestricted).Face()), "Junction");
}

TEST(FontRegistry, AsksForEachKindOfOutput) {
  FontRegistry registry = RegistryOf({test::kLiberationSans, test::kDejaVuSans});
  const FontID font = registry.FindByFamily("Liberation Sans");
  EXPECT_EQ(NameOf(registry.Style(font, false, false, OnlyDejaVu).Face()), "DejaVuSans");
  EXPECT_EQ(NameOf(registry.Style(font, false, false, AnyFont).Face()), "LiberationSans");
  EXPECT_EQ(NameOf(registry.Style(kDefaultFont, false, false, OnlyDejaVu).Face()), "DejaVuSans");
}

TEST(FontRegistry, PassesOverAStandInThatTheOutputCannotShow) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "restricted.ttf", test::WithLicence(test::kDejaVuSans, kRestricted));
  FontRegistry registry = RegistryOf({folder / "restricted.ttf", test::kLiberationSans});
  const FontID font = registry.FindByFamily("Liberation Sans");
  constexpr char32_t kAlef = U'\u05D0';
  EXPECT_FALSE(registry.Style(font, false, false, OnlyUnrestricted).StandIn(kAlef));
  EXPECT_TRUE(registry.Style(font, false, false, AnyFont).StandIn(kAlef));
}

TEST(FontRegistry, ThickensAStandInForBoldText) {
  FontRegistry registry;
  const auto face = registry.Style(kDefaultFont, true, false, AnyFont).StandIn(U'\u6F22');
  ASSERT_TRUE(face.has_value());
  EXPECT_TRUE(face->isEmboldened);
}

TEST(FontRegistry, FindsAStandInAgainAfterItForgotMany) {
  FontRegistry registry;
  const FontStyle& plain = registry.Style(kDefaultFont, false, false, AnyFont);
  const auto before = plain.StandIn(U'\u6F22');
  ASSERT_TRUE(before.has_value());
  for (const bool bold : {false, true}) {
    for (const bool italic : {false, true}) {
      const FontStyle& style = registry.Style(kDefaultFont, bold, italic, AnyFont);
      for (char32_t character = U'\u4E00'; character < U'\uD7A4'; ++character)
        static_cast<void>(style.StandIn(character));
    }
  }
  const auto after = plain.StandIn(U'\u6F22');
  ASSERT_TRUE(after.has_value());
  EXPECT_EQ(after->typeface, before->typeface);
}

TEST(FontRegistry, TellsWhatIsInstalledFromWhatHasAStandIn) {
  FontRegistry registry;
  EXPECT_NE(registry.FindByFamily("Arial"), kNoFont);
  EXPECT_EQ(registry.FindInstalled("Arial"), kNoFont);
  EXPECT_EQ(registry.FindInstalled("Liberation Sans"), registry.FindByFamily("Liberation Sans"));
  EXPECT_EQ(registry.FindInstalled(""), kNoFont);
}

TEST(FontRegistry, FindsWhatIsInstalledByItsFullName) {
  FontRegistry registry;
  const FontID bold = registry.FindInstalled("Liberation Sans Bold");
  EXPECT_EQ(NameOf(registry, bold), "LiberationSans-Bold");
}

TEST(FontRegistry, FindsWhatWasInstalledMeanwhile) {
  test::OtherFonts fonts({test::kDejaVuSans});
  std::chrono::steady_clock::time_point now;
  FontRegistry registry([] { return OpenInstalledFonts(); }, [&now] { return now; });
  EXPECT_EQ(registry.FindInstalled("Junction"), kNoFont);
  fonts.Add("Junction.otf", test::ReadFile(test::kJunction));
  now += FontRegistry::kCheckInterval;
  EXPECT_NE(registry.FindInstalled("Junction"), kNoFont);
}

TEST(FontRegistry, NamesTheFamilyOfAStyle) {
  FontRegistry registry;
  const FontID arial = registry.FindByFamily("Arial");
  EXPECT_EQ(registry.Style(arial, true, false, AnyFont).Family(), "Liberation Sans");
  FontRegistry empty = RegistryOf({});
  EXPECT_EQ(empty.Style(kDefaultFont, false, false, AnyFont).Family(), "Helvetica");
}

TEST(FontRegistry, GivesEqualNamesOneFont) {
  FontRegistry registry;
  EXPECT_EQ(registry.FindByFamily("Arial"), registry.FindByFullName("Liberation Sans"));
}

TEST(FontRegistry, KeepsAStyle) {
  FontRegistry registry;
  EXPECT_EQ(&registry.Style(kDefaultFont, true, false, AnyFont),
            &registry.Style(kDefaultFont, true, false, AnyFont));
}

/// A registry of the fonts that are installed, at a time that only the test moves on.
class AFontRegistryAfterAWhile : public testing::Test {
 protected:
  void LetTimePass() { now_ += FontRegistry::kCheckInterval; }

  test::OtherFonts fonts{{test::kLiberationSans}};
  FontRegistry registry{[] { return OpenInstalledFonts(); }, [this] { return now_; }};

 private:
  std::chrono::steady_clock::time_point now_;
};

TEST_F(AFontRegistryAfterAWhile, FindsAFontThatWasInstalled) {
  EXPECT_EQ(registry.FindByFamily("Junction"), kNoFont);
  fonts.Add("Junction.otf", test::ReadFile(test::kJunction));
  EXPECT_EQ(registry.FindByFamily("Junction"), kNoFont);
  LetTimePass();
  EXPECT_EQ(NameOf(registry, registry.FindByFamily("Junction")), "Junction");
}

TEST_F(AFontRegistryAfterAWhile, FindsAFontInAFolderThatIsNew) {
  EXPECT_EQ(registry.FindByFamily("Junction"), kNoFont);
  fonts.Add("new/Junction.otf", test::ReadFile(test::kJunction));
  LetTimePass();
  EXPECT_NE(registry.FindByFamily("Junction"), kNoFont);
}

TEST_F(AFontRegistryAfterAWhile, GoesByTheConfigurationThatIsThere) {
  EXPECT_EQ(registry.FindByFamily("Arial"), kNoFont);
  fonts.Alias("Arial", "Liberation Sans");
  LetTimePass();
  EXPECT_EQ(registry.FindByFamily("Arial"), registry.FindByFamily("Liberation Sans"));
}

TEST_F(AFontRegistryAfterAWhile, DoesNotFindAFontThatWasRemoved) {
  fonts.Add("Junction.otf", test::ReadFile(test::kJunction));
  const FontID font = registry.FindByFamily("Junction");
  const FontStyle& style = registry.Style(font, false, false, AnyFont);
  fonts.Remove("Junction.otf");
  LetTimePass();
  EXPECT_EQ(registry.FindByFamily("Junction"), kNoFont);
  EXPECT_EQ(NameOf(style.Face()), "Junction") << "what is in use stays";
}

TEST_F(AFontRegistryAfterAWhile, ReadsAFileAgainThatWasNotWholeYet) {
  const std::string font = test::ReadFile(test::kDejaVuSans);
  fonts.Add("DejaVuSans.ttf", font.substr(0, font.size() / 2));
  const FontStyle& before = registry.Style(kDefaultFont, false, false, AnyFont);
  EXPECT_FALSE(before.StandIn(U'\u05D0'));
  fonts.Remove("DejaVuSans.ttf");
  fonts.Add("DejaVuSans.ttf", font);
  LetTimePass();
  EXPECT_NE(registry.FindByFamily("DejaVu Sans"), kNoFont);
  EXPECT_TRUE(before.StandIn(U'\u05D0'));
}

TEST_F(AFontRegistryAfterAWhile, KeepsTheNumberOfAFont) {
  const FontID font = registry.FindByFamily("Liberation Sans");
  fonts.Add("Junction.otf", test::ReadFile(test::kJunction));
  LetTimePass();
  EXPECT_EQ(registry.FindByFamily("Liberation Sans"), font);
  EXPECT_EQ(NameOf(registry, font), "LiberationSans");
}

/// A catalogue without fonts that counts how often it is asked whether there are others by now.
class CountingCatalog final : public FontCatalog {
 public:
  explicit CountingCatalog(int& count) : count_(count) {}

  [[nodiscard]] std::vector<InstalledFace> FacesOfFamily(const std::string&) const override {
    return {};
  }
  [[nodiscard]] std::vector<InstalledFace> FacesOfFullName(const std::string&) const override {
    return {};
  }
  [[nodiscard]] std::vector<std::string> Equivalents(const std::string&) const override {
    return {};
  }
  [[nodiscard]] std::unique_ptr<const FaceSet> StandIns(const std::string&, int, int) override {
    return OpenFontFiles({})->StandIns("", kRegularWeight, kUpright);
  }
  [[nodiscard]] bool IsUpToDate() const override {
    ++count_;
    return true;
  }

 private:
  int& count_;
};

TEST(FontRegistry, LooksForOtherFontsOnceInAnInterval) {
  int count = 0;
  std::chrono::steady_clock::time_point now;
  FontRegistry registry([&count] { return std::make_unique<CountingCatalog>(count); },
                        [&now] { return now; });
  registry.FindByFamily("Arial");
  now += FontRegistry::kCheckInterval - std::chrono::milliseconds(1);
  registry.FindByFamily("Arial");
  EXPECT_EQ(count, 0);
  now += std::chrono::milliseconds(1);
  registry.FindByFamily("Arial");
  registry.FindByFullName("Helvetica");
  EXPECT_EQ(count, 1);
}

TEST(FontRegistry, AnswersManyThreadsAlike) {
  FontRegistry registry;
  std::vector<const FontStyle*> styles(8);
  std::vector<std::thread> threads;
  for (const FontStyle*& style : styles) {
    threads.emplace_back([&registry, &style] {
      style = &registry.Style(registry.FindByFamily("Arial"), true, false, AnyFont);
      static_cast<void>(style->StandIn(U'\u6F22'));
    });
  }
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(std::count(styles.begin(), styles.end(), styles.front()), 8);
}

}  // namespace
}  // namespace kelvane
