// What the tool loads of the libraries of others: nothing that a picture can do without.

#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using testing::ElementsAre;
using Libraries = std::set<std::string>;

class LoadedLibraries : public KelvaneTool {
 protected:
  void SetUp() override {
    Write("box.emf",
          Metafile().CreateBrush(1, 0xFF).SelectObject(1).BitBlt({0, 0}, {9, 9}).Build());
    Write("text.emf", Metafile().CreateFont(1, {}).SelectObject(1).TextOut({1, 2}, u"a").Build());
  }

  /// @return those loaded for a file, of the libraries that not every conversion needs.
  [[nodiscard]] Libraries For(const std::string& input, const std::string& output) const {
    const std::string loaded = test::Run({"env", "-C", folder_.Path(), "LD_DEBUG=files",
                                          KelvanePath(), "-o", output, input})
                                   .output;
    EXPECT_NE(loaded.find("libqpdf"), std::string::npos);  // that is, something is told at all
    Libraries libraries;
    for (const char* library :
         {"libharfbuzz.", "libharfbuzz-subset.", "libfontconfig.", "libfribidi.", "libbrotlienc.",
          "libcairo.", "libpng16.", "libgif.", "libtiff."}) {
      if (loaded.find(library) != std::string::npos) libraries.insert(library);
    }
    return libraries;
  }
};

TEST_F(LoadedLibraries, AreNoneForShapes) {
  EXPECT_EQ(For("box.emf", "a.pdf"), Libraries());
  EXPECT_EQ(For("box.emf", "a.svg"), Libraries());
}

// Fontconfig brings libpng along.
TEST_F(LoadedLibraries, AreThoseOfFontsForText) {
  EXPECT_THAT(For("text.emf", "a.pdf"),
              ElementsAre("libfontconfig.", "libharfbuzz-subset.", "libharfbuzz.", "libpng16."));
  EXPECT_THAT(For("text.emf", "a.svg"),
              ElementsAre("libbrotlienc.", "libfontconfig.", "libharfbuzz-subset.", "libharfbuzz.",
                          "libpng16."));
}

TEST_F(LoadedLibraries, HaveFriBidiForTextFromRightToLeft) {
  Write("hebrew.emf",
        Metafile().CreateFont(1, {}).SelectObject(1).TextOut({1, 2}, u"\u05D0").Build());
  EXPECT_TRUE(For("hebrew.emf", "a.pdf").contains("libfribidi."));
}

TEST_F(LoadedLibraries, AreCairoAndWhatItBringsAlongForPixels) {
  EXPECT_TRUE(For("box.emf", "a.png").contains("libcairo."));
  EXPECT_FALSE(For("box.emf", "a.png").contains("libharfbuzz."));
}

}  // namespace
}  // namespace kelvane::test
