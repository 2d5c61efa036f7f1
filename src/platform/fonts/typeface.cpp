#include "platform/fonts/typeface.h"

#include <cmath>

#include "platform/fonts/font_description.h"
#include "platform/fonts/glyph_outline.h"
#include "platform/quartz/cg_standard_font.h"

namespace kelvane {
namespace {

/// A face of a font file, which stays mapped into memory.
class FileFont final : public CGFont {
 public:
  FileFont(CGFontDescription description, HarfBuzzOwned<hb_blob_t> file, unsigned index,
           hb_font_t* shaper)
      : CGFont(std::move(description)),
        file_(std::move(file)),
        index_(index),
        shaper_(hb_font_reference(shaper)) {}

  [[nodiscard]] CGFloat Advance(CGGlyph glyph) const override {
    const auto unitsPerEm = static_cast<CGFloat>(hb_face_get_upem(hb_font_get_face(shaper_.get())));
    return static_cast<CGFloat>(hb_font_get_glyph_h_advance(shaper_.get(), glyph)) / unitsPerEm;
  }

  [[nodiscard]] CGPath Outline(CGGlyph glyph) const override {
    return GlyphOutline(shaper_.get(), glyph);
  }

  [[nodiscard]] std::span<const char> Program() const override {
    unsigned size = 0;
    const char* const data = hb_blob_get_data(file_.get(), &size);
    return {data, size};
  }

  [[nodiscard]] unsigned ProgramIndex() const override { return index_; }

 private:
  HarfBuzzOwned<hb_blob_t> file_;
  unsigned index_;
  HarfBuzzOwned<hb_font_t> shaper_;
};

constexpr unsigned kStandardUnitsPerEm = 1000;

hb_bool_t StandardGlyph(hb_font_t* /*font*/, void* /*fontData*/, hb_codepoint_t character,
                        hb_codepoint_t* glyph, void* /*userData*/) {
  const auto code = WinAnsiCode(character);
  *glyph = code.value_or(0);
  return code ? 1 : 0;
}

hb_position_t StandardAdvance(hb_font_t* /*font*/, void* /*fontData*/, hb_codepoint_t glyph,
                              void* /*userData*/) {
  const CGFloat ems = CGFontGetStandardHelvetica()->Advance(static_cast<CGGlyph>(glyph));
  return static_cast<hb_position_t>(std::lround(ems * kStandardUnitsPerEm));
}

}  // namespace

Typeface::Typeface(CFOwned<const CGFont> font, HarfBuzzOwned<hb_font_t> shaper)
    : font_(std::move(font)),
      shaper_(std::move(shaper)),
      unitsPerEm_(hb_face_get_upem(hb_font_get_face(shaper_.get()))) {
  hb_font_make_immutable(shaper_.get());
}

std::unique_ptr<const Typeface> Typeface::Open(const std::string& path, unsigned index) {
  HarfBuzzOwned<hb_blob_t> file(hb_blob_create_from_file_or_fail(path.c_str()));
  if (!file) return nullptr;
  const HarfBuzzOwned<hb_face_t> face(hb_face_create(file.get(), index));
  hb_face_make_immutable(face.get());
  HarfBuzzOwned<hb_font_t> shaper(hb_font_create(face.get()));
  auto description = DescribeFace(shaper.get());
  if (!description) return nullptr;
  CFOwned<const CGFont> font(
      new FileFont(*std::move(description), std::move(file), index, shaper.get()));
  return std::unique_ptr<const Typeface>(new Typeface(std::move(font), std::move(shaper)));
}

std::unique_ptr<const Typeface> Typeface::StandardHelvetica() {
  const HarfBuzzOwned<hb_font_funcs_t> functions(hb_font_funcs_create());
  hb_font_funcs_set_nominal_glyph_func(functions.get(), StandardGlyph, nullptr, nullptr);
  hb_font_funcs_set_glyph_h_advance_func(functions.get(), StandardAdvance, nullptr, nullptr);
  const HarfBuzzOwned<hb_face_t> face(hb_face_create(hb_blob_get_empty(), 0));  // without tables
  HarfBuzzOwned<hb_font_t> shaper(hb_font_create(face.get()));
  hb_font_set_scale(shaper.get(), kStandardUnitsPerEm, kStandardUnitsPerEm);
  hb_font_set_funcs(shaper.get(), functions.get(), nullptr, nullptr);
  return std::unique_ptr<const Typeface>(
      new Typeface(CFShare(CGFontGetStandardHelvetica()), std::move(shaper)));
}

std::optional<CGGlyph> Typeface::VerticalGlyphFor(char32_t character) const {
  if (!GlyphFor(character)) return std::nullopt;
  const HarfBuzzOwned<hb_buffer_t> buffer(hb_buffer_create());
  const hb_codepoint_t text = character;
  hb_buffer_add_codepoints(buffer.get(), &text, 1, 0, 1);
  hb_buffer_set_direction(buffer.get(), HB_DIRECTION_TTB);  // which takes the vertical forms
  hb_buffer_guess_segment_properties(buffer.get());
  hb_shape(shaper_.get(), buffer.get(), nullptr, 0);
  unsigned count = 0;
  const hb_glyph_info_t* const glyphs = hb_buffer_get_glyph_infos(buffer.get(), &count);
  if (count != 1) return GlyphFor(character);
  return static_cast<CGGlyph>(glyphs[0].codepoint);
}

bool Typeface::HasGlyph(CGGlyph glyph) const {
  return glyph < hb_face_get_glyph_count(hb_font_get_face(shaper_.get()));
}

std::optional<CGGlyph> Typeface::GlyphFor(char32_t character) const {
  hb_codepoint_t glyph = 0;
  if (hb_font_get_nominal_glyph(shaper_.get(), character, &glyph) == 0) return std::nullopt;
  return static_cast<CGGlyph>(glyph);
}

}  // namespace kelvane
