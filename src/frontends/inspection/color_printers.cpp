#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_color_records.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

void AddColorSpace(FieldWriter& fields, const LogColorSpace& space) {
  fields.Field("ColorSpaceType", space.type)
      .Field("Intent", space.intent)
      .Field("Endpoints", space.endpoints)
      .Field("Gamma", space.gamma);
}

void PrintCreateColorSpace(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeCreateColorSpace(bytes);
  fields.Object("ihCS", record.ihCS);
  AddColorSpace(fields, record.space);
  fields.Field("Filename", UpToNul(record.fileName));
}

void PrintCreateColorSpaceW(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeCreateColorSpaceW(bytes);
  fields.Object("ihCS", record.ihCS);
  AddColorSpace(fields, record.space);
  fields.Field("Filename", UpToNul(record.fileName))
      .Field("dwFlags", record.flags)
      .Field("Data", record.data);
}

void PrintColorSpace(ByteView& bytes, FieldWriter& fields) {
  fields.Object("ihCS", DecodeColorSpace(bytes).ihCS);
}

void PrintSetIcmMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("ICMMode", DecodeSetIcmMode(bytes).mode);
}

template <class Unit>
ArrayView<Unit> TextOf(ByteView bytes) {
  return UpToNul(bytes.Array<Unit>(bytes.Remaining() / sizeof(Unit)));
}

template <class Unit>
void PrintSetIcmProfile(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeSetIcmProfile(bytes);
  fields.Field("dwFlags", record.flags)
      .Field("Name", TextOf<Unit>(record.name))
      .Field("Data", record.data);
}

void PrintColorMatchToTargetW(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeColorMatchToTargetW(bytes);
  fields.Field("dwAction", record.action)
      .Field("dwFlags", record.flags)
      .Field("Name", TextOf<char16_t>(record.name))
      .Field("Data", record.data);
}

constexpr PrinterRow kColorRows[] = {
    {EMR_CREATECOLORSPACE, PrintCreateColorSpace},
    {EMR_CREATECOLORSPACEW, PrintCreateColorSpaceW},
    {EMR_SETCOLORSPACE, PrintColorSpace},
    {EMR_DELETECOLORSPACE, PrintColorSpace},
    {EMR_SETICMMODE, PrintSetIcmMode},
    {EMR_SETICMPROFILEA, PrintSetIcmProfile<char>},
    {EMR_SETICMPROFILEW, PrintSetIcmProfile<char16_t>},
    {EMR_COLORMATCHTOTARGETW, PrintColorMatchToTargetW},
};

}  // namespace

std::span<const PrinterRow> ColorPrinters() {
  return kColorRows;
}

}  // namespace kelvane
