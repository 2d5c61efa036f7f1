#include "gdiplus/string_font.h"

#include <algorithm>

namespace kelvane::gdiplus {
namespace {

/// World units in an em. Of the transforms only the world's counts where the unit is one that can
/// be measured.
double EmOf(const Graphics& graphics, const EmfPlusFont& font) {
  if (font.unit == EmfPlusUnit::kWorld) return font.emSize;
  const GraphicsState& state = graphics.state;
  const double pageUnit = state.pageScale * PixelsIn(graphics, state.pageUnit).y;
  return font.emSize * PixelsIn(graphics, font.unit).y / pageUnit;
}

/// The font in the size of one unit: faces are shared by fonts of all sizes, which need not be
/// whole numbers.
LogFont OfOneUnit(const EmfPlusFont& font) {
  constexpr std::int32_t kBold = 700;
  LogFont logical;
  logical.height = -1;
  logical.weight = (font.style & kEmfPlusFontBold) != 0 ? kBold : 0;
  logical.italic = (font.style & kEmfPlusFontItalic) != 0 ? 1 : 0;
  logical.charSet = DEFAULT_CHARSET;
  const std::size_t length = std::min(font.family.size(), logical.faceName.size());
  std::copy_n(font.family.begin(), length, logical.faceName.begin());
  return logical;
}

}  // namespace

std::optional<TextFont> ResolveFont(Graphics& graphics, const EmfPlusFont& font) {
  constexpr double kMost = 1e30;
  const double em = EmOf(graphics, font);
  if (!(em > 0 && em < kMost)) return std::nullopt;
  TextFont resolved = graphics.fonts->Resolve(OfOneUnit(font), 1);
  resolved.em = em;
  resolved.ascent *= em;
  resolved.descent *= em;
  resolved.leading *= em;
  return resolved;
}

}  // namespace kelvane::gdiplus
