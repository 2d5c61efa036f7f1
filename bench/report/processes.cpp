#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "inputs.h"
#include "report/goals.h"
#include "support/files.h"

namespace kelvane::bench {
namespace {

constexpr int kRuns = 101;

/// Runs a program to its end, its output thrown away.
void Start(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& argument : command)
    arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", 1, 0);
  pid_t process = 0;
  const int error =
      posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  if (error != 0 || waitpid(process, &status, 0) < 0 || status != 0) {
    throw std::runtime_error("running " + command[0]);
  }
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
