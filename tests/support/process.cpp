#include "support/process.h"

#include <array>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelvane::test {
namespace {

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

ProcessResult Run(const std::vector<std::string>& command) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return {};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
  posix_spawn_file_actions_addclose(&actions, ends[0]);
  posix_spawn_file_actions_addclose(&actions, ends[1]);

  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& word : command)
    arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  pid_t child = 0;
  const int error =
      posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);

  ProcessResult result;
  std::array<char, 4096> part;
  ssize_t count = 0;
  while ((count = read(ends[0], part.data(), part.size())) > 0) {
    result.output.append(part.data(), static_cast<std::size_t>(count));
  }
  close(ends[0]);
  if (error != 0) return result;
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child) return result;
  if (WIFEXITED(status)) result.status = WEXITSTATUS(status);
  result.processorSeconds = Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
  return result;
}

}  // namespace kelvane::test
