#pragma once

#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "frontends/inspection/dump.h"

namespace kelvane::test {

/// The lines of a metafile's dump.
inline std::vector<std::string> Dumped(std::span<const unsigned char> file) {
  std::stringstream dump;
  Dump(file, dump);
  std::vector<std::string> lines;
  for (std::string line; std::getline(dump, line);)
    lines.push_back(line);
  return lines;
}

}  // namespace kelvane::test
