#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frontends/kelvane/command_line.h"

namespace kelvane {

/// A file to convert.
struct WorkItem {
  std::string input;   // a path, or "-"
  std::string output;  // a path, or "-"
};

/// @param format  of the documents, which is the ending of their names, too.
std::vector<WorkItem> WorkListFor(const CommandLine& line, std::string_view format);

/// @return which files would overwrite each other or an input, in words; empty when none would.
std::string Collision(const std::vector<WorkItem>& items, const CommandLine& line);

}  // namespace kelvane
