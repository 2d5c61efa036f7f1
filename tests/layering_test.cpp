// Includes point one way: frontends > document > records, objects, bitmap, text > context > reader
// > platform.

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "support/files.h"

namespace kelvane {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = fs::path(KELVANE_SOURCE_DIR) / "src";

/// What each folder may include besides itself and what everybody may.
const std::map<std::string, std::set<std::string>>& Allowed() {
  static const std::map<std::string, std::set<std::string>> kAllowed = {
      {"platform", {}},
      {"reader", {"platform"}},
      {"context", {"reader", "platform"}},
      {"records", {"context", "reader", "platform"}},
      {"objects", {"context", "reader", "platform"}},
      {"bitmap", {"context", "reader", "platform"}},
      {"text", {"context", "reader", "platform"}},
      {"document", {"records", "objects", "bitmap", "text", "context", "reader", "platform"}},
      {"frontends", {"document", "text", "reader", "platform"}},
  };
  return kAllowed;
}

/// Within the platform, text stands on drawing and drawing on data objects.
const std::map<std::string, std::set<std::string>>& AllowedInPlatform() {
  static const std::map<std::string, std::set<std::string>> kAllowed = {
      {"corefoundation", {}},
      {"quartz", {"corefoundation"}},
      {"atsui", {"quartz", "corefoundation"}},
      {"appkit", {"corefoundation"}},
  };
  return kAllowed;
}

/// The bases know the classes they name by forward declaration only.
bool IsForEverybody(const std::string& header) {
  return header == "document/record.h" || header == "objects/object.h";
}

std::string FirstPart(const fs::path& path) {
  return path.begin()->string();
}

std::string SecondPart(const fs::path& path) {
  return std::next(path.begin())->string();
}

bool MayInclude(const fs::path& file, const fs::path& header) {
  const std::string from = FirstPart(file);
  const std::string to = FirstPart(header);
  if (from != to) return IsForEverybody(header.string()) || Allowed().at(from).contains(to);
  if (from != "platform") return true;
  const auto allowed = AllowedInPlatform().find(SecondPart(file));
  const std::string part = SecondPart(header);
  const bool isInAFolder = AllowedInPlatform().contains(part);
  return !isInAFolder || part == SecondPart(file) ||
         (allowed != AllowedInPlatform().end() && allowed->second.contains(part));
}

std::set<std::string> IncludesOf(const fs::path& file) {
  static const std::regex kInclude("#(?:include|import) \"([^\"]+)\"");
  std::set<std::string> headers;
  std::istringstream lines(test::ReadFile(kSource / file));
  std::smatch match;
  for (std::string line; std::getline(lines, line);) {
    if (std::regex_match(line, match, kInclude)) headers.insert(match[1]);
  }
  return headers;
}

TEST(Layering, HasNoIncludeThatPointsBack) {
  std::size_t includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
    if (!entry.is_regular_file()) continue;
    const fs::path file = fs::relative(entry.path(), kSource);
    if (!Allowed().contains(FirstPart(file))) continue;
    for (const std::string& header : IncludesOf(file)) {
      ++includes;
      EXPECT_TRUE(MayInclude(file, header)) << file << " includes " << header;
    }
  }
  EXPECT_GT(includes, 100U);
}

}  // namespace
}  // namespace kelvane
