#include <cstddef>
#include <string>
#include <vector>

#include "conversion.h"
#include "inputs.h"
#include "report/goals.h"
#include "report/libraries_alone.h"

namespace kelvane::bench {
namespace {

constexpr int kSmallFileRuns = 31;
constexpr int kRepeats = 100;
constexpr std::size_t kSmallSize = 20'000;

using Metafile = std::vector<unsigned char>;

/// @param convert     takes a metafile and gives its document.
/// @param characters  of the text in the one face that it has.
template <class Conversion>
Finding AgainstLibraries(const std::string& what, const Metafile& metafile, Conversion convert,
                         const std::u32string& characters = {}) {
  const LibrariesAlone libraries(*convert(metafile), characters);
  return {what + " : the libraries alone for the same page",
          SideBySide([&] { convert(metafile); }, [&] { libraries.MakeDocument(); }, kSmallFileRuns,
                     kRepeats),
          kSmallFileRuns, 1.6};
}

Finding AgainstClassic(const std::string& what, const Metafile& metafile, int repeats,
                       double limit) {
  return {"as Windows shows it : the classic conversion, " + what,
          SideBySide([&] { ConvertAsWindows(metafile); }, [&] { Convert(metafile); },
                     kSmallFileRuns, repeats),
          kSmallFileRuns, limit};
}

}  // namespace

std::vector<Finding> SmallFiles() {
  const Metafile shapes = Diagram(kSmallSize);
  const Metafile lines = Drawing(kSmallSize);
  const Metafile labels = LabelledDiagram(kSmallSize);
  const std::u32string characters = CharactersOfLabels();
  return {AgainstLibraries("20 KB of shapes, in memory", shapes, Convert),
          AgainstLibraries("the same, as Windows shows it", shapes, ConvertAsWindows),
          AgainstLibraries("20 KB of lines and curves, in memory", lines, Convert),
          AgainstLibraries("the same, as Windows shows it", lines, ConvertAsWindows),
          AgainstLibraries("20 KB of shapes and labels of one open face, in memory", labels,
                           Convert, characters),
          AgainstLibraries("the same, as Windows shows it", labels, ConvertAsWindows, characters)};
}

std::vector<Finding> AgainstClassicConversion() {
  constexpr std::size_t kStrings = 10'000;
  return {AgainstClassic("20 KB of shapes", Diagram(kSmallSize), kRepeats, 1.3),
          AgainstClassic("20 KB of lines and curves", Drawing(kSmallSize), kRepeats, 1.3),
          AgainstClassic("10,000 short strings in three fonts", Labels(kStrings), 1, 1.3)};
}

}  // namespace kelvane::bench
