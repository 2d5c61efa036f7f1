#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "metafile/emf/emf_header.h"
#include "players/page_placement.h"
#include "players/stage.h"

namespace kelvane {

/// @param file  borrowed; the header's description views it.
/// @return the header of a metafile; nullopt when the bytes are none.
std::optional<EmfHeader> ReadEmfHeader(std::span<const unsigned char> file);

/// @return what a header says about where its picture lies.
PictureGeometry GeometryOf(const EmfHeader& header);

/// Plays all records.
/// @param file    borrowed. @param header  its own.
/// @return how many records there were. Throws what the surface throws.
std::size_t PlayEmf(std::span<const unsigned char> file, const EmfHeader& header,
                    const Stage& stage);

}  // namespace kelvane
