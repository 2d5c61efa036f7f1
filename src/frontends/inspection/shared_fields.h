#pragma once

#include <string>

#include "frontends/inspection/field_writer.h"
#include "metafile/emf/emf_region_data.h"
#include "metafile/gdi_objects.h"
#include "metafile/stored_dib.h"

namespace kelvane {

// Parts that records of several families have.

void AddRegion(FieldWriter& fields, const RegionData& region);

/// What the bitmap's header says, and how many bytes there are of it and of the pixels; nothing
/// when there is no bitmap.
/// @param owner  "Src" or "Mask", the end of the names; empty when there is but one bitmap.
void AddDib(FieldWriter& fields, const std::string& owner, const StoredDib& dib);

/// A text that has room for more, in UTF-16 or in a code page that is not known here.
template <std::size_t count>
void AddFaceName(FieldWriter& fields, const std::array<char16_t, count>& name) {
  fields.Field("Facename", name);
}
template <std::size_t count>
void AddFaceName(FieldWriter& fields, const std::array<char, count>& name) {
  const auto* start = reinterpret_cast<const unsigned char*>(name.data());
  fields.Field("Facename", UpToNul(ArrayView<char>(start, count)));
}

template <class Number, class Unit>
void AddLogFont(FieldWriter& fields, const BasicLogFont<Number, Unit>& font) {
  fields.Field("Height", font.height)
      .Field("Width", font.width)
      .Field("Escapement", font.escapement)
      .Field("Orientation", font.orientation)
      .Field("Weight", font.weight)
      .Field("Italic", font.italic)
      .Field("Underline", font.underline)
      .Field("StrikeOut", font.strikeOut)
      .Field("CharSet", font.charSet)
      .Field("OutPrecision", font.outPrecision)
      .Field("ClipPrecision", font.clipPrecision)
      .Field("Quality", font.quality)
      .Field("PitchAndFamily", font.pitchAndFamily);
  AddFaceName(fields, font.faceName);
}

}  // namespace kelvane
