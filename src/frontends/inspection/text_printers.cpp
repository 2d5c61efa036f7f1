#include "frontends/inspection/record_printers.h"
#include "frontends/inspection/shared_fields.h"
#include "metafile/emf/emf_font_records.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/emf/emf_text_records.h"

namespace kelvane {
namespace {

void AddScale(FieldWriter& fields, const TextScale& scale) {
  fields.Field("iGraphicsMode", scale.graphicsMode)
      .Field("exScale", scale.exScale)
      .Field("eyScale", scale.eyScale);
}

template <class Unit>
void AddText(FieldWriter& fields, const TextItem<Unit>& text) {
  fields.Field("Reference", text.reference)
      .Field("Options", text.options)
      .Field("Rectangle", text.rectangle);
  if ((text.options & ETO_GLYPH_INDEX) != 0) {
    fields.Glyphs("OutputString", text.text);
  } else {
    fields.Field("OutputString", text.text);
  }
  if (!text.advances.IsEmpty()) fields.Field("OutputDx", text.advances.values);
}

template <class Unit>
void PrintExtTextOut(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeExtTextOut<Unit>(bytes);
  fields.Field("Bounds", record.bounds);
  AddScale(fields, record.scale);
  AddText(fields, record.text);
}

/// What of a record a text shows.
template <class Unit>
std::size_t BytesShown(const TextItem<Unit>& text) {
  return text.text.size() * sizeof(Unit) + text.advances.values.size() * sizeof(std::int32_t);
}

/// Texts that lie one on the other could be as many times as long as their record.
template <class Unit>
void PrintPolyTextOut(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodePolyTextOut<Unit>(bytes);
  fields.Field("Bounds", record.bounds);
  AddScale(fields, record.scale);
  fields.Field("cStrings", record.texts.size());
  std::size_t unshown = bytes.Bytes().size();
  for (std::size_t i = 0; i < record.texts.size(); ++i) {
    const TextItem<Unit> text = record.Text(i);
    if (BytesShown(text) > unshown) {
      fields.Quoted("Damaged", "its texts overlap");
      return;
    }
    unshown -= BytesShown(text);
    AddText(fields, text);
  }
}

void PrintSmallTextOut(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeSmallTextOut(bytes);
  fields.Field("Reference", record.reference).Field("fuOptions", record.options);
  AddScale(fields, record.scale);
  if ((record.options & ETO_NO_RECT) == 0) fields.Field("Bounds", record.bounds);
  if ((record.options & ETO_SMALL_CHARS) != 0) {
    fields.Field("TextString", record.smallText);
  } else {
    fields.Field("TextString", record.text);
  }
}

void PrintExtCreateFontIndirectW(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeExtCreateFontIndirectW(bytes);
  fields.Object("ihFonts", record.ihFont);
  AddLogFont(fields, record.font);
  if (record.fullName.empty()) return;
  fields.Field("FullName", UpToNul(record.fullName)).Field("Style", UpToNul(record.style));
  if (record.script.empty()) {
    fields.Field("Panose", record.panose);
  } else {
    fields.Field("Script", UpToNul(record.script)).Field("DesignVector", record.designAxes);
  }
}

constexpr PrinterRow kTextRows[] = {
    {EMR_EXTTEXTOUTA, PrintExtTextOut<char>},
    {EMR_EXTTEXTOUTW, PrintExtTextOut<char16_t>},
    {EMR_POLYTEXTOUTA, PrintPolyTextOut<char>},
    {EMR_POLYTEXTOUTW, PrintPolyTextOut<char16_t>},
    {EMR_SMALLTEXTOUT, PrintSmallTextOut},
    {EMR_EXTCREATEFONTINDIRECTW, PrintExtCreateFontIndirectW},
};

}  // namespace

std::span<const PrinterRow> TextPrinters() {
  return kTextRows;
}

}  // namespace kelvane
