#pragma once

#include <string>
#include <vector>

namespace kelvane {

/// Reads a whole file: a path, or "-" for standard input. Pipes are read, devices are not, and no
/// pipe is waited for that nobody writes to.
/// @return its bytes; fewer than 2 GiB. Throws std::runtime_error that says what is wrong, and
///         std::bad_alloc.
std::vector<unsigned char> ReadInput(const std::string& path);

}  // namespace kelvane
