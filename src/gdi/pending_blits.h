#pragma once

#include <vector>

#include "gdi/blit.h"
#include "gdi/clip_state.h"
#include "metafile/gdi_enumerations.h"

namespace kelvane {

/// A blit that looks at no brush.
struct PendingBlit {
  Blit blit;
  TernaryRasterOperation operation{};
};

/// Blits that may be one picture with those that follow: the mask and the image of a picture with
/// holes, and the strips that a printer's driver cut a picture into.
///
/// They keep the clip they were made under. So whoever plays calls DrawPendingBlits before any
/// function that marks, but not before those that change the state.
struct PendingBlits {
  std::vector<PendingBlit> blits;
  ClipState clip;
};

struct DeviceContext;

/// Draws a blit of SRCCOPY, SRCAND, SRCPAINT or SRCINVERT, or keeps it for those that follow.
void PostBlit(DeviceContext& device, Blit blit, TernaryRasterOperation operation);

/// Draws what waits for more.
void DrawPendingBlits(DeviceContext& device);

}  // namespace kelvane
