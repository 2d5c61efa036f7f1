#include "platform/quartz/cg_value_writer.h"

namespace kelvane {
namespace {

CGColor Opaque(CGColor color) {
  color.alpha = 1;
  return color;
}

}  // namespace

void CGValueWriter::Bring(const CGGraphicsState& state, CGStateNeeds needs,
                          CGValueOperators& output) {
  using Output = CGValueOperators;
  const bool strokesText = needs.text && Strokes(state.textMode);
  const bool fills = needs.fill || (needs.text && Fills(state.textMode));
  const bool strokes = needs.stroke || strokesText;
  const auto width = [&] {
    return strokesText ? TextStrokeWidth(state) : StrokeGeometry(state).width;
  };
  const auto bring = [&output](auto& held, const auto& wanted, auto write) {
    if (held == wanted) return;
    held = wanted;
    (output.*write)(held);
  };
  // A line a value: held, wanted, written by.
  if (fills) bring(held_.fillColor, Opaque(state.fillColor), &Output::FillColor);
  if (strokes) bring(held_.strokeColor, Opaque(state.strokeColor), &Output::StrokeColor);
  if (strokes) bring(held_.lineWidth, width(), &Output::LineWidth);
  if (strokes) bring(held_.miterLimit, state.miterLimit, &Output::MiterLimit);
  if (needs.text) bring(held_.textMode, state.textMode, &Output::TextMode);
}

void CGValueWriter::Restore() {
  held_ = saved_.back();
  saved_.pop_back();
}

}  // namespace kelvane
