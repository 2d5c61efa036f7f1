#include <cstddef>
#include <string>
#include <vector>

#include "conversion.h"
#include "inputs.h"
#include "report/goals.h"

namespace kelvane::bench {
namespace {

constexpr int kSmallFileRuns = 31;
constexpr int kRepeats = 100;

Action Conversion(const std::vector<unsigned char>& metafile) {
  return [&metafile] { Convert(metafile); };
}

Finding AgainstEmptyPage(const std::string& what, const std::vector<unsigned char>& metafile,
                         double limit) {
  const std::vector<unsigned char> empty = EmptyPage().bytes;
  return {what + " : an empty page",
          SideBySide(Conversion(metafile), Conversion(empty), kSmallFileRuns, kRepeats),
          kSmallFileRuns, limit};
}

Finding AgainstClassic(const std::string& what, const std::vector<unsigned char>& metafile,
                       int repeats, double limit) {
  return {"as Windows shows it : the classic conversion, " + what,
          SideBySide([&] { ConvertAsWindows(metafile); }, Conversion(metafile), kSmallFileRuns,
                     repeats),
          kSmallFileRuns, limit};
}

}  // namespace

std::vector<Finding> AgainstClassicConversion() {
  constexpr std::size_t kSize = 20'000;
  constexpr std::size_t kStrings = 10'000;
  return {AgainstClassic("20 KB of shapes", Diagram(kSize), kRepeats, 1.2),
          AgainstClassic("20 KB of lines and curves", Drawing(kSize), kRepeats, 1.2),
          AgainstClassic("10,000 short strings in three fonts", Labels(kStrings), 1, 1.5)};
}

std::vector<Finding> SmallFiles() {
  constexpr std::size_t kSize = 20'000;
  return {AgainstEmptyPage("20 KB of shapes, in memory", Diagram(kSize), 3),
          AgainstEmptyPage("20 KB of lines and curves, in memory", Drawing(kSize), 3),
          AgainstEmptyPage("20 KB of shapes and labels of one open face, in memory",
                           LabelledDiagram(kSize), 8)};
}

}  // namespace kelvane::bench
