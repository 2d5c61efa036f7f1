#include <string>

#include <gtest/gtest.h>

#include "support/files.h"

namespace kelvane {
namespace {

const std::string kRoot = KELVANE_SOURCE_DIR "/";

TEST(Readme, ShowsTheExampleThatIsCompiled) {
  const std::string example = test::ReadFile(kRoot + "tests/frontends/readme_example.c");
  EXPECT_NE(test::ReadFile(kRoot + "README.md").find("```c\n" + example + "```\n"),
            std::string::npos);
}

TEST(Readme, NamesASampleThatIsThere) {
  EXPECT_NE(test::ReadFile(kRoot + "README.md").find("./dev convert samples/shapes.emf"),
            std::string::npos);
  EXPECT_FALSE(test::ReadFile(kRoot + "samples/shapes.emf").empty());
}

TEST(Readme, ShowsTheCommandsOfACallerThatIsBuilt) {
  const std::string project = test::ReadFile(kRoot + "tests/consumer/cpp/CMakeLists.txt");
  for (const std::string command : {"find_package(kelvane REQUIRED)\n",
                                    "target_link_libraries(program PRIVATE kelvane::kelvane)\n"}) {
    EXPECT_NE(test::ReadFile(kRoot + "README.md").find("    " + command), std::string::npos);
    EXPECT_NE(project.find("\n" + command), std::string::npos);
  }
}

}  // namespace
}  // namespace kelvane
