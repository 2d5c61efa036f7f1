#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kelvane {

/// What the tool was called with.
struct CommandLine {
  std::vector<std::string> inputs;    // paths, or "-"; at least one
  std::optional<std::string> output;  // a path, or "-"; then there is one input
  std::optional<std::string> folder;  // for the documents; not with an output
  std::optional<std::string> report;  // a path, or "-"; then the output is another
  unsigned jobs = 1;                  // at least 1
  std::vector<std::pair<std::string, std::string>> options;  // of the conversion, as given
};

/// Takes a command line apart. Help, the version and what is wrong are printed.
/// @return the exit status when there is nothing left to do.
std::optional<int> Parse(int argc, const char* const* argv, CommandLine& line);

}  // namespace kelvane
