#pragma once

#include <cstdint>

#include "support/metafile.h"

namespace kelvane::test {

// Types of records, as files store them.
inline constexpr std::uint32_t kBitBlt = 76;
inline constexpr std::uint32_t kStretchBlt = 77;
inline constexpr std::uint32_t kMaskBlt = 78;
inline constexpr std::uint32_t kPlgBlt = 79;
inline constexpr std::uint32_t kSetDibitsToDevice = 80;
inline constexpr std::uint32_t kStretchDibits = 81;
inline constexpr std::uint32_t kAlphaBlend = 114;
inline constexpr std::uint32_t kTransparentBlt = 116;
inline constexpr std::uint32_t kGradientFill = 118;

/// A bitmap in the two parts that records store.
struct BitmapParts {
  Bytes header = {};  // with masks and colours; empty when there is no bitmap
  Bytes pixels = {};
};

/// The fields of blits; each type of record has most of them.
struct Blit {
  At destination = {0, 0};
  At size = {10, 10};
  At source = {0, 0};
  At sourceSize = {1, 1};
  std::uint32_t operation = kSrcCopy;  // or the blending, or the colour that is left out
  BitmapParts bitmap = {};
  XForm transform = kIdentityTransform;  // of the source
  std::uint32_t usage = 0;               // of the colour table
  At maskSource = {0, 0};
  BitmapParts mask = {};
  std::uint32_t startScan = 0;
  std::uint32_t scans = 1;
};

/// Adds a blit. A parallelogram has its first corner at the destination, and leads by its size to
/// the right and down.
Metafile& AddBlit(Metafile& metafile, std::uint32_t type, const Blit& blit);

}  // namespace kelvane::test
