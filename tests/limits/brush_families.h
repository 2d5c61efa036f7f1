#pragma once

#include "limits/family_parts.h"

namespace kelvane::test {

// Files of about so many bytes, of brushes and marks with them.
File BrushOrigins(std::size_t size);
File HatchedBrushes(std::size_t size);

}  // namespace kelvane::test
