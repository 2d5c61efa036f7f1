#pragma once

#include "limits/family_parts.h"

namespace kelvane::test {

// Files of about so many bytes, all but nothing of which is EMF+.
File PlusFigures(std::size_t size);
File PlusArrows(std::size_t size);
File PlusLongArrow(std::size_t size);
File PlusClips(std::size_t size);
File PlusContainers(std::size_t size);
File PlusRegion(std::size_t size);
File PlusPathGradient(std::size_t size);
File PlusString(std::size_t size);
File PlusStrings(std::size_t size);
File PlusShortDashes(std::size_t size);
File PlusMetafiles(std::size_t size);
File PlusHatches(std::size_t size);
File PlusGradients(std::size_t size);
File PlusTextures(std::size_t size);
File PlusFonts(std::size_t size);

}  // namespace kelvane::test
