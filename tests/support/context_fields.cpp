#include "support/context_fields.h"

#include <sstream>

namespace kelvane::test {
namespace {

std::ostream& operator<<(std::ostream& out, const XForm& x) {
  return out << x.eM11 << ' ' << x.eM12 << ' ' << x.eM21 << ' ' << x.eM22 << ' ' << x.eDx << ' '
             << x.eDy;
}

std::ostream& operator<<(std::ostream& out, const ContextColor& color) {
  return out << color.red << ' ' << color.green << ' ' << color.blue;
}

std::ostream& operator<<(std::ostream& out, const SIZEL& size) {
  return out << size.cx << ' ' << size.cy;
}

std::ostream& operator<<(std::ostream& out, const PointL& point) {
  return out << point.x << ' ' << point.y;
}

std::ostream& operator<<(std::ostream& out, const LogFontW& font) {
  out << font.lfHeight << ' ' << font.lfWidth << ' ' << font.lfEscapement << ' '
      << font.lfOrientation << ' ' << font.lfWeight;
  for (const std::uint8_t field :
       {font.lfItalic, font.lfUnderline, font.lfStrikeOut, font.lfCharSet, font.lfOutPrecision,
        font.lfClipPrecision, font.lfQuality, font.lfPitchAndFamily}) {
    out << ' ' << int{field};
  }
  for (const char16_t unit : font.lfFaceName)
    out << ' ' << std::uint32_t{unit};
  return out;
}

}  // namespace

std::string FieldsOf(const AbstractContext& context) {
  std::ostringstream out;
  for (const auto& [index, object] : context.objects)
    out << "object " << index << ' ' << object.get() << '\n';
  out << "currentObject " << context.currentObject << "\nworldTransform " << context.worldTransform
      << "\ninPath " << context.inPath << "\nclockwise " << context.clockwise << "\ncontext "
      << context.context << '\n';
  for (const XForm& transform : context.savedTransforms)
    out << "savedTransform " << transform << '\n';
  out << "sourcePath " << context.sourcePath << "\nbkColor " << context.bkColor << "\nfillColor "
      << context.fillColor << "\ntextColor " << context.textColor << "\nbkMode " << context.bkMode
      << "\nwindowExtYPositive " << context.windowExtYPositive << "\nhollowBrush "
      << context.hollowBrush << "\npenWidth " << context.penWidth << "\ntextAlign "
      << context.textAlign << "\ntextAngle " << context.textAngle << "\nfont " << context.font
      << "\nmapMode " << context.mapMode << "\nwindowExt " << context.windowExt << "\nviewportExt "
      << context.viewportExt << "\nwindowOrg " << context.windowOrg << "\nviewportOrg "
      << context.viewportOrg << '\n';
  return out.str();
}

}  // namespace kelvane::test
