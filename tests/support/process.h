#pragma once

#include <string>
#include <vector>

namespace kelvane::test {

struct ProcessResult {
  int status = -1;     // exit status; -1 when the program was ended by a signal or could not be run
  std::string output;  // standard output and standard error, as they came
  double processorSeconds = 0;  // user and system time, of its own children too
};

/// Runs a program to its end.
/// @param command  the program, looked up in PATH, and its arguments.
ProcessResult Run(const std::vector<std::string>& command);

}  // namespace kelvane::test
