#pragma once

#include <cstddef>
#include <span>

#include "metafile/emf/emf_header.h"
#include "players/page_placement.h"
#include "players/stage.h"

namespace kelvane {

/// @return what a header says about where its picture lies.
PictureGeometry GeometryOf(const EmfHeader& header);

/// Plays all records.
/// @param file    borrowed. @param header  its own.
/// @return how many records there were. Throws what the surface throws.
std::size_t PlayEmf(std::span<const unsigned char> file, const EmfHeader& header,
                    const Stage& stage);

}  // namespace kelvane
