#include "platform/quartz/cg_graphics_state.h"

#include <cmath>

namespace kelvane {

CGStrokeGeometry StrokeGeometry(const CGGraphicsState& state) {
  if (state.ctm == CGAffineTransformIdentity) return {state.lineWidth, 1, false};
  const double determinant = std::abs(Determinant(state.ctm));
  if (determinant == 0) return {0, 1, false};
  const bool isAnyPen = state.lineWidth == 0 && state.dash.IsSolid();  // nothing to be deformed
  if (isAnyPen || ScalesEvenly(state.ctm)) {
    const double scale = std::sqrt(determinant);
    return {static_cast<CGFloat>(state.lineWidth * scale), static_cast<CGFloat>(scale), false};
  }
  const CGAffineTransform inverse = CGAffineTransformInvert(state.ctm);
  if (!IsFinite(inverse)) return {0, 1, false};  // as good as singular
  return {state.lineWidth, 1, true, state.ctm, inverse};
}

CGFloat TextStrokeWidth(const CGGraphicsState& state) {
  return static_cast<CGFloat>(state.lineWidth * LengthScale(state.ctm));
}

// The stroke is as wide as a bold face's stems are wider. Sharp corners of it are cut off, not
// drawn out.
CGGraphicsState Emboldened(const CGGraphicsState& state, CGFloat size) {
  constexpr CGFloat kStrokeWidth = 1.0F / 24;  // ems
  constexpr CGFloat kMiterLimit = 2;
  CGGraphicsState bold = state;
  if (state.textMode != kCGTextFill) return bold;
  bold.strokeColor = state.fillColor;
  bold.strokePattern = state.fillPattern;
  bold.textMode = kCGTextFillStroke;
  bold.lineWidth = size * kStrokeWidth;
  bold.miterLimit = kMiterLimit;
  return bold;
}

}  // namespace kelvane
