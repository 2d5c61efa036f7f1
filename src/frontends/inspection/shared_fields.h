#pragma once

#include <string>

#include "frontends/inspection/field_writer.h"
#include "metafile/emf/emf_region_data.h"
#include "metafile/emf/emf_stored_dib.h"

namespace kelvane {

// Parts that records of several families have.

void AddRegion(FieldWriter& fields, const RegionData& region);

/// What the bitmap's header says, and how many bytes there are of it and of the pixels; nothing
/// when there is no bitmap.
/// @param owner  "Src" or "Mask", the end of the names; empty when there is but one bitmap.
void AddDib(FieldWriter& fields, const std::string& owner, const StoredDib& dib);

}  // namespace kelvane
