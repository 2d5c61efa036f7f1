// What docs/performance.md promises, measured side by side: performance_report PROGRAMS METAFILES
// SCENES [REPORT.md]. The table goes to standard output, or replaces the one in the report.

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "report/goals.h"
#include "support/files.h"

namespace kelvane::bench {
namespace {

std::string MeasureAll(const std::string& self, const std::string& programs,
                       const std::string& metafiles, const std::string& scenes) {
  std::vector<Finding> all;
  const auto add = [&all](const std::vector<Finding>& findings) {
    all.insert(all.end(), findings.begin(), findings.end());
    std::fputs(Table(findings).c_str(), stderr);
  };
  add(SmallFiles());
  add(AgainstClassicConversion());
  add(Halves(scenes));
  add(Processes(programs + "/kelvaneConverter", programs + "/kelvane",
                programs + "/bench/empty_program"));
  add(Threads());
  add(FileSizes(metafiles));
  add(LargeFiles());
  add(FormatsAndOutputs());
  add(Bitmaps());
  add(Memory(self));
  return Table(all);
}

/// Puts the table between the report's two marks.
void Replace(const std::string& path, const std::string& table) {
  const std::string begin = "<!-- table: begin -->\n";
  const std::string end = "<!-- table: end -->\n";
  std::string text = test::ReadFile(path);
  const std::size_t from = text.find(begin);
  const std::size_t to = text.find(end);
  if (from == std::string::npos || to == std::string::npos || to < from) {
    throw std::runtime_error(path + " has no place for the table");
  }
  text.replace(from + begin.size(), to - from - begin.size(), table);
  test::WriteFile(path, text);
}

int Main(const std::vector<std::string>& arguments) {
  if (arguments.size() == 2) {
    PrintPeak(arguments[1]);
    return 0;
  }
  if (arguments.size() < 4) {
    std::fputs("Usage: performance_report PROGRAMS METAFILES SCENES [REPORT.md]\n", stderr);
    return 1;
  }
  const std::string table = MeasureAll(arguments[0], arguments[1], arguments[2], arguments[3]);
  if (arguments.size() > 4) {
    Replace(arguments[4], table);
  } else {
    std::fputs(table.c_str(), stdout);
  }
  return 0;
}

}  // namespace
}  // namespace kelvane::bench

int main(int argc, char** argv) {
  try {
    return kelvane::bench::Main({argv, argv + argc});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
