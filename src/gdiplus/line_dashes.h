#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "gdi/flat_lines.h"

namespace kelvane::gdiplus {

/// @param dashes  dash, gap, …, an even number whose sum is more than 0.
/// @param offset  where in them the line starts; from 0 to below their sum.
/// @param most    how many dashes there may be.
/// @return the dashes of a line, each open; those without length have two equal points. nullopt
///         when there are too many.
std::optional<std::vector<FlatLine>> DashesOf(const FlatLine& line, std::span<const double> dashes,
                                              double offset, std::size_t most);

}  // namespace kelvane::gdiplus
