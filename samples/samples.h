#pragma once

#include <string>
#include <vector>

#include "support/metafile.h"

namespace kelvane::samples {

struct Sample {
  std::string name;  // of the file, without ".emf"
  test::Metafile metafile;
};

/// The metafiles that are committed in this folder.
std::vector<Sample> AllSamples();

}  // namespace kelvane::samples
