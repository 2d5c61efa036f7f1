#pragma once

#include <span>

#include "gdi/device_context.h"
#include "gdi/pending_blits.h"

namespace kelvane {

/// @return whether a blit of SRCCOPY goes on, downwards or upwards, where the strips before it end:
///         as wide, of equal pixels, without a gap.
/// @param strips  not empty.
bool GoesOn(std::span<const PendingBlit> strips, const Blit& next);

/// Draws strips as the one picture that they are.
void PaintStrips(DeviceContext& device, std::span<const PendingBlit> strips);

}  // namespace kelvane
