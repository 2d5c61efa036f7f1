#include "platform/fonts/font_registry.h"

#include <thread>

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

constexpr unsigned kRestricted = 2;
constexpr unsigned kPreviewAndPrint = 4;
constexpr unsigned kNoSubsetting = 0x100;

std::string NameOf(const StyledFace& face) {
  return face.typeface->Font()->Description().postScriptName;
}

TEST(FontRegistry, HasTheStandardHelveticaWhenThereIsNoFont) {
  const test::OtherFonts none({});
  FontRegistry registry;
  EXPECT_EQ(registry.FindByFamily("Liberation Sans"), kNoFont);
  EXPECT_EQ(NameOf(registry.Style(kDefaultFont, false, false).Face()), "Helvetica");
}

TEST(FontRegistry, FindsNoStandInWhenThereIsNoFont) {
  const test::OtherFonts none({});
  FontRegistry registry;
  EXPECT_FALSE(registry.StandIn(registry.Style(kDefaultFont, false, false), U'\u6F22'));
}

TEST(FontRegistry, DoesNotOpenWhatIsNoFont) {
  test::OtherFonts fonts({});
  fonts.Add("broken.ttf", test::ReadFile(test::kLiberationSans).substr(0, 5000));
  FontRegistry registry;
  EXPECT_EQ(NameOf(registry.Style(kDefaultFont, false, false).Face()), "Helvetica");
}

TEST(FontRegistry, PassesOverAFaceThatMayNotBeEmbedded) {
  test::OtherFonts fonts({test::kDejaVuSans});
  fonts.Add("restricted.ttf", test::WithLicence(test::kLiberationSans, kRestricted));
  FontRegistry registry;
  EXPECT_EQ(registry.FindByFamily("Liberation Sans"), kNoFont);
  EXPECT_EQ(NameOf(registry.Style(kDefaultFont, false, false).Face()), "DejaVuSans");
}

TEST(FontRegistry, PassesOverAFaceThatMayNotBeCutDown) {
  test::OtherFonts fonts({});
  fonts.Add("whole.ttf", test::WithLicence(test::kLiberationSans, kNoSubsetting));
  FontRegistry registry;
  EXPECT_EQ(registry.FindByFamily("Liberation Sans"), kNoFont);
}

TEST(FontRegistry, TakesTheMostLenientLicence) {
  test::OtherFonts fonts({});
  fonts.Add("print.ttf", test::WithLicence(test::kLiberationSans, kRestricted | kPreviewAndPrint));
  FontRegistry registry;
  EXPECT_NE(registry.FindByFamily("Liberation Sans"), kNoFont);
}

TEST(FontRegistry, PassesOverAStandInThatMayNotBeEmbedded) {
  test::OtherFonts fonts({test::kLiberationSans});
  fonts.Add("restricted.ttf", test::WithLicence(test::kDejaVuSans, kRestricted));
  FontRegistry registry;
  EXPECT_FALSE(registry.StandIn(registry.Style(kDefaultFont, false, false), U'\u05D0'));
}

TEST(FontRegistry, ThickensAStandInForBoldText) {
  FontRegistry registry;
  const auto face = registry.StandIn(registry.Style(kDefaultFont, true, false), U'\u6F22');
  ASSERT_TRUE(face.has_value());
  EXPECT_TRUE(face->isEmboldened);
}

TEST(FontRegistry, FindsAStandInAgainAfterItForgotMany) {
  FontRegistry registry;
  const FontStyle& plain = registry.Style(kDefaultFont, false, false);
  const auto before = registry.StandIn(plain, U'\u6F22');
  ASSERT_TRUE(before.has_value());
  for (const bool bold : {false, true}) {
    for (const bool italic : {false, true}) {
      const FontStyle& style = registry.Style(kDefaultFont, bold, italic);
      for (char32_t character = U'\u4E00'; character < U'\uD7A4'; ++character)
        registry.StandIn(style, character);
    }
  }
  const auto after = registry.StandIn(plain, U'\u6F22');
  ASSERT_TRUE(after.has_value());
  EXPECT_EQ(after->typeface, before->typeface);
}

TEST(FontRegistry, GivesEqualNamesOneFont) {
  FontRegistry registry;
  EXPECT_EQ(registry.FindByFamily("Arial"), registry.FindByFullName("Liberation Sans"));
}

TEST(FontRegistry, KeepsAStyle) {
  FontRegistry registry;
  EXPECT_EQ(&registry.Style(kDefaultFont, true, false), &registry.Style(kDefaultFont, true, false));
}

TEST(FontRegistry, AnswersManyThreadsAlike) {
  FontRegistry registry;
  std::vector<const FontStyle*> styles(8);
  std::vector<std::thread> threads;
  for (const FontStyle*& style : styles) {
    threads.emplace_back([&registry, &style] {
      style = &registry.Style(registry.FindByFamily("Arial"), true, false);
      registry.StandIn(*style, U'\u6F22');
    });
  }
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(std::count(styles.begin(), styles.end(), styles.front()), 8);
}

}  // namespace
}  // namespace kelvane
