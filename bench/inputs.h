#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kelvane::bench {

/// A metafile of one kind of record and about the size its name says.
struct Input {
  std::string name;
  std::vector<unsigned char> bytes;
};

/// Every kind of record, each at about 20 KB and about 10 MB; the same bytes in every run.
std::vector<Input> AllInputs();

/// A metafile without records.
Input EmptyPage();

}  // namespace kelvane::bench
