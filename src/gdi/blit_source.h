#pragma once

#include <cstdint>
#include <optional>

#include "gdi/blit.h"
#include "gdi/blits.h"

namespace kelvane {

/// What becomes of a bitmap's pixels.
enum class BitmapUse : std::uint8_t { kCopied, kChanged };

/// @param use   a JPEG file that is copied goes out as it is where the surface holds such files.
/// @param rows  how many there are, in place of what the header says.
/// @return the bitmap with the colours of the selected palette where it asks for them; nullopt,
///         noted as a shortfall, when it cannot be read or so little data may not be so large.
std::optional<Dib> ReadBitmap(DeviceContext& device, const DibBytes& bytes, BitmapUse use,
                              std::optional<std::uint32_t> rows = std::nullopt);

/// @return a destination in logical units as what maps the unit square onto the device.
TransformD Destination(const DeviceContext& device, PointL corner, SizeL size);

/// @return the source's part on its way to the destination; nullopt when there is nothing to be
///         seen, or nothing to be read.
std::optional<Blit> BlitFrom(DeviceContext& device, const SourceBitmap& source,
                             const TransformD& unitToDevice);

/// Settles what of a blit depends on the device: how it is enlarged, and that pixels which
/// run-length encoding skips stay as they are, where nothing is scaled.
void FinishBlit(const DeviceContext& device, Blit& blit);

/// @return which pixels of a blit a mask of one bit a pixel lets be seen: those where it is set.
///         What lies outside of the mask is not set. Null when the mask cannot be read.
/// @param source  the position of the blit's source rectangle in its bitmap.
ShownPixels SetPixels(DeviceContext& device, const MaskBitmap& mask, const Blit& blit,
                      PointL source);

}  // namespace kelvane
