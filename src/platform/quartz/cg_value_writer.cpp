#include "platform/quartz/cg_value_writer.h"

#include <utility>

namespace kelvane {
namespace {

CGColor Opaque(CGColor color) {
  color.alpha = 1;
  return color;
}

/// The dashes as long as they are where the stroke is drawn.
CGLineDash Scaled(CGLineDash dash, CGFloat scale) {
  for (CGFloat& length : dash.lengths)
    length *= scale;
  dash.phase *= scale;
  return dash;
}

/// Writes a value unless the output holds it already.
template <class Value, class Operator>
void Bring(Value& held, Value wanted, CGValueOperators& output, Operator write) {
  if (held == wanted) return;
  held = std::move(wanted);
  (output.*write)(held);
}

/// A pattern stands in the place of a colour, which has to be written again after it.
template <class Paint, class ColorOperator, class PatternOperator>
void BringPaint(Paint& held, const CGColor& color, const CGSharedPattern& pattern,
                CGValueOperators& output, ColorOperator writeColor, PatternOperator writePattern) {
  if (pattern != nullptr) {
    Bring(held.pattern, pattern, output, writePattern);
  } else if (held.pattern != nullptr || !(held.color == Opaque(color))) {
    held = {Opaque(color), nullptr};
    (output.*writeColor)(held.color);
  }
}

}  // namespace

void CGValueWriter::Bring(const CGGraphicsState& state, CGStateNeeds needs,
                          CGValueOperators& output) {
  using Output = CGValueOperators;
  const bool strokesText = needs.text && Strokes(state.textMode);
  if (needs.fill || (needs.text && Fills(state.textMode))) {
    BringPaint(held_.fill, state.fillColor, state.fillPattern, output, &Output::FillColor,
               &Output::FillPattern);
  }
  if (needs.stroke || strokesText) BringStroke(state, strokesText, output);
  if (needs.text) kelvane::Bring(held_.textMode, state.textMode, output, &Output::TextMode);
  kelvane::Bring(held_.compositing, {state.alpha, state.blendMode}, output, &Output::Compositing);
}

// The outlines of glyphs are drawn solid, and in page space.
void CGValueWriter::BringStroke(const CGGraphicsState& state, bool isText,
                                CGValueOperators& output) {
  using Output = CGValueOperators;
  const CGStrokeGeometry geometry =
      isText ? CGStrokeGeometry{TextStrokeWidth(state), 1, false} : StrokeGeometry(state);
  BringPaint(held_.stroke, state.strokeColor, state.strokePattern, output, &Output::StrokeColor,
             &Output::StrokePattern);
  kelvane::Bring(held_.lineWidth, geometry.width, output, &Output::LineWidth);
  kelvane::Bring(held_.miterLimit, state.miterLimit, output, &Output::MiterLimit);
  kelvane::Bring(held_.lineCap, state.lineCap, output, &Output::LineCap);
  kelvane::Bring(held_.lineJoin, state.lineJoin, output, &Output::LineJoin);
  const bool isSolid = isText || state.dash.IsSolid();
  if (isSolid && held_.dash.IsSolid()) return;
  kelvane::Bring(held_.dash, isSolid ? CGLineDash() : Scaled(state.dash, geometry.scale), output,
                 &Output::LineDash);
}

void CGValueWriter::Restore() {
  held_ = std::move(saved_.back());
  saved_.pop_back();
}

}  // namespace kelvane
