#pragma once

#include <cstddef>
#include <span>

#include "players/stage.h"
#include "players/wmf/wmf_picture.h"

namespace kelvane {

/// Plays all records.
/// @param file  borrowed. @param picture  its own.
/// @return how many records there were. Throws what the surface throws.
std::size_t PlayWmf(std::span<const unsigned char> file, const WmfPicture& picture,
                    const Stage& stage);

}  // namespace kelvane
