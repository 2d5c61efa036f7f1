#pragma once

#include <string>

#include <gtest/gtest.h>

namespace kelvane::test {

/// Compares `text` with the file tests/golden/`name`. With UPDATE_GOLDEN=1 in the environment the
/// file is rewritten when it differs, and that still fails, so that its change is read before it is
/// committed.
testing::AssertionResult MatchesGolden(const std::string& name, const std::string& text);

}  // namespace kelvane::test
