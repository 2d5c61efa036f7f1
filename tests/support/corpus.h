#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane::test {

// Files found in the wild, which lie beside the project where they are there at all. A kind is
// "real" or "damaged".

/// Where the metafiles of one kind lie.
std::filesystem::path CorpusFolder(const std::string& kind);

/// @return the names of the metafiles of one kind, in order; none where the corpus is not there.
std::vector<std::string> CorpusNames(const std::string& kind);

std::vector<unsigned char> CorpusBytes(const std::string& kind, const std::string& name);

/// A name for the test of a file.
std::string CorpusTestName(const testing::TestParamInfo<std::string>& row);

}  // namespace kelvane::test
