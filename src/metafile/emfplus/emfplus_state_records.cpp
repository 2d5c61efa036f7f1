#include "metafile/emfplus/emfplus_state_records.h"

namespace kelvane {
inline namespace metafile {
namespace {

/// Of most records the flags have a number in their low byte.
std::uint8_t LowByte(const EmfPlusRecord& record) {
  return static_cast<std::uint8_t>(record.flags);
}

bool IsAppended(const EmfPlusRecord& record) {
  constexpr std::uint16_t kAppends = 0x2000;
  return (record.flags & kAppends) != 0;
}

EmfPlusCombineMode CombineModeOf(const EmfPlusRecord& record) {
  constexpr std::uint16_t kModeMask = 0x0F;
  return static_cast<EmfPlusCombineMode>(record.flags >> 8 & kModeMask);
}

}  // namespace

std::optional<EmfPlusHeader> DecodeEmfPlusHeader(const EmfPlusRecord& record) {
  constexpr std::uint32_t kVideoDisplay = 1;
  ByteView data = record.data;
  return UnlessShort<EmfPlusHeader>(
      data, {(record.flags & kEmfPlusDualFlag) != 0, data.Read<std::uint32_t>(),
             (data.Read<std::uint32_t>() & kVideoDisplay) != 0, data.Read<std::uint32_t>(),
             data.Read<std::uint32_t>()});
}

std::optional<EmfPlusSetRenderingOrigin> DecodeEmfPlusSetRenderingOrigin(
    const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusSetRenderingOrigin>(data, {data.Read<PointL>()});
}

std::optional<EmfPlusSetAntiAliasMode> DecodeEmfPlusSetAntiAliasMode(const EmfPlusRecord& record) {
  return EmfPlusSetAntiAliasMode{(record.flags & 1) != 0,
                                 static_cast<EmfPlusSmoothingMode>(LowByte(record) >> 1)};
}

std::optional<EmfPlusSetTextRenderingHint> DecodeEmfPlusSetTextRenderingHint(
    const EmfPlusRecord& record) {
  return EmfPlusSetTextRenderingHint{static_cast<EmfPlusTextRenderingHint>(LowByte(record))};
}

std::optional<EmfPlusSetTextContrast> DecodeEmfPlusSetTextContrast(const EmfPlusRecord& record) {
  constexpr std::uint16_t kContrastMask = 0x0FFF;
  return EmfPlusSetTextContrast{static_cast<std::uint16_t>(record.flags & kContrastMask)};
}

std::optional<EmfPlusSetInterpolationMode> DecodeEmfPlusSetInterpolationMode(
    const EmfPlusRecord& record) {
  return EmfPlusSetInterpolationMode{static_cast<EmfPlusInterpolationMode>(LowByte(record))};
}

std::optional<EmfPlusSetPixelOffsetMode> DecodeEmfPlusSetPixelOffsetMode(
    const EmfPlusRecord& record) {
  return EmfPlusSetPixelOffsetMode{static_cast<EmfPlusPixelOffsetMode>(LowByte(record))};
}

std::optional<EmfPlusSetCompositingMode> DecodeEmfPlusSetCompositingMode(
    const EmfPlusRecord& record) {
  return EmfPlusSetCompositingMode{static_cast<EmfPlusCompositingMode>(LowByte(record))};
}

std::optional<EmfPlusSetCompositingQuality> DecodeEmfPlusSetCompositingQuality(
    const EmfPlusRecord& record) {
  return EmfPlusSetCompositingQuality{LowByte(record)};
}

std::optional<EmfPlusStackEntry> DecodeEmfPlusStackEntry(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusStackEntry>(data, {data.Read<std::uint32_t>()});
}

std::optional<EmfPlusBeginContainer> DecodeEmfPlusBeginContainer(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusBeginContainer>(
      data, {data.Read<RectF>(), data.Read<RectF>(), static_cast<EmfPlusUnit>(LowByte(record)),
             data.Read<std::uint32_t>()});
}

std::optional<EmfPlusSetWorldTransform> DecodeEmfPlusSetWorldTransform(
    const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusSetWorldTransform>(data, {data.Read<XForm>()});
}

std::optional<EmfPlusMultiplyWorldTransform> DecodeEmfPlusMultiplyWorldTransform(
    const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusMultiplyWorldTransform>(data, {data.Read<XForm>(), IsAppended(record)});
}

std::optional<EmfPlusTranslateWorldTransform> DecodeEmfPlusTranslateWorldTransform(
    const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusTranslateWorldTransform>(
      data, {data.Read<float>(), data.Read<float>(), IsAppended(record)});
}

std::optional<EmfPlusScaleWorldTransform> DecodeEmfPlusScaleWorldTransform(
    const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusScaleWorldTransform>(
      data, {data.Read<float>(), data.Read<float>(), IsAppended(record)});
}

std::optional<EmfPlusRotateWorldTransform> DecodeEmfPlusRotateWorldTransform(
    const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusRotateWorldTransform>(data, {data.Read<float>(), IsAppended(record)});
}

std::optional<EmfPlusSetPageTransform> DecodeEmfPlusSetPageTransform(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusSetPageTransform>(
      data, {static_cast<EmfPlusUnit>(LowByte(record)), data.Read<float>()});
}

/// Its rectangle is never made of integers.
std::optional<EmfPlusSetClipRect> DecodeEmfPlusSetClipRect(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusSetClipRect>(data, {CombineModeOf(record), data.Read<RectF>()});
}

std::optional<EmfPlusSetClipPath> DecodeEmfPlusSetClipPath(const EmfPlusRecord& record) {
  return EmfPlusSetClipPath{CombineModeOf(record), LowByte(record)};
}

std::optional<EmfPlusSetClipRegion> DecodeEmfPlusSetClipRegion(const EmfPlusRecord& record) {
  return EmfPlusSetClipRegion{CombineModeOf(record), LowByte(record)};
}

std::optional<EmfPlusOffsetClip> DecodeEmfPlusOffsetClip(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusOffsetClip>(data, {data.Read<float>(), data.Read<float>()});
}

std::optional<EmfPlusSerializableObject> DecodeEmfPlusSerializableObject(
    const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusSerializableObject>(
      data, {data.Read<EmfPlusGuid>(), data.Split(data.Read<std::uint32_t>())});
}

std::optional<EmfPlusSetTSGraphics> DecodeEmfPlusSetTSGraphics(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusSetTSGraphics>(
      data, {data.Read<EmfPlusSmoothingMode>(), data.Read<EmfPlusTextRenderingHint>(),
             data.Read<EmfPlusCompositingMode>(), data.Read<std::uint8_t>(), data.Read<Point16>(),
             data.Read<std::uint16_t>(), data.Read<std::uint8_t>(),
             data.Read<EmfPlusPixelOffsetMode>(), data.Read<XForm>()});
}

}  // namespace metafile
}  // namespace kelvane
