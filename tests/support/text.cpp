#include "support/text.h"

#include <array>
#include <vector>

#include "platform/atsui/atsu_font.h"
#include "platform/quartz/cg_standard_font.h"

namespace kelvane::test {
namespace {

struct Disposer {
  void operator()(ATSUStyle style) const { ATSUDisposeStyle(style); }
  void operator()(ATSUTextLayout layout) const { ATSUDisposeTextLayout(layout); }
};
using Style = std::unique_ptr<ATSUStyleObject, Disposer>;
using Layout = std::unique_ptr<ATSUTextLayoutObject, Disposer>;

ATSUFontID Find(std::string_view name, FontNameCode code) {
  ATSUFontID font = kNoFont;
  ATSUFindFontFromName(name.data(), name.size(), code, kFontNoPlatformCode, kFontNoScriptCode,
                       kFontNoLanguageCode, &font);
  return font;
}

Fixed ToFixed(float value) {
  return static_cast<Fixed>(value * 65536);
}

Style MakeStyle(const TextSetting& setting) {
  Style style(new ATSUStyleObject(setting.fonts));
  const std::uint32_t italic = setting.italic ? 1 : 0;
  const std::uint32_t bold = setting.bold ? 1 : 0;
  const Fixed size = ToFixed(setting.size);
  const ATSUFontID font = setting.fonts.FindByFullName(setting.font);
  const std::array tags = {kATSUQDItalicTag, kATSUQDBoldfaceTag, kATSUSizeTag, kATSUFontTag};
  const std::array<ByteCount, 4> sizes = {4, 4, 4, 4};
  const std::array<const void*, 4> values = {&italic, &bold, &size, &font};
  ATSUSetAttributes(style.get(), tags.size(), tags.data(), sizes.data(), values.data());
  return style;
}

Layout MakeLayout(CGContextRef surface, std::u16string_view text, const TextSetting& setting) {
  const Style style = MakeStyle(setting);
  auto* const borrowed = style.get();
  const UniCharCount runLength = kATSUToTextEnd;
  ATSUTextLayout layout = nullptr;
  ATSUCreateTextLayoutWithTextPtr(text.data(), kATSUFromTextBeginning, kATSUToTextEnd,
                                  static_cast<UniCharCount>(text.size()), 1, &runLength, &borrowed,
                                  &layout);
  ATSUSetTransientFontMatching(layout, setting.usesStandIns);
  const Fixed rotation = ToFixed(setting.rotation);
  const std::array tags = {kATSUCGContextTag, kATSULineRotationTag};
  const std::array<ByteCount, 2> sizes = {sizeof surface, sizeof rotation};
  const std::array<const void*, 2> values = {&surface, &rotation};
  ATSUSetLayoutControls(layout, tags.size(), tags.data(), sizes.data(), values.data());
  return Layout(layout);
}

}  // namespace

ATSUFontID FontByFullName(std::string_view name) {
  return Find(name, kFontFullName);
}
ATSUFontID FontByFamily(std::string_view name) {
  return Find(name, kFontFamilyName);
}

void DrawText(CGContextRef surface, std::u16string_view text, const TextSetting& setting) {
  const Layout layout = MakeLayout(surface, text, setting);
  ATSUDrawText(layout.get(), kATSUFromTextBeginning, kATSUToTextEnd, ToFixed(setting.x),
               ToFixed(setting.y));
}

void DrawUnits(CGContextRef surface, std::u16string_view text, float advance,
               const TextSetting& setting) {
  const Layout layout = MakeLayout(surface, text, setting);
  float x = setting.x;
  for (const char16_t& unit : text) {
    ATSUSetTextPointerLocation(layout.get(), &unit, kATSUFromTextBeginning, kATSUToTextEnd, 1);
    ATSUDrawText(layout.get(), kATSUFromTextBeginning, kATSUToTextEnd, ToFixed(x),
                 ToFixed(setting.y));
    x += advance;
  }
}

void DrawHelvetica(CGContextRef surface, std::u16string_view text, CGFloat size,
                   const CGAffineTransform& matrix) {
  const CGFontRef font = CGFontGetStandardHelvetica();
  std::vector<CGPositionedGlyph> glyphs;
  CGPoint pen;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const CGGlyph glyph = WinAnsiCode(text[i]).value();
    glyphs.push_back({glyph, pen, text.substr(i, 1)});
    pen.x += font->Advance(glyph) * size;
  }
  surface->DrawGlyphRun({font, size, matrix, glyphs});
}

}  // namespace kelvane::test
