#pragma once

#include <cstdint>
#include <span>

namespace kelvane {

/// @return the checksum that gzip and PNG have (ISO 3309).
std::uint32_t Crc32(std::span<const unsigned char> bytes);

}  // namespace kelvane
