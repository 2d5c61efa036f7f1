#pragma once

#include "limits/family_parts.h"

namespace kelvane::test {

// Windows metafiles of about so many bytes, and files that hold metafiles.
File WmfPolygons(std::size_t size);
File WmfTexts(std::size_t size);
File WmfFonts(std::size_t size);
File WmfRegions(std::size_t size);
File WmfClips(std::size_t size);
File WmfBitmaps(std::size_t size);
File PrintedPages(std::size_t size);
File OtherForms(std::size_t size);

}  // namespace kelvane::test
