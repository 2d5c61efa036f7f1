#pragma once

#include "gdi/device_context.h"
#include "gdi/figures.h"
#include "gdi/painting.h"

namespace kelvane {

// Where the figures of a call go: into the open path bracket, or onto the page when the call ends.

/// Draws figures that have nothing to do with the current position.
/// @param build  takes a FigurePath and adds them.
template <class Build>
void DrawFigures(DeviceContext& device, PaintKind kind, Build build) {
  const bool isInBracket = device.state.bracket.has_value();
  FigurePath figures(isInBracket ? device.bracketPath : device.scratch,
                     device.state.mapping.ToDevice());
  build(figures);
  device.state.figureIsOpen = false;
  if (!isInBracket) PaintPath(device, device.scratch, kind);
}

/// Draws from the current position on; what it becomes is up to `build`.
template <class Build>
void ContinueFigure(DeviceContext& device, Build build) {
  DeviceState& state = device.state;
  const bool isInBracket = state.bracket.has_value();
  FigurePath figures(isInBracket ? device.bracketPath : device.scratch, state.mapping.ToDevice());
  if (!isInBracket || !state.figureIsOpen) {
    figures.MoveTo(state.currentPosition);
    state.figureStart = state.currentPosition;
  }
  state.figureIsOpen = isInBracket;
  build(figures);
  if (!isInBracket) PaintPath(device, device.scratch, PaintKind::kStroke);
}

}  // namespace kelvane
