#pragma once

#include <string>

#include "support/bitmap.h"
#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/pdf.h"
#include "support/slowdown.h"

namespace kelvane::test {

/// Runs the tool on what was made to do harm.
class HostilePage : public KelvaneTool {
 protected:
  /// Expects it of a PDF, an SVG and a PNG.
  /// @param option  another one for the tool; empty for none.
  void ExpectAPageOfWhatFollows(Metafile metafile, const std::string& option = {}) {
    metafile.SetMapMode(1).SetWorldTransform(kIdentityTransform).Rectangle({1, 2, 30, 40});
    Write("a.emf", metafile.Build());
    ExpectAPage("a.pdf", option);
    EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
    EXPECT_NE(Pdf(Read("a.pdf")).Content().find("1 98 29 -38 re\nB*\n"), std::string::npos);
    ExpectAPage("a.svg", option);
    EXPECT_NE(Read("a.svg").find(" d=\"m1 2h29v38h-29z\"/>"), std::string::npos);
    ExpectAPage("a.png", option);
    const Raster picture = RasterOfPng(Read("a.png"));
    EXPECT_LT(picture.At(20, 2)[0], 255);
  }

 private:
  static constexpr double kMostSeconds = 2 * kSlowdown;

  void ExpectAPage(const std::string& output, const std::string& option) {
    std::vector<std::string> arguments = {"--page=bounds", "--dpi=72", "-o", output, "a.emf"};
    if (!option.empty()) arguments.push_back(option);
    const ToolResult result = Run(arguments);
    EXPECT_EQ(result.status, 0) << output << ": " << result.errors;
    EXPECT_LT(result.processorSeconds, kMostSeconds) << output;
  }
};

}  // namespace kelvane::test
