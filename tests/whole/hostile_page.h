#pragma once

#include <string>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/pdf.h"
#include "support/slowdown.h"

namespace kelvane::test {

/// Runs the tool on what was made to do harm.
class HostilePage : public KelvaneTool {
 protected:
  /// @param option  another one for the tool; empty for none.
  void ExpectAPageOfWhatFollows(Metafile metafile, const std::string& option = {}) {
    metafile.SetMapMode(1).SetWorldTransform(kIdentityTransform).Rectangle({1, 2, 30, 40});
    Write("a.emf", metafile.Build());
    std::vector<std::string> arguments = {"--page=bounds", "a.emf"};
    if (!option.empty()) arguments.push_back(option);
    const ToolResult result = Run(arguments);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_LT(result.processorSeconds, kMostSeconds);
    EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
    const std::string content = Pdf(Read("a.pdf")).Content();
    EXPECT_NE(content.find("1 98 29 -38 re\nB*\n"), std::string::npos);
  }

 private:
  static constexpr double kMostSeconds = 2 * kSlowdown;
};

}  // namespace kelvane::test
