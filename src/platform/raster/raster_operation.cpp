#include "platform/raster/raster_operation.h"

namespace kelvane {

std::uint32_t CombinedBits(std::uint8_t operation, std::uint32_t paint, std::uint32_t source,
                           std::uint32_t destination) {
  std::uint32_t result = 0;
  for (unsigned bits = 0; bits < 8; ++bits) {
    if ((operation >> bits & 1) == 0) continue;
    result |= ((bits & 4) != 0 ? paint : ~paint) & ((bits & 2) != 0 ? source : ~source) &
              ((bits & 1) != 0 ? destination : ~destination);
  }
  return result | 0xFF000000U;
}

}  // namespace kelvane
