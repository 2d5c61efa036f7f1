#pragma once

#include <string>

namespace kelvane::test {

/// How much longer a program may take that an instrumented build watches at every access. What is
/// promised in seconds holds for the plain one.
#ifdef KELVANE_SANITIZED
inline constexpr int kSlowdown = 8;
#else
inline constexpr int kSlowdown = 1;
#endif

/// For `timeout`: after how many seconds a program that hangs is ended.
inline const std::string kPatience = std::to_string(10 * kSlowdown);

}  // namespace kelvane::test
