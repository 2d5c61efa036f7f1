// Takes any bytes as the EMF+ records of a comment and decodes them all, with the objects that they
// store: what comes of it must be whole.

#include <cstdlib>
#include <variant>

#include "metafile/emfplus/emfplus_drawing_records.h"
#include "metafile/emfplus/emfplus_image_effect.h"
#include "metafile/emfplus/emfplus_object.h"
#include "metafile/emfplus/emfplus_state_records.h"

namespace kelvane {
namespace {

void Expect(bool isTrue) {
  if (!isTrue) std::abort();
}

template <auto decode>
bool Decodes(const EmfPlusRecord& record) {
  return decode(record).has_value();
}

struct Decoder {
  EmfPlusRecordType type;
  bool (*decodes)(const EmfPlusRecord&);
};

constexpr Decoder kDecoders[] = {
    {kEmfPlusHeader, Decodes<DecodeEmfPlusHeader>},
    {kEmfPlusClear, Decodes<DecodeEmfPlusClear>},
    {kEmfPlusFillRects, Decodes<DecodeEmfPlusFillRects>},
    {kEmfPlusDrawRects, Decodes<DecodeEmfPlusDrawRects>},
    {kEmfPlusFillPolygon, Decodes<DecodeEmfPlusFillPolygon>},
    {kEmfPlusDrawLines, Decodes<DecodeEmfPlusDrawLines>},
    {kEmfPlusFillEllipse, Decodes<DecodeEmfPlusFillEllipse>},
    {kEmfPlusDrawEllipse, Decodes<DecodeEmfPlusDrawEllipse>},
    {kEmfPlusFillPie, Decodes<DecodeEmfPlusFillPie>},
    {kEmfPlusDrawPie, Decodes<DecodeEmfPlusDrawArc>},
    {kEmfPlusDrawArc, Decodes<DecodeEmfPlusDrawArc>},
    {kEmfPlusFillRegion, Decodes<DecodeEmfPlusFillRegion>},
    {kEmfPlusFillPath, Decodes<DecodeEmfPlusFillPath>},
    {kEmfPlusDrawPath, Decodes<DecodeEmfPlusDrawPath>},
    {kEmfPlusFillClosedCurve, Decodes<DecodeEmfPlusFillClosedCurve>},
    {kEmfPlusDrawClosedCurve, Decodes<DecodeEmfPlusDrawClosedCurve>},
    {kEmfPlusDrawCurve, Decodes<DecodeEmfPlusDrawCurve>},
    {kEmfPlusDrawBeziers, Decodes<DecodeEmfPlusDrawBeziers>},
    {kEmfPlusDrawImage, Decodes<DecodeEmfPlusDrawImage>},
    {kEmfPlusDrawImagePoints, Decodes<DecodeEmfPlusDrawImagePoints>},
    {kEmfPlusDrawString, Decodes<DecodeEmfPlusDrawString>},
    {kEmfPlusDrawDriverString, Decodes<DecodeEmfPlusDrawDriverString>},
    {kEmfPlusSetRenderingOrigin, Decodes<DecodeEmfPlusSetRenderingOrigin>},
    {kEmfPlusSetAntiAliasMode, Decodes<DecodeEmfPlusSetAntiAliasMode>},
    {kEmfPlusSave, Decodes<DecodeEmfPlusStackEntry>},
    {kEmfPlusRestore, Decodes<DecodeEmfPlusStackEntry>},
    {kEmfPlusBeginContainerNoParams, Decodes<DecodeEmfPlusStackEntry>},
    {kEmfPlusEndContainer, Decodes<DecodeEmfPlusStackEntry>},
    {kEmfPlusBeginContainer, Decodes<DecodeEmfPlusBeginContainer>},
    {kEmfPlusSetWorldTransform, Decodes<DecodeEmfPlusSetWorldTransform>},
    {kEmfPlusTranslateWorldTransform, Decodes<DecodeEmfPlusTranslateWorldTransform>},
    {kEmfPlusMultiplyWorldTransform, Decodes<DecodeEmfPlusMultiplyWorldTransform>},
    {kEmfPlusScaleWorldTransform, Decodes<DecodeEmfPlusScaleWorldTransform>},
    {kEmfPlusRotateWorldTransform, Decodes<DecodeEmfPlusRotateWorldTransform>},
    {kEmfPlusSetPageTransform, Decodes<DecodeEmfPlusSetPageTransform>},
    {kEmfPlusSetClipRect, Decodes<DecodeEmfPlusSetClipRect>},
    {kEmfPlusOffsetClip, Decodes<DecodeEmfPlusOffsetClip>},
    {kEmfPlusSetTSGraphics, Decodes<DecodeEmfPlusSetTSGraphics>},
};

void Check(const EmfPlusPath& path) {
  Expect(path.points.size() == path.types.size());
}

/// A tree of nodes that join two has one leaf more than such nodes.
void Check(const EmfPlusRegion& region) {
  Expect(region.nodes.size() % 2 == 1);
}

void Check(const EmfPlusImage& image) {
  const auto* pixels = std::get_if<EmfPlusPixels>(&image);
  if (pixels == nullptr) return;
  Expect(pixels->width > 0 && pixels->height > 0);
  Expect((pixels->height - 1) * pixels->stride < pixels->rows.size());
}

void Check(const EmfPlusObject& object) {
  if (const auto* path = std::get_if<EmfPlusPath>(&object)) Check(*path);
  if (const auto* region = std::get_if<EmfPlusRegion>(&object)) Check(*region);
  if (const auto* image = std::get_if<EmfPlusImage>(&object)) Check(*image);
}

void Decode(const EmfPlusRecord& record) {
  [[maybe_unused]] static volatile bool isThere = false;
  for (const Decoder& decoder : kDecoders) {
    if (decoder.type == record.type) isThere = decoder.decodes(record);
  }
  if (record.type != kEmfPlusSerializableObject) return;
  const auto effect = DecodeEmfPlusSerializableObject(record);
  isThere = effect && EmfPlusEffectName(effect->effect).empty();
}

}  // namespace
}  // namespace kelvane

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  kelvane::ByteView bytes({data, size});
  kelvane::EmfPlusObjectAssembler assembler;
  kelvane::EmfPlusStoredObject stored;
  while (const auto record = kelvane::NextEmfPlusRecord(bytes)) {
    using Progress = kelvane::EmfPlusObjectAssembler::Progress;
    if (record->type != kelvane::kEmfPlusObject) {
      assembler.Drop();
      kelvane::Decode(*record);
    } else if (assembler.Add(*record, stored) == Progress::kWhole) {
      kelvane::Expect(stored.slot < kelvane::kEmfPlusSlots);
      kelvane::Check(stored.object);
    }
  }
  return 0;
}
