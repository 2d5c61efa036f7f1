#include "platform/pdf/pdf_font_program.h"

#include "platform/pdf/cff_charset.h"

namespace kelvane {
namespace {

constexpr hb_tag_t kCompactTable = HB_TAG('C', 'F', 'F', ' ');

/// @param file  a font file. @return its table of outlines.
std::string CompactTableOf(const std::string& file) {
  const HarfBuzzOwned<hb_blob_t> blob(hb_blob_create(
      file.data(), static_cast<unsigned>(file.size()), HB_MEMORY_MODE_READONLY, nullptr, nullptr));
  const HarfBuzzOwned<hb_face_t> face(hb_face_create(blob.get(), 0));
  const HarfBuzzOwned<hb_blob_t> table(hb_face_reference_table(face.get(), kCompactTable));
  const auto bytes = BytesOf(table.get());
  return {bytes.begin(), bytes.end()};
}

}  // namespace

std::optional<CGFontSubset> SubsetProgram(const CGFont& font, const std::set<CGGlyph>& glyphs) {
  const bool isCompact = font.Description().outlines == CGFontOutlines::kCompact;
  auto subset = SubsetOf(font, {.glyphs = glyphs, .keepsNumbers = isCompact});
  if (subset && isCompact) subset->bytes = CompactTableOf(subset->bytes);
  return subset;
}

std::vector<std::uint16_t> CharacterIdentifiers(const CGFont& font) {
  const HarfBuzzOwned<hb_face_t> face = FaceOf(font);
  const HarfBuzzOwned<hb_blob_t> table(hb_face_reference_table(face.get(), kCompactTable));
  return CffCharacterIdentifiers(BytesOf(table.get()), hb_face_get_glyph_count(face.get()));
}

}  // namespace kelvane
