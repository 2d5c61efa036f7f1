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

}  // namespace
}  // namespace kelvane
