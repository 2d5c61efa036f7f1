#pragma once

#include "gdi/clip_state.h"
#include "gdi/geometry.h"
#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane::gdiplus {

/// All of a graphics that Save keeps and Restore brings back. What is large is shared.
struct GraphicsState {
  TransformD world;
  EmfPlusUnit pageUnit = EmfPlusUnit::kDisplay;
  double pageScale = 1;

  /// From the page of the innermost container to the device; the identity outside of containers.
  TransformD container;

  /// In device units. The clips of the containers around are its meta region.
  ClipState clip;

  PointL renderingOrigin;  // of hatches, device units
  EmfPlusInterpolationMode interpolation = EmfPlusInterpolationMode::kDefault;
  EmfPlusPixelOffsetMode pixelOffset = EmfPlusPixelOffsetMode::kDefault;
  EmfPlusCompositingMode compositing = EmfPlusCompositingMode::kSourceOver;

  /// True of states that come from one another; others may be equal without it.
  friend bool operator==(const GraphicsState&, const GraphicsState&) = default;
};

}  // namespace kelvane::gdiplus
