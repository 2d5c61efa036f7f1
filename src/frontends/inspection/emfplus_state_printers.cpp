#include "frontends/inspection/emfplus_printers.h"
#include "metafile/emfplus/emfplus_image_effect.h"
#include "metafile/emfplus/emfplus_state_records.h"

namespace kelvane {
namespace {

void AddHeader(const EmfPlusHeader& r, FieldWriter& fields) {
  fields.Hexadecimal("Version", r.version)
      .Field("Dual", r.isDual)
      .Field("VideoDisplay", r.isVideoDisplay)
      .Field("LogicalDpiX", r.dpiX)
      .Field("LogicalDpiY", r.dpiY);
}
void AddRenderingOrigin(const EmfPlusSetRenderingOrigin& r, FieldWriter& fields) {
  fields.Field("Origin", r.origin);
}
void AddAntiAlias(const EmfPlusSetAntiAliasMode& r, FieldWriter& fields) {
  fields.Field("On", r.isOn).Field("SmoothingMode", NumberOf(r.mode));
}
void AddTextHint(const EmfPlusSetTextRenderingHint& r, FieldWriter& fields) {
  fields.Field("TextRenderingHint", NumberOf(r.hint));
}
void AddTextContrast(const EmfPlusSetTextContrast& r, FieldWriter& fields) {
  fields.Field("TextContrast", r.contrast);
}
void AddInterpolation(const EmfPlusSetInterpolationMode& r, FieldWriter& fields) {
  fields.Field("InterpolationMode", NumberOf(r.mode));
}
void AddPixelOffset(const EmfPlusSetPixelOffsetMode& r, FieldWriter& fields) {
  fields.Field("PixelOffsetMode", NumberOf(r.mode));
}
void AddCompositing(const EmfPlusSetCompositingMode& r, FieldWriter& fields) {
  fields.Field("CompositingMode", NumberOf(r.mode));
}
void AddCompositingQuality(const EmfPlusSetCompositingQuality& r, FieldWriter& fields) {
  fields.Field("CompositingQuality", r.quality);
}
void AddStackEntry(const EmfPlusStackEntry& r, FieldWriter& fields) {
  fields.Field("StackIndex", r.label);
}
void AddBeginContainer(const EmfPlusBeginContainer& r, FieldWriter& fields) {
  fields.Field("DestRect", r.destination)
      .Field("SrcRect", r.source)
      .Field("PageUnit", NumberOf(r.unit))
      .Field("StackIndex", r.label);
}
void AddSetWorld(const EmfPlusSetWorldTransform& r, FieldWriter& fields) {
  fields.Field("MatrixData", r.matrix);
}
void AddMultiplyWorld(const EmfPlusMultiplyWorldTransform& r, FieldWriter& fields) {
  fields.Field("Append", r.isAppended).Field("MatrixData", r.matrix);
}
void AddTranslateWorld(const EmfPlusTranslateWorldTransform& r, FieldWriter& fields) {
  fields.Field("Append", r.isAppended).Field("dx", r.x).Field("dy", r.y);
}
void AddScaleWorld(const EmfPlusScaleWorldTransform& r, FieldWriter& fields) {
  fields.Field("Append", r.isAppended).Field("Sx", r.x).Field("Sy", r.y);
}
void AddRotateWorld(const EmfPlusRotateWorldTransform& r, FieldWriter& fields) {
  fields.Field("Append", r.isAppended).Field("Angle", r.degrees);
}
void AddPage(const EmfPlusSetPageTransform& r, FieldWriter& fields) {
  fields.Field("PageUnit", NumberOf(r.unit)).Field("PageScale", r.scale);
}
void AddClipRect(const EmfPlusSetClipRect& r, FieldWriter& fields) {
  fields.Field("CombineMode", NumberOf(r.mode)).Field("ClipRect", r.box);
}
void AddClipPath(const EmfPlusSetClipPath& r, FieldWriter& fields) {
  fields.Field("CombineMode", NumberOf(r.mode)).Field("Path", r.path);
}
void AddClipRegion(const EmfPlusSetClipRegion& r, FieldWriter& fields) {
  fields.Field("CombineMode", NumberOf(r.mode)).Field("Region", r.region);
}
void AddOffsetClip(const EmfPlusOffsetClip& r, FieldWriter& fields) {
  fields.Field("dx", r.x).Field("dy", r.y);
}
void AddEffect(const EmfPlusSerializableObject& r, FieldWriter& fields) {
  const std::string_view name = EmfPlusEffectName(r.effect);
  if (name.empty()) {
    fields.Field("ObjectGUID", ByteView(r.effect));
  } else {
    fields.Quoted("Effect", name);
  }
  fields.Field("Buffer", r.parameters);
}

constexpr EmfPlusPrinterRow kEmfPlusStateRows[] = {
    {kEmfPlusHeader, PrintDecoded<DecodeEmfPlusHeader, AddHeader>},
    {kEmfPlusSetRenderingOrigin, PrintDecoded<DecodeEmfPlusSetRenderingOrigin, AddRenderingOrigin>},
    {kEmfPlusSetAntiAliasMode, PrintDecoded<DecodeEmfPlusSetAntiAliasMode, AddAntiAlias>},
    {kEmfPlusSetTextRenderingHint, PrintDecoded<DecodeEmfPlusSetTextRenderingHint, AddTextHint>},
    {kEmfPlusSetTextContrast, PrintDecoded<DecodeEmfPlusSetTextContrast, AddTextContrast>},
    {kEmfPlusSetInterpolationMode,
     PrintDecoded<DecodeEmfPlusSetInterpolationMode, AddInterpolation>},
    {kEmfPlusSetPixelOffsetMode, PrintDecoded<DecodeEmfPlusSetPixelOffsetMode, AddPixelOffset>},
    {kEmfPlusSetCompositingMode, PrintDecoded<DecodeEmfPlusSetCompositingMode, AddCompositing>},
    {kEmfPlusSetCompositingQuality,
     PrintDecoded<DecodeEmfPlusSetCompositingQuality, AddCompositingQuality>},
    {kEmfPlusSave, PrintDecoded<DecodeEmfPlusStackEntry, AddStackEntry>},
    {kEmfPlusRestore, PrintDecoded<DecodeEmfPlusStackEntry, AddStackEntry>},
    {kEmfPlusBeginContainer, PrintDecoded<DecodeEmfPlusBeginContainer, AddBeginContainer>},
    {kEmfPlusBeginContainerNoParams, PrintDecoded<DecodeEmfPlusStackEntry, AddStackEntry>},
    {kEmfPlusEndContainer, PrintDecoded<DecodeEmfPlusStackEntry, AddStackEntry>},
    {kEmfPlusSetWorldTransform, PrintDecoded<DecodeEmfPlusSetWorldTransform, AddSetWorld>},
    {kEmfPlusMultiplyWorldTransform,
     PrintDecoded<DecodeEmfPlusMultiplyWorldTransform, AddMultiplyWorld>},
    {kEmfPlusTranslateWorldTransform,
     PrintDecoded<DecodeEmfPlusTranslateWorldTransform, AddTranslateWorld>},
    {kEmfPlusScaleWorldTransform, PrintDecoded<DecodeEmfPlusScaleWorldTransform, AddScaleWorld>},
    {kEmfPlusRotateWorldTransform, PrintDecoded<DecodeEmfPlusRotateWorldTransform, AddRotateWorld>},
    {kEmfPlusSetPageTransform, PrintDecoded<DecodeEmfPlusSetPageTransform, AddPage>},
    {kEmfPlusSetClipRect, PrintDecoded<DecodeEmfPlusSetClipRect, AddClipRect>},
    {kEmfPlusSetClipPath, PrintDecoded<DecodeEmfPlusSetClipPath, AddClipPath>},
    {kEmfPlusSetClipRegion, PrintDecoded<DecodeEmfPlusSetClipRegion, AddClipRegion>},
    {kEmfPlusOffsetClip, PrintDecoded<DecodeEmfPlusOffsetClip, AddOffsetClip>},
    {kEmfPlusSerializableObject, PrintDecoded<DecodeEmfPlusSerializableObject, AddEffect>},
};

}  // namespace

std::span<const EmfPlusPrinterRow> EmfPlusStatePrinters() {
  return kEmfPlusStateRows;
}

}  // namespace kelvane
