#include "support/golden.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "support/files.h"
#include "support/paths.h"

namespace kelvane::test {
namespace {

bool UpdatesGoldens() {
  const char* const update = std::getenv("UPDATE_GOLDEN");
  return update != nullptr && std::string_view(update) == "1";
}

std::string LineAt(const std::string& text, std::size_t offset) {
  const std::size_t start = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
  return text.substr(start, text.find('\n', offset) - start);
}

std::string FirstDifference(const std::string& expected, const std::string& actual) {
  const auto [at, unused] =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  const auto offset = static_cast<std::size_t>(at - expected.begin());
  const auto line = 1 + std::count(expected.begin(), at, '\n');
  return "line " + std::to_string(line) + " was \"" + LineAt(expected, offset) + "\" and is \"" +
         LineAt(actual, offset) + '"';
}

}  // namespace

testing::AssertionResult MatchesGolden(const std::string& name, const std::string& text) {
  const std::filesystem::path path = std::filesystem::path(SourcePath("tests/golden")) / name;
  const std::string golden = std::filesystem::exists(path) ? ReadFile(path) : "";
  if (golden == text) return testing::AssertionSuccess();
  if (UpdatesGoldens()) {
    WriteFile(path, text);
    return testing::AssertionFailure() << "rewrote " << path << "; read its diff";
  }
  return testing::AssertionFailure()
         << path << ": " << FirstDifference(golden, text) << "; UPDATE_GOLDEN=1 rewrites it";
}

}  // namespace kelvane::test
