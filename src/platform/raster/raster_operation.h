#pragma once

#include <cstdint>

namespace kelvane {

/// @param operation  for each three bits of paint, source and destination, from the high ones on,
///                   the result's: the byte that Windows' ternary raster operations are known by.
/// @param paint, source, destination  opaque pixels.
/// @return the result, opaque.
std::uint32_t CombinedBits(std::uint8_t operation, std::uint32_t paint, std::uint32_t source,
                           std::uint32_t destination);

}  // namespace kelvane
