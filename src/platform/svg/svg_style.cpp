#include "platform/svg/svg_style.h"

#include <algorithm>

#include "platform/svg/svg_number.h"

namespace kelvane {
namespace {

void AppendWord(std::string& text, const char* name, std::string_view word) {
  text.append(" ").append(name).append("=\"").append(word).append("\"");
}

/// What is as thin as can be has a thousandth of the page where nothing else is known: that is
/// about a pixel.
double WidthOf(const SvgMark& mark, const SvgPaints& paints) {
  if (mark.stroke.width > 0) return mark.stroke.width;
  const double scale = LengthScale(mark.transform);
  return paints.Page().Extent() / 1000 / (scale > 0 ? scale : 1);
}

void AppendDash(std::string& text, const CGLineDash& dash, double scale) {
  if (dash.IsSolid()) return;
  text += " stroke-dasharray=\"";
  const char* between = "";
  for (const CGFloat length : dash.lengths) {
    text += between;
    AppendSvgNumber(text, length * scale);
    between = " ";
  }
  text += '"';
  if (dash.phase != 0) AppendSvgAttribute(text, "stroke-dashoffset", dash.phase * scale);
}

void AppendJoin(std::string& text, const CGGraphicsState& state) {
  constexpr CGFloat kUsualLimit = 4;
  if (state.lineJoin == kCGLineJoinRound) AppendWord(text, "stroke-linejoin", "round");
  if (state.lineJoin == kCGLineJoinBevel) AppendWord(text, "stroke-linejoin", "bevel");
  if (state.lineJoin != kCGLineJoinMiter || state.miterLimit == kUsualLimit) return;
  AppendSvgAttribute(text, "stroke-miterlimit", std::max(state.miterLimit, 1.0F));
}

void AppendStroke(std::string& text, const CGGraphicsState& state, const SvgMark& mark,
                  SvgPaints& paints) {
  if (IsHairline(state, mark)) AppendWord(text, "class", kSvgHairline);
  AppendWord(text, "stroke",
             paints.PaintOf(state.strokeColor, state.strokePattern, mark.transform));
  if (state.alpha != 1) AppendSvgAttribute(text, "stroke-opacity", state.alpha);
  if (const double width = WidthOf(mark, paints); width != 1) {
    AppendSvgAttribute(text, "stroke-width", width);
  }
  if (state.lineCap == kCGLineCapRound) AppendWord(text, "stroke-linecap", "round");
  if (state.lineCap == kCGLineCapSquare) AppendWord(text, "stroke-linecap", "square");
  AppendJoin(text, state);
  AppendDash(text, state.dash, mark.stroke.lengthScale);
}

}  // namespace

bool IsHairline(const CGGraphicsState& state, const SvgMark& mark) {
  return mark.isPath && mark.strokes && !(mark.stroke.width > 0) && state.dash.IsSolid();
}

void AppendSvgStyle(std::string& text, const CGGraphicsState& state, const SvgMark& mark,
                    SvgPaints& paints) {
  if (!mark.fills) {
    AppendWord(text, "fill", "none");
  } else {
    const std::string paint = paints.PaintOf(state.fillColor, state.fillPattern, mark.transform);
    if (paint != "#000") AppendWord(text, "fill", paint);
    if (state.alpha != 1) AppendSvgAttribute(text, "fill-opacity", state.alpha);
    if (mark.isEvenOdd) AppendWord(text, "fill-rule", "evenodd");
  }
  if (mark.strokes) AppendStroke(text, state, mark, paints);
}

}  // namespace kelvane
