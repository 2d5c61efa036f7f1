#pragma once

#include "limits/family_parts.h"

namespace kelvane::test {

// Files of about so many bytes, of what the classic conversion skips or draws in its own way.
File SmallBlits(std::size_t size);
File Strips(std::size_t size);
File MaskedImages(std::size_t size);
File GradientRectangles(std::size_t size);
File AMesh(std::size_t size);

}  // namespace kelvane::test
