#include "platform/quartz/cg_graphics_state.h"

#include <cmath>

namespace kelvane {

CGStrokeGeometry StrokeGeometry(const CGGraphicsState& state) {
  if (state.ctm == CGAffineTransformIdentity) return {state.lineWidth, false};
  const double determinant = std::abs(Determinant(state.ctm));
  if (determinant == 0) return {0, false};
  if (ScalesEvenly(state.ctm)) {
    return {static_cast<CGFloat>(state.lineWidth * std::sqrt(determinant)), false};
  }
  const CGAffineTransform inverse = CGAffineTransformInvert(state.ctm);
  if (!IsFinite(inverse)) return {0, false};  // as good as singular
  return {state.lineWidth, true, state.ctm, inverse};
}

CGFloat TextStrokeWidth(const CGGraphicsState& state) {
  return static_cast<CGFloat>(state.lineWidth * std::sqrt(std::abs(Determinant(state.ctm))));
}

}  // namespace kelvane
