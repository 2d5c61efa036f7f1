#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "gdi/blit.h"
#include "gdi/palette.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_image.h"

namespace kelvane {

/// What becomes of a bitmap's colours on their way: an operation on them, on a plain paint and on a
/// ground of one colour.
struct Coloring {
  TernaryRasterOperation operation = SRCCOPY;
  RgbColor paint{};
  RgbColor ground{};  // what lies below, for operations that look at it
};

/// @return the whole bitmap as the JPEG file that it is; null for any other.
CFOwned<const CGImage> JpegOf(const Blit& blit);

/// @param parts  one below the other, all as wide; more than one are neither run-length encoded nor
///               files.
/// @return their pixels in as few bits as they need, decoded when the surface asks for them. Null
///         when they cannot be read.
CFOwned<const CGImage> ImageOf(const std::vector<DibPart>& parts, const Coloring& coloring,
                               bool isSmooth);

/// @param rgb  the part's pixels, already decoded.
CFOwned<const CGImage> ImageOf(const Blit& blit, std::vector<std::uint8_t> rgb);

/// @return a mask that paints where the pixels are shown.
/// @param shown  as many as width and height say.
CFOwned<const CGImage> StencilOf(const std::vector<std::uint8_t>& shown, std::size_t width,
                                 std::size_t height);

/// @return a mask of opacities, a byte each.
CFOwned<const CGImage> SoftMaskOf(std::vector<std::uint8_t> alpha, const Blit& blit);

/// @return for each pixel of the part 1 where it is white and 0 where it is black; nullopt when
///         there are other colours.
std::optional<std::vector<std::uint8_t>> WhitePixels(const Blit& blit);

/// @return for each pixel of the part 1 unless it has the colour; nullopt when the pixels cannot be
///         read.
std::optional<std::vector<std::uint8_t>> PixelsBut(const Blit& blit, RgbColor color);

/// @return the colour of the part's first pixel.
std::optional<RgbColor> FirstPixel(const Blit& blit);

}  // namespace kelvane
