#pragma once

#include <cstddef>
#include <vector>

#include "platform/quartz/cg_data_provider.h"
#include "platform/quartz/cg_image.h"

namespace kelvane::test {

using ByteList = std::vector<unsigned char>;

/// @param timesAsked  counts how often the bytes are made; must outlive the provider.
/// @return a provider that makes a copy of the bytes each time.
CFOwned<const CGDataProvider> MakerOf(const ByteList& bytes, int& timesAsked);

/// @return grey of 8 bits over what a provider gives, rows without padding.
CFOwned<const CGImage> GrayOf(std::size_t width, std::size_t height,
                              const CFOwned<const CGDataProvider>& provider);

/// @param rows  bits, each row in bytes of its own. @return a mask over a copy of them.
CFOwned<const CGImage> MaskOf(std::size_t width, std::size_t height, const ByteList& rows,
                              bool interpolate = false);

/// @param colors  red, green and blue of each. @param rows  numbers of `bits` bits.
CFOwned<const CGImage> IndexedOf(std::size_t width, std::size_t height, std::size_t bits,
                                 const ByteList& colors, const ByteList& rows);

/// @return `image` as `mask` lets it be seen; null where these do not agree.
CFOwned<const CGImage> Masked(const CFOwned<const CGImage>& image,
                              const CFOwned<const CGImage>& mask);

/// @param components  1 or 3.
/// @return a JPEG file of 8 by 8 pixels of middle grey.
ByteList JpegOf(unsigned char components);

}  // namespace kelvane::test
