#include "platform/pdf/pdf_font_program.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>

#include <hb-subset.h>

#include "platform/pdf/cff_charset.h"

namespace kelvane {
namespace {

template <auto kDestroy>
struct Destroyer {
  template <class T>
  void operator()(T* object) const {
    kDestroy(object);
  }
};

using Blob = std::unique_ptr<hb_blob_t, Destroyer<hb_blob_destroy>>;
using Face = std::unique_ptr<hb_face_t, Destroyer<hb_face_destroy>>;
using Input = std::unique_ptr<hb_subset_input_t, Destroyer<hb_subset_input_destroy>>;
using Plan = std::unique_ptr<hb_subset_plan_t, Destroyer<hb_subset_plan_destroy>>;

constexpr hb_tag_t kCompactTable = HB_TAG('C', 'F', 'F', ' ');

// What a composite font needs nothing of (ISO 32000-1, 9.9): names, characters, layout, raster
// tables.
constexpr hb_tag_t kDroppedTables[] = {
    HB_TAG('n', 'a', 'm', 'e'), HB_TAG('O', 'S', '/', '2'), HB_TAG('c', 'm', 'a', 'p'),
    HB_TAG('p', 'o', 's', 't'), HB_TAG('G', 'S', 'U', 'B'), HB_TAG('G', 'P', 'O', 'S'),
    HB_TAG('G', 'D', 'E', 'F'), HB_TAG('k', 'e', 'r', 'n'), HB_TAG('g', 'a', 's', 'p'),
    HB_TAG('v', 'h', 'e', 'a'), HB_TAG('v', 'm', 't', 'x'), HB_TAG('V', 'O', 'R', 'G'),
    HB_TAG('M', 'A', 'T', 'H'), HB_TAG('C', 'O', 'L', 'R'), HB_TAG('C', 'P', 'A', 'L'),
    HB_TAG('V', 'D', 'M', 'X'), HB_TAG('h', 'd', 'm', 'x'), HB_TAG('L', 'T', 'S', 'H')};

/// The face's tables without those that are dropped anyway: what they say of all the characters and
/// glyphs of the face would be gathered first.
hb_blob_t* KeptTable(hb_face_t* /*face*/, hb_tag_t table, void* whole) {
  if (std::ranges::find(kDroppedTables, table) != std::end(kDroppedTables))
    return hb_blob_get_empty();
  return hb_face_reference_table(static_cast<hb_face_t*>(whole), table);
}

Face FaceOf(const CGFont& font) {
  const auto program = font.Program();
  const Blob file(hb_blob_create(program.data(), static_cast<unsigned>(program.size()),
                                 HB_MEMORY_MODE_READONLY, nullptr, nullptr));
  return Face(hb_face_create(file.get(), font.ProgramIndex()));
}

std::span<const unsigned char> BytesOf(hb_blob_t* blob) {
  unsigned size = 0;
  const char* data = hb_blob_get_data(blob, &size);
  return {reinterpret_cast<const unsigned char*>(data), size};
}

Plan MakePlan(hb_face_t* face, const std::set<CGGlyph>& glyphs, bool keepsNumbers) {
  const Input input(hb_subset_input_create_or_fail());
  if (!input) throw std::bad_alloc();
  hb_subset_input_set_flags(
      input.get(), HB_SUBSET_FLAGS_NO_HINTING | HB_SUBSET_FLAGS_NOTDEF_OUTLINE |
                       (keepsNumbers ? HB_SUBSET_FLAGS_RETAIN_GIDS : HB_SUBSET_FLAGS_DEFAULT));
  for (const CGGlyph glyph : glyphs)
    hb_set_add(hb_subset_input_glyph_set(input.get()), glyph);
  hb_set_t* const dropped = hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
  for (const hb_tag_t table : kDroppedTables)
    hb_set_add(dropped, table);
  return Plan(hb_subset_plan_create_or_fail(face, input.get()));
}

}  // namespace

std::optional<PdfFontProgram> SubsetProgram(const CGFont& font, const std::set<CGGlyph>& glyphs) {
  const bool isCompact = font.Description().outlines == CGFontOutlines::kCompact;
  const Face whole = FaceOf(font);
  const Face face(hb_face_create_for_tables(KeptTable, whole.get(), nullptr));
  const Plan plan = MakePlan(face.get(), glyphs, isCompact);
  const Face subset(plan ? hb_subset_plan_execute_or_fail(plan.get()) : nullptr);
  if (!subset) return std::nullopt;

  const Blob blob(isCompact ? hb_face_reference_table(subset.get(), kCompactTable)
                            : hb_face_reference_blob(subset.get()));
  const auto bytes = BytesOf(blob.get());
  PdfFontProgram program;
  program.bytes.assign(bytes.begin(), bytes.end());
  const hb_map_t* const numbers = hb_subset_plan_old_to_new_glyph_mapping(plan.get());
  for (const CGGlyph glyph : glyphs) {
    const hb_codepoint_t number = hb_map_get(numbers, glyph);
    program.glyphs[glyph] =
        number == HB_MAP_VALUE_INVALID ? CGGlyph{0} : static_cast<CGGlyph>(number);
  }
  return program;
}

std::vector<std::uint16_t> CharacterIdentifiers(const CGFont& font) {
  const Face face = FaceOf(font);
  const Blob table(hb_face_reference_table(face.get(), kCompactTable));
  return CffCharacterIdentifiers(BytesOf(table.get()), hb_face_get_glyph_count(face.get()));
}

}  // namespace kelvane
