#include "base/crc32.h"

#include <libdeflate.h>

namespace kelvane {

std::uint32_t Crc32(std::span<const unsigned char> bytes) {
  return libdeflate_crc32(0, bytes.data(), bytes.size());
}

}  // namespace kelvane
