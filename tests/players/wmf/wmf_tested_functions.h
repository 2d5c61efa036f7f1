#pragma once

#include <cstdint>
#include <vector>

namespace kelvane::test {

/// @return the functions that are compared with calls of EMF; the others have tests of their own.
std::vector<std::uint16_t> FunctionsWithACall();

}  // namespace kelvane::test
