#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "inputs.h"
#include "report/goals.h"
#include "support/files.h"
#include "support/process.h"

namespace kelvane::bench {
namespace {

constexpr int kProcessRuns = 101;

void Start(const std::vector<std::string>& command) {
  if (test::Run(command).status != 0) throw std::runtime_error("running " + command[0]);
}

/// The tool on a new copy of a metafile each time: to replace an older document would take as long
/// as the file system wants.
class OnCopies {
 public:
  OnCopies(std::string converter, const std::vector<unsigned char>& metafile)
      : converter_(std::move(converter)) {
    for (int i = 0; i < kProcessRuns + 1; ++i)
      test::WriteFile(Copy(i), metafile);
  }

  void Start() { bench::Start({converter_, Copy(started_++)}); }

 private:
  [[nodiscard]] std::string Copy(int number) const {
    return folder_ / ("copy" + std::to_string(number) + ".emf");
  }

  const test::TemporaryFolder folder_;
  std::string converter_;
  int started_ = 0;
};

Finding AgainstProgram(const std::string& what, OnCopies ours,
                       const std::vector<std::string>& theirs, double limit) {
  return {what, SideBySide([&] { ours.Start(); }, [&] { Start(theirs); }, kProcessRuns),
          kProcessRuns, limit};
}

}  // namespace

std::vector<Finding> Processes(const std::string& converter) {
  constexpr std::size_t kSize = 5'000;
  return {AgainstProgram("the tool on a small file without text : `qpdf --version`",
                         {converter, Diagram(kSize)}, {"qpdf", "--version"}, 1.6),
          AgainstProgram("the tool on a small file with text : `fc-match Arial`",
                         {converter, LabelledDiagram(kSize)}, {"fc-match", "Arial"}, 2)};
}

}  // namespace kelvane::bench
