#pragma once

#include <string_view>

namespace kelvane {

/// @return whether the tool's first word asks for what is in a file, rather than for a conversion.
bool IsInspection(std::string_view word);

/// "info FILE" prints what a metafile says of itself, "dump FILE" its records, a line each.
/// @param argc, argv  the word and those that follow.
/// @return the exit status. Throws std::bad_alloc.
int Inspect(int argc, const char* const* argv);

}  // namespace kelvane
