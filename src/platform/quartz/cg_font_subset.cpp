#include "platform/quartz/cg_font_subset.h"

#include <algorithm>
#include <iterator>
#include <new>

namespace kelvane {
namespace {

constexpr hb_tag_t kStyleTable = HB_TAG('O', 'S', '/', '2');

// Names, characters, layout, raster tables.
constexpr hb_tag_t kDroppedTables[] = {
    HB_TAG('n', 'a', 'm', 'e'), HB_TAG('c', 'm', 'a', 'p'), HB_TAG('p', 'o', 's', 't'),
    HB_TAG('G', 'S', 'U', 'B'), HB_TAG('G', 'P', 'O', 'S'), HB_TAG('G', 'D', 'E', 'F'),
    HB_TAG('k', 'e', 'r', 'n'), HB_TAG('g', 'a', 's', 'p'), HB_TAG('v', 'h', 'e', 'a'),
    HB_TAG('v', 'm', 't', 'x'), HB_TAG('V', 'O', 'R', 'G'), HB_TAG('M', 'A', 'T', 'H'),
    HB_TAG('C', 'O', 'L', 'R'), HB_TAG('C', 'P', 'A', 'L'), HB_TAG('V', 'D', 'M', 'X'),
    HB_TAG('h', 'd', 'm', 'x'), HB_TAG('L', 'T', 'S', 'H')};

/// A face's tables without those that are dropped anyway: what they say of all the characters and
/// glyphs of the face would be gathered first.
struct KeptTables {
  hb_face_t* whole;
  bool keepsStyle;

  [[nodiscard]] bool Keep(hb_tag_t table) const {
    if (table == kStyleTable) return keepsStyle;
    return std::ranges::find(kDroppedTables, table) == std::end(kDroppedTables);
  }
};

hb_blob_t* KeptTable(hb_face_t* /*face*/, hb_tag_t table, void* keptTables) {
  const auto& kept = *static_cast<const KeptTables*>(keptTables);
  return kept.Keep(table) ? hb_face_reference_table(kept.whole, table) : hb_blob_get_empty();
}

HarfBuzzOwned<hb_subset_plan_t> MakePlan(hb_face_t* face, const CGFontSubsetWish& wish) {
  const HarfBuzzOwned<hb_subset_input_t> input(hb_subset_input_create_or_fail());
  if (!input) throw std::bad_alloc();
  hb_subset_input_set_flags(
      input.get(), HB_SUBSET_FLAGS_NO_HINTING | HB_SUBSET_FLAGS_NOTDEF_OUTLINE |
                       (wish.keepsNumbers ? HB_SUBSET_FLAGS_RETAIN_GIDS : HB_SUBSET_FLAGS_DEFAULT));
  for (const CGGlyph glyph : wish.glyphs)
    hb_set_add(hb_subset_input_glyph_set(input.get()), glyph);
  hb_set_t* const dropped = hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
  for (const hb_tag_t table : kDroppedTables)
    hb_set_add(dropped, table);
  if (!wish.keepsStyle) hb_set_add(dropped, kStyleTable);
  return HarfBuzzOwned<hb_subset_plan_t>(hb_subset_plan_create_or_fail(face, input.get()));
}

}  // namespace

HarfBuzzOwned<hb_face_t> FaceOf(const CGFont& font) {
  const auto program = font.Program();
  const HarfBuzzOwned<hb_blob_t> file(hb_blob_create(program.data(),
                                                     static_cast<unsigned>(program.size()),
                                                     HB_MEMORY_MODE_READONLY, nullptr, nullptr));
  return HarfBuzzOwned<hb_face_t>(hb_face_create(file.get(), font.ProgramIndex()));
}

std::span<const unsigned char> BytesOf(hb_blob_t* blob) {
  unsigned size = 0;
  const char* data = hb_blob_get_data(blob, &size);
  return {reinterpret_cast<const unsigned char*>(data), size};
}

std::optional<CGFontSubset> SubsetOf(const CGFont& font, const CGFontSubsetWish& wish) {
  const HarfBuzzOwned<hb_face_t> whole = FaceOf(font);
  KeptTables kept = {whole.get(), wish.keepsStyle};
  const HarfBuzzOwned<hb_face_t> face(hb_face_create_for_tables(KeptTable, &kept, nullptr));
  const auto plan = MakePlan(face.get(), wish);
  const HarfBuzzOwned<hb_face_t> cut(plan ? hb_subset_plan_execute_or_fail(plan.get()) : nullptr);
  if (!cut) return std::nullopt;

  const HarfBuzzOwned<hb_blob_t> blob(hb_face_reference_blob(cut.get()));
  const auto bytes = BytesOf(blob.get());
  CGFontSubset subset;
  subset.bytes.assign(bytes.begin(), bytes.end());
  const hb_map_t* const numbers = hb_subset_plan_old_to_new_glyph_mapping(plan.get());
  for (const CGGlyph glyph : wish.glyphs) {
    const hb_codepoint_t number = hb_map_get(numbers, glyph);
    subset.glyphs[glyph] =
        number == HB_MAP_VALUE_INVALID ? CGGlyph{0} : static_cast<CGGlyph>(number);
  }
  return subset;
}

// Where several of the first four bits are set the most lenient counts. A document holds subsets of
// outlines, so a face that may travel only whole or only as bitmaps may not travel.
bool MayTravelInPart(const CGFontDescription& face) {
  constexpr unsigned kUsage = 0x000F;
  constexpr unsigned kRestricted = 0x0002;
  constexpr unsigned kNoSubsetting = 0x0100;
  constexpr unsigned kBitmapsOnly = 0x0200;
  return (face.licence & kUsage) != kRestricted &&
         (face.licence & (kNoSubsetting | kBitmapsOnly)) == 0;
}

}  // namespace kelvane
