#pragma once

#include <cstddef>
#include <vector>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_data_provider.h"
#include "platform/quartz/cg_image.h"

namespace kelvane {

/// How the samples of an image lie: a picture's size, how deep they are, in which colours. Rows
/// begin with a whole byte and have no padding.
struct SampleLayout {
  std::size_t width;
  std::size_t height;
  std::size_t bits;  // a component
  CFOwned<const CGColorSpace> space;
  bool isSmooth;
};

/// @return the bytes that samples take in a row.
constexpr std::size_t BytesOfSamples(std::size_t width, std::size_t bits) {
  return (width * bits + 7) / 8;
}

/// @return a provider that keeps the bytes.
CFOwned<const CGDataProvider> ProviderOf(std::vector<unsigned char> bytes);

// Null when the bytes are too few.
CFOwned<const CGImage> ImageOfSamples(const SampleLayout& layout, const CGDataProvider& provider);
CFOwned<const CGImage> ImageOfRgb(std::size_t width, std::size_t height,
                                  std::vector<unsigned char> rgb, bool isSmooth);
CFOwned<const CGImage> ImageOfGray(std::size_t width, std::size_t height,
                                   std::vector<unsigned char> gray, bool isSmooth);

}  // namespace kelvane
