#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kelvane {

/// What can be said of a metafile, enhanced or 16-bit, without playing it, for a reader: a line a
/// thing, its name and its value, then how many records there are of each type. UTF-8, texts of the
/// file quoted and escaped.
/// @param file  any bytes. @param name  of the file, put on top.
/// @return nothing when the bytes are no metafile.
std::optional<std::string> InfoOf(std::span<const unsigned char> file, std::string_view name);

}  // namespace kelvane
