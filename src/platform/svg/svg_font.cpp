#include "platform/svg/svg_font.h"

#include <array>
#include <string_view>
#include <utility>

#include "base/base64.h"
#include "platform/quartz/cg_font_subset.h"
#include "platform/svg/svg_woff2.h"

namespace kelvane {
namespace {

/// Families that stand for each other: what comes with Linux, and what Windows has.
constexpr std::array<std::pair<std::string_view, std::string_view>, 8> kRelatives = {{
    {"Liberation Sans", "Arial,Helvetica"},
    {"Liberation Sans Narrow", "'Arial Narrow'"},
    {"Liberation Serif", "'Times New Roman',Times"},
    {"Liberation Mono", "'Courier New',Courier"},
    {"Carlito", "Calibri"},
    {"Caladea", "Cambria"},
    {"DejaVu Sans", "Verdana"},
    {"Junction", "Corbel"},
}};

/// @return the face's family, fit for quotes.
std::string FamilyOf(hb_face_t* face) {
  std::array<char, 128> name = {};
  auto size = static_cast<unsigned>(name.size());
  hb_ot_name_get_utf8(face, HB_OT_NAME_ID_FONT_FAMILY, HB_LANGUAGE_INVALID, &size, name.data());
  std::string family;
  for (const char c : std::string_view(name.data(), size)) {
    constexpr std::string_view kMeaningful = "'\"\\<>&";
    const bool isPlain = static_cast<unsigned char>(c) >= ' ' && c != '\x7F';
    if (isPlain && kMeaningful.find(c) == std::string_view::npos) family += c;
  }
  return family;
}

std::string GenericFamily(const CGFontDescription& face) {
  if (face.isFixedPitch) return "monospace";
  return face.isSerif ? "serif" : "sans-serif";
}

/// What text asks of a family: both the rule of a face and that of its text say so.
std::string StyleOf(const CGFontDescription& face) {
  constexpr int kRegular = 400;
  std::string style;
  if (face.weight != 0 && face.weight != kRegular) {
    style += "font-weight:" + std::to_string(face.weight) + ";";
  }
  if (face.isItalic) style += "font-style:italic;";
  return style;
}

bool HasOutlinesForBrowsers(const CGFontDescription& face) {
  return face.outlines == CGFontOutlines::kTrueType || face.outlines == CGFontOutlines::kCompact;
}

/// @return what of a face shows these characters, as a WOFF2 file; empty when it is too broken.
std::string Carried(const CGFont& font, const std::map<char32_t, CGGlyph>& characters) {
  CGFontSubsetWish wish = {.glyphs = {}, .keepsStyle = true};
  for (const auto& [character, glyph] : characters)
    wish.glyphs.insert(glyph);
  const auto subset = SubsetOf(font, wish);
  if (!subset) return {};
  std::map<char32_t, CGGlyph> carried;
  for (const auto& [character, glyph] : characters)
    carried[character] = subset->glyphs.at(glyph);
  return Woff2File(subset->bytes, carried);
}

}  // namespace

SvgFont::SvgFont(CGFontRef font, std::string name) : font_(CFShare(font)), name_(std::move(name)) {
  if (font->Program().empty()) return;
  const HarfBuzzOwned<hb_face_t> face = FaceOf(*font);
  characters_.reset(hb_font_create(face.get()));
}

bool SvgFont::Shows(CGGlyph glyph, char32_t character) {
  if (!characters_) return true;
  hb_codepoint_t found = 0;
  if (!hb_font_get_nominal_glyph(characters_.get(), character, &found) || found != glyph) {
    return false;
  }
  shown_[character] = glyph;
  return true;
}

std::string SvgFont::Rules(bool isEmbedded) const {
  const CGFontDescription& face = font_->Description();
  const std::string source = isEmbedded ? Source() : std::string();
  const std::string style = StyleOf(face);
  std::string rules;
  std::string families;
  if (!source.empty()) {
    rules = "@font-face{font-family:" + name_ + ";" + style + "src:url(" + source + ")}";
    families = name_ + ",";
  }
  const std::string family =
      characters_ ? FamilyOf(hb_font_get_face(characters_.get())) : std::string();
  if (!family.empty()) families += "'" + family + "',";
  for (const auto& [ours, theirs] : kRelatives) {
    if (family == ours) families.append(theirs).append(",");
  }
  // Browsers look for xml:space at an element of text alone.
  return rules + "." + name_ + "{" + style +
         "white-space:pre;font-kerning:none;font-family:" + families + GenericFamily(face) + "}";
}

/// @return the face as data; empty when it may not travel or cannot.
std::string SvgFont::Source() const {
  const CGFontDescription& face = font_->Description();
  if (!characters_ || shown_.empty()) return {};
  if (!HasOutlinesForBrowsers(face) || !MayTravelInPart(face)) return {};
  const std::string file = Carried(*font_, shown_);
  if (file.empty()) return {};
  std::string source = "data:font/woff2;base64,";
  AppendBase64(source, {reinterpret_cast<const unsigned char*>(file.data()), file.size()});
  return source;
}

SvgFont& SvgFonts::FontFor(CGFontRef font) {
  SvgFont*& known = byFace_[font];
  if (known == nullptr) {
    fonts_.push_back(std::make_unique<SvgFont>(font, "f" + std::to_string(fonts_.size())));
    known = fonts_.back().get();
  }
  return *known;
}

std::string SvgFonts::Rules(bool areEmbedded) const {
  std::string rules;
  for (const auto& font : fonts_)
    rules += font->Rules(areEmbedded);
  return rules;
}

}  // namespace kelvane
