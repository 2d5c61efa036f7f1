#include <cstddef>
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

using Command = std::vector<std::string>;
using Metafile = std::vector<unsigned char>;

constexpr int kProcessRuns = 101;
constexpr int kBatchRuns = 7;
constexpr int kBatchFiles = 200;

void Start(const Command& command) {
  if (test::Run(command).status != 0) throw std::runtime_error("running " + command[0]);
}

/// A tool on a new copy of a metafile each time: to replace an older document would take as long
/// as the file system wants.
class OnCopies {
 public:
  OnCopies(std::string tool, const Metafile& metafile) : tool_(std::move(tool)) {
    for (int i = 0; i < kProcessRuns + 1; ++i)
      test::WriteFile(Copy(i), metafile);
  }

  void Start() { bench::Start({tool_, Copy(started_++)}); }

 private:
  [[nodiscard]] std::string Copy(int number) const {
    return folder_ / ("copy" + std::to_string(number) + ".emf");
  }

  const test::TemporaryFolder folder_;
  std::string tool_;
  int started_ = 0;
};

Finding AgainstProgram(const std::string& what, OnCopies ours, const Command& theirs,
                       double limit) {
  return {what, SideBySide([&] { ours.Start(); }, [&] { Start(theirs); }, kProcessRuns),
          kProcessRuns, limit};
}

/// Copies of one metafile, and a new folder for their documents each time.
class Batch {
 public:
  Batch(std::string tool, const Metafile& metafile) : tool_(std::move(tool)) {
    for (int i = 0; i < kBatchFiles; ++i) {
      files_.push_back(folder_ / ("copy" + std::to_string(i) + ".emf"));
      test::WriteFile(files_.back(), metafile);
    }
  }

  void ConvertTogether() {
    Command command = {tool_, "-d", NewFolder()};
    command.insert(command.end(), files_.begin(), files_.end());
    Start(command);
  }

  void ConvertOneByOne() {
    const std::string folder = NewFolder();
    for (const std::string& file : files_)
      Start({tool_, "-d", folder, file});
  }

 private:
  std::string NewFolder() { return folder_ / ("out" + std::to_string(folders_++)); }

  const test::TemporaryFolder folder_;
  std::string tool_;
  std::vector<std::string> files_;
  int folders_ = 0;
};

Finding AgainstOneByOne(const std::string& tool, const Metafile& metafile) {
  Batch batch(tool, metafile);
  return {
      "200 small files with text: one by one : one call of `kelvane`",
      SideBySide([&] { batch.ConvertOneByOne(); }, [&] { batch.ConvertTogether(); }, kBatchRuns),
      kBatchRuns, 5, true};
}

}  // namespace

std::vector<Finding> Processes(const std::string& converter, const std::string& tool,
                               const std::string& empty) {
  const Metafile shapes = Diagram(5'000);
  const Metafile labels = LabelledDiagram(5'000);
  return {AgainstProgram("`kelvaneConverter` on a small file without text : `qpdf --version`",
                         {converter, shapes}, {"qpdf", "--version"}, 1.6),
          AgainstProgram("`kelvane` on the same : `qpdf --version`", {tool, shapes},
                         {"qpdf", "--version"}, 1.6),
          AgainstProgram("`kelvane` on the same : an empty program with the PDF library",
                         {tool, shapes}, {empty}, 1.25),
          AgainstProgram("`kelvaneConverter` on a small file with text : `fc-match Arial`",
                         {converter, labels}, {"fc-match", "Arial"}, 2),
          AgainstProgram("`kelvane` on the same : `fc-match Arial`", {tool, labels},
                         {"fc-match", "Arial"}, 2),
          AgainstOneByOne(tool, labels)};
}

}  // namespace kelvane::bench
