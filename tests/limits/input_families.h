#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kelvane::test {

/// Metafiles of one kind in any size: more of the same, the larger the file.
struct InputFamily {
  std::string name;
  bool isPlain;                                          // well-formed, and without bitmaps
  std::vector<unsigned char> (*make)(std::size_t size);  // of about so many bytes
  bool hasNewPatterns = false;                           // one for each few bytes, as a rule
};

/// A family for each thing that there can be much of in a file.
const std::vector<InputFamily>& InputFamilies();

}  // namespace kelvane::test
