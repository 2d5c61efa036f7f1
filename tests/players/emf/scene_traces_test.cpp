// What each scene draws, as text: a change of drawing is read before it is seen. A unit of the page
// is a device unit, with y downwards, so that the numbers are mostly those of the file.

#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "metafile/emf/emf_record_type.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/trace/cg_trace_context.h"
#include "players/picture/metafile_player.h"
#include "support/files.h"
#include "support/golden.h"
#include "support/paths.h"
#include "support/text_setting.h"

namespace kelvane::test {
namespace {

/// The scenes whose pictures are held to a floor.
std::vector<std::string> JudgedScenes() {
  std::ifstream floors(SourcePath("tests/scenes/floors-pdf.tsv"));
  std::vector<std::string> scenes;
  for (std::string line; std::getline(floors, line);)
    scenes.push_back(line.substr(0, line.find('\t')));
  scenes.erase(scenes.begin());  // the heading
  return scenes;
}

const char* Words(Omission omission) {
  switch (omission) {
    case Omission::kLeftOut:
      return "left out ";
    case Omission::kOnlyNearly:
      return "only nearly ";
    case Omission::kDamaged:
      return "damaged ";
  }
  return "";
}

std::string Lines(const Report& report) {
  std::string lines;
  for (const ReportedRecords& records : report.Records()) {
    lines += Words(records.omission) + std::to_string(records.count) + ' ' +
             std::string(NameOf(records.record)) + ": " + records.why + '\n';
  }
  for (const std::string& remark : report.Remarks())
    lines += remark + '\n';
  return lines;
}

/// The marks of a scene, then what the report says of it.
std::string TraceOfScene(const std::string& scene) {
  const std::string file = ReadFile(SourcePath("tests/scenes/" + scene + ".emf"));
  const PagePlacement page = {{400, 300}, CGAffineTransformIdentity};
  const CGRect box = {{0, 0}, page.size};
  std::string trace;
  Report report;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  CGContextBeginPage(surface.get(), &box);
  const auto metafile =
      OpenMetafile({reinterpret_cast<const unsigned char*>(file.data()), file.size()});
  PlayMetafile(metafile.value(), page, {test::InstalledFonts()}, *surface, report);
  CGContextEndPage(surface.get());
  return trace + Lines(report);
}

class SceneTrace : public testing::TestWithParam<std::string> {};

TEST_P(SceneTrace, IsAsItWasRead) {
  EXPECT_TRUE(MatchesGolden("scenes/" + GetParam() + ".trace", TraceOfScene(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Scenes, SceneTrace, testing::ValuesIn(JudgedScenes()),
                         [](const auto& scene) { return scene.param; });

}  // namespace
}  // namespace kelvane::test
