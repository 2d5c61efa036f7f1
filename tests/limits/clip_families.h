#pragma once

#include "limits/family_parts.h"

namespace kelvane::test {

// Files of about so many bytes, of clips and of paths that become outlines.
File OffsetClips(std::size_t size);
File XorClips(std::size_t size);
File AClipOfAPath(std::size_t size);
File WidenedPaths(std::size_t size);
File AWidenedPath(std::size_t size);

}  // namespace kelvane::test
