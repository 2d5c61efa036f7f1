#pragma once

#include <array>
#include <cstdint>

#include "gdi/device_context.h"
#include "metafile/dib.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {

// Bitmaps onto the page. Destinations are logical units: a corner and a size, which leads the other
// way where it is negative. What a bitmap has too little of is cut off the destination. A bitmap
// that cannot be read is noted as a shortfall and draws nothing.

/// What a blit takes its pixels from.
struct SourceBitmap {
  DibBytes dib{};                     // without a header for operations that need no source
  PointL position{};                  // of the source rectangle, from the top left of the picture
  SizeL size{};                       // of the source rectangle; negative ones mirror
  XForm transform{1, 0, 0, 1, 0, 0};  // of the two to pixels
};

/// What a blit is masked with, pixel by pixel of its source.
struct MaskBitmap {
  DibBytes dib{};     // of one bit a pixel; without a header there is no mask
  PointL position{};  // of the rectangle that lies over the source's, from the top left
};

void StretchBlt(DeviceContext& device, PointL corner, SizeL size, const SourceBitmap& source,
                TernaryRasterOperation operation);

/// A blit whose source rectangle has the size of the destination, one pixel for each logical unit.
void BitBlt(DeviceContext& device, PointL corner, SizeL size, SourceBitmap source,
            TernaryRasterOperation operation);

/// @param source  its y counts from the lower edge of a bitmap that is stored bottom up.
void StretchDIBits(DeviceContext& device, PointL corner, SizeL size, PointL source,
                   SizeL sourceSize, const DibBytes& dib, TernaryRasterOperation operation);

/// The rows that a bitmap is given in.
struct ScanLines {
  std::uint32_t first = 0;  // counted from the lower edge of the picture, 0 the lowest
  std::uint32_t count = 0;
};

/// Draws a pixel of the bitmap on each of the device, from the corner on.
/// @param source  from the lower left of the whole picture, of which only some rows are there.
void SetDIBitsToDevice(DeviceContext& device, PointL corner, SizeL size, PointL source,
                       const ScanLines& lines, const DibBytes& dib);

/// @param operations  in bits 16 to 23 the one where the mask is set, in bits 24 to 31 where it is
///                    not.
void MaskBlt(DeviceContext& device, PointL corner, SizeL size, SourceBitmap source,
             const MaskBitmap& mask, std::uint32_t operations);

/// @param corners  of the destination, a parallelogram: upper left, upper right, lower left.
void PlgBlt(DeviceContext& device, const std::array<PointL, 3>& corners, const SourceBitmap& source,
            const MaskBitmap& mask);

/// @param transparent  what has this colour is not drawn.
void TransparentBlt(DeviceContext& device, PointL corner, SizeL size, const SourceBitmap& source,
                    ColorRef transparent);

/// Fails for negative sizes.
bool AlphaBlend(DeviceContext& device, PointL corner, SizeL size, const SourceBitmap& source,
                const BlendFunction& blend);

}  // namespace kelvane
