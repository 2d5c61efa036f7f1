#include "support/corpus.h"

#include <algorithm>
#include <cctype>

#include "support/files.h"
#include "support/paths.h"

namespace kelvane::test {
std::filesystem::path CorpusFolder(const std::string& kind) {
  return std::filesystem::path(SourcePath("../shared/corpus")) / kind;
}

std::vector<std::string> CorpusNames(const std::string& kind) {
  std::vector<std::string> names;
  std::error_code absent;
  for (const auto& entry : std::filesystem::directory_iterator(CorpusFolder(kind), absent)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<unsigned char> CorpusBytes(const std::string& kind, const std::string& name) {
  const std::string bytes = ReadFile(CorpusFolder(kind) / name);
  return {bytes.begin(), bytes.end()};
}

std::string CorpusTestName(const testing::TestParamInfo<std::string>& row) {
  std::string name = std::filesystem::path(row.param).stem().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

}  // namespace kelvane::test
