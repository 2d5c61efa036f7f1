#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kelvane {

/// Reads the character identifiers of a CFF font program (Adobe Technical Note 5176): a Top DICT
/// that begins with the operator ROS makes its glyphs known by identifiers, which the charset
/// lists.
/// @param table       the program, borrowed.
/// @param glyphCount  how many glyphs it has.
/// @return the identifiers by glyph, as many as the table holds whole; empty for a program that
///         knows its glyphs by name or that is broken.
std::vector<std::uint16_t> CffCharacterIdentifiers(std::span<const unsigned char> table,
                                                   unsigned glyphCount);

}  // namespace kelvane
