#pragma once

#include <cstdint>

#include "support/bytes.h"

namespace kelvane::test {

// Objects as files store them.

inline constexpr std::uint32_t kVersion = 0xDBC01002;

inline Bytes SolidBrush(std::uint32_t argb) {
  return Bytes().U32(kVersion).U32(0).U32(argb);
}

/// A line from (1,2) to (3,4).
inline Bytes LinePath() {
  return Bytes().U32(kVersion).U32(2).U32(0x4000).Point(1, 2).Point(3, 4).Each({0, 1, 0, 0});
}

/// A pixel of 32 bits.
inline Bytes PixelImage() {
  return Bytes().U32(kVersion).U32(1).I32(1).I32(1).I32(4).U32(0x0026200A).U32(0).U32(0x80FF0000);
}

}  // namespace kelvane::test
