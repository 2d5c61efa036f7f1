#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

class ReadmeCommands : public KelvaneTool {
 protected:
  void SetUp() override {
    Write("drawing.emf", FileOfALine());
    std::filesystem::create_directory(folder_ / "figures");
    Write("figures/one.emf", FileOfALine());
    Write("figures/two.emf", FileOfALine());
  }
};

TEST_F(ReadmeCommands, OfTheToolWork) {
  const std::string readme = ReadFile(SourcePath("README.md"));
  const std::regex command(R"(\n    (kelvane [^\n]*))");
  const std::string tools = std::filesystem::path(KelvanePath()).parent_path();
  std::size_t count = 0;
  for (std::sregex_iterator i(readme.begin(), readme.end(), command), end; i != end; ++i, ++count) {
    const ProcessResult result = test::Run({"timeout", "10", "env", "-C", folder_.Path(), "sh",
                                            "-c", "PATH=" + tools + ":$PATH; " + i->str(1)});
    EXPECT_EQ(result.status, 0) << i->str(1) << "\n" << result.output;
  }
  EXPECT_EQ(count, 9U);
}

}  // namespace
}  // namespace kelvane::test
