// Includes point one way. A folder may include itself and what stands below it:
//
//     frontends > players > gdiplus > gdi > fonts > quartz > corefoundation > base
//     frontends > classic > atsui > fonts
//     frontends > pdf, svg, raster > quartz
//     frontends/inspection > metafile > base
//     players/picture > players/emf, players/wmf > players > metafile
//     gdi > metafile
//     gdiplus > metafile/emfplus
//
// and within the classic conversion
//
//     document > records, objects, bitmap, text > context > playable, reader

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/paths.h"

namespace kelvane {
namespace {

namespace fs = std::filesystem;

using Arrows = std::map<std::string, std::set<std::string>>;

/// By folder, the folders right below it; it may include what those may include, too.
const Arrows& Floors() {
  static const Arrows kFloors = {
      {"base", {}},
      {"metafile", {"base"}},
      {"metafile/container", {"metafile"}},
      {"metafile/emf", {"metafile"}},
      {"metafile/emfplus", {"metafile"}},
      {"metafile/wmf", {"metafile"}},
      {"platform/corefoundation", {"base"}},
      {"platform/quartz", {"platform/corefoundation"}},
      {"platform/fonts", {"platform/quartz"}},
      {"platform/atsui", {"platform/fonts"}},
      {"platform/pdf", {"platform/quartz"}},
      {"platform/svg", {"platform/quartz"}},
      {"platform/raster", {"platform/quartz"}},
      {"platform/trace", {"platform/quartz"}},
      {"platform/appkit", {"platform/corefoundation"}},
      {"gdi", {"metafile", "platform/fonts"}},
      {"gdiplus", {"gdi", "metafile/emfplus"}},
      {"players", {"gdiplus", "metafile/container", "metafile/emf", "metafile/wmf"}},
      {"players/emfplus", {"players"}},
      {"players/emf", {"players/emfplus"}},
      {"players/wmf", {"players"}},
      {"players/picture", {"players/emf", "players/wmf"}},
      {"classic/reader", {"platform/quartz"}},
      {"classic/playable", {"classic/reader"}},
      {"classic/context", {"classic/playable"}},
      {"classic/records", {"classic/context"}},
      {"classic/objects", {"classic/context"}},
      {"classic/bitmap", {"classic/context"}},
      {"classic/text", {"classic/context", "platform/atsui"}},
      {"classic/document",
       {"classic/records", "classic/objects", "classic/bitmap", "classic/text"}},
      {"frontends",
       {"classic/document", "platform/pdf", "platform/raster", "platform/svg", "players/picture"}},
      {"frontends/inspection",
       {"metafile/container", "metafile/emf", "metafile/emfplus", "metafile/wmf"}},
      {"frontends/kelvane", {"frontends", "frontends/inspection"}},
      {"frontends/appkit", {"platform/appkit"}},
  };
  return kFloors;
}

bool StandsOn(const std::string& folder, const std::string& other) {
  if (folder == other) return true;
  for (const std::string& below : Floors().at(folder)) {
    if (StandsOn(below, other)) return true;
  }
  return false;
}

std::set<std::string> IncludesOf(const fs::path& file) {
  static const std::regex kInclude("#(?:include|import) \"([^\"]+)\"");
  std::set<std::string> headers;
  std::istringstream lines(test::ReadFile(file));
  std::smatch match;
  for (std::string line; std::getline(lines, line);) {
    if (std::regex_match(line, match, kInclude)) headers.insert(match[1]);
  }
  return headers;
}

TEST(Layering, HasNoIncludeThatPointsBack) {
  const fs::path source = test::SourcePath("src");
  std::size_t includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(source)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp" && extension != ".mm") continue;
    const std::string folder = fs::relative(entry.path().parent_path(), source).string();
    ASSERT_TRUE(Floors().contains(folder)) << folder << " stands on no floor";
    for (const std::string& header : IncludesOf(entry.path())) {
      ++includes;
      const std::string other = fs::path(header).parent_path().string();
      EXPECT_TRUE(StandsOn(folder, other)) << entry.path() << " includes " << header;
    }
  }
  EXPECT_GT(includes, 100U);
}

}  // namespace
}  // namespace kelvane
