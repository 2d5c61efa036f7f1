#include "platform/svg/svg_gradient.h"

#include "platform/svg/svg_color.h"
#include "platform/svg/svg_number.h"

namespace kelvane {
namespace {

void AppendStop(std::string& text, const CGGradientStop& stop) {
  text += "<stop";
  AppendSvgAttribute(text, "offset", stop.location);
  text += " stop-color=\"" + SvgColor(stop.color) + "\"";
  if (stop.color.alpha != 1) AppendSvgAttribute(text, "stop-opacity", stop.color.alpha);
  text += "/>";
}

}  // namespace

std::string SvgGradient(const CGAxialShading& shading, const CGAffineTransform& matrix,
                        SvgDefinitions& definitions) {
  std::string text = " gradientUnits=\"userSpaceOnUse\"";
  AppendSvgAttribute(text, "x1", shading.start.x);
  AppendSvgAttribute(text, "y1", shading.start.y);
  AppendSvgAttribute(text, "x2", shading.end.x);
  AppendSvgAttribute(text, "y2", shading.end.y);
  AppendSvgTransform(text, "gradientTransform", matrix);
  text += '>';
  for (const CGGradientStop& stop : shading.stops)
    AppendStop(text, stop);
  text += "</linearGradient>";
  return definitions.Reference("linearGradient", std::move(text));
}

}  // namespace kelvane
