#include <stdexcept>
#include <string>
#include <vector>

#include "inputs.h"
#include "report/goals.h"
#include "support/files.h"
#include "support/process.h"

namespace kelvane::bench {
namespace {

constexpr int kRuns = 101;

void Start(const std::vector<std::string>& command) {
  if (test::Run(command).status != 0) throw std::runtime_error("running " + command[0]);
}

Finding AgainstProgram(const std::string& what, const std::vector<std::string>& ours,
                       const std::vector<std::string>& theirs, double limit) {
  return {what, SideBySide([&] { Start(ours); }, [&] { Start(theirs); }, kRuns), kRuns, limit};
}

}  // namespace

std::vector<Finding> Processes(const std::string& converter) {
  const test::TemporaryFolder folder;
  const std::string plain = folder / "plain.emf";
  const std::string labelled = folder / "labelled.emf";
  test::WriteFile(plain, Diagram(5'000));
  test::WriteFile(labelled, LabelledDiagram(5'000));
  return {AgainstProgram("the tool on a small file without text : `qpdf --version`",
                         {converter, plain}, {"qpdf", "--version"}, 1.6),
          AgainstProgram("the tool on a small file with text : `fc-match Arial`",
                         {converter, labelled}, {"fc-match", "Arial"}, 2)};
}

}  // namespace kelvane::bench
