#pragma once

#include <cstdint>
#include <optional>

#include "metafile/emfplus/emfplus_drawing_records.h"
#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_record.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

// What changes how records after it draw ([MS-EMFPLUS] 2.3.1 to .3, .5 to .7, .9), by the names of
// the records. Those without fields have no decoder.
//
// Decoders return nothing for a record that has less than it says.

struct EmfPlusHeader {
  bool isDual = false;          // EMF has the whole picture, too
  std::uint32_t version = 0;    // as objects have it
  bool isVideoDisplay = false;  // what the picture was recorded for
  std::uint32_t dpiX = 0;
  std::uint32_t dpiY = 0;
};
std::optional<EmfPlusHeader> DecodeEmfPlusHeader(const EmfPlusRecord& record);

struct EmfPlusSetRenderingOrigin {
  PointL origin;  // of hatches, device units
};
std::optional<EmfPlusSetRenderingOrigin> DecodeEmfPlusSetRenderingOrigin(
    const EmfPlusRecord& record);

struct EmfPlusSetAntiAliasMode {
  bool isOn = false;
  EmfPlusSmoothingMode mode{};
};
std::optional<EmfPlusSetAntiAliasMode> DecodeEmfPlusSetAntiAliasMode(const EmfPlusRecord& record);

struct EmfPlusSetTextRenderingHint {
  EmfPlusTextRenderingHint hint{};
};
std::optional<EmfPlusSetTextRenderingHint> DecodeEmfPlusSetTextRenderingHint(
    const EmfPlusRecord& record);

struct EmfPlusSetTextContrast {
  std::uint16_t contrast = 0;  // gamma times 1000
};
std::optional<EmfPlusSetTextContrast> DecodeEmfPlusSetTextContrast(const EmfPlusRecord& record);

struct EmfPlusSetInterpolationMode {
  EmfPlusInterpolationMode mode{};
};
std::optional<EmfPlusSetInterpolationMode> DecodeEmfPlusSetInterpolationMode(
    const EmfPlusRecord& record);

struct EmfPlusSetPixelOffsetMode {
  EmfPlusPixelOffsetMode mode{};
};
std::optional<EmfPlusSetPixelOffsetMode> DecodeEmfPlusSetPixelOffsetMode(
    const EmfPlusRecord& record);

struct EmfPlusSetCompositingMode {
  EmfPlusCompositingMode mode{};
};
std::optional<EmfPlusSetCompositingMode> DecodeEmfPlusSetCompositingMode(
    const EmfPlusRecord& record);

struct EmfPlusSetCompositingQuality {
  std::uint8_t quality = 0;  // writers do not agree on what its numbers mean
};
std::optional<EmfPlusSetCompositingQuality> DecodeEmfPlusSetCompositingQuality(
    const EmfPlusRecord& record);

/// EmfPlusSave, EmfPlusRestore, EmfPlusBeginContainerNoParams and EmfPlusEndContainer.
struct EmfPlusStackEntry {
  std::uint32_t label = 0;  // that the writer chose for it
};
std::optional<EmfPlusStackEntry> DecodeEmfPlusStackEntry(const EmfPlusRecord& record);

struct EmfPlusBeginContainer {
  RectF destination;  // where the source goes, world units
  RectF source;       // in `unit`
  EmfPlusUnit unit{};
  std::uint32_t label = 0;
};
std::optional<EmfPlusBeginContainer> DecodeEmfPlusBeginContainer(const EmfPlusRecord& record);

struct EmfPlusSetWorldTransform {
  XForm matrix;
};
std::optional<EmfPlusSetWorldTransform> DecodeEmfPlusSetWorldTransform(const EmfPlusRecord& record);

struct EmfPlusMultiplyWorldTransform {
  XForm matrix;
  bool isAppended = false;  // it is applied after the transform there is; else before it
};
std::optional<EmfPlusMultiplyWorldTransform> DecodeEmfPlusMultiplyWorldTransform(
    const EmfPlusRecord& record);

struct EmfPlusTranslateWorldTransform {
  float x = 0;
  float y = 0;
  bool isAppended = false;
};
std::optional<EmfPlusTranslateWorldTransform> DecodeEmfPlusTranslateWorldTransform(
    const EmfPlusRecord& record);

struct EmfPlusScaleWorldTransform {
  float x = 0;
  float y = 0;
  bool isAppended = false;
};
std::optional<EmfPlusScaleWorldTransform> DecodeEmfPlusScaleWorldTransform(
    const EmfPlusRecord& record);

struct EmfPlusRotateWorldTransform {
  float degrees = 0;  // clockwise with y downwards
  bool isAppended = false;
};
std::optional<EmfPlusRotateWorldTransform> DecodeEmfPlusRotateWorldTransform(
    const EmfPlusRecord& record);

struct EmfPlusSetPageTransform {
  EmfPlusUnit unit{};
  float scale = 0;
};
std::optional<EmfPlusSetPageTransform> DecodeEmfPlusSetPageTransform(const EmfPlusRecord& record);

struct EmfPlusSetClipRect {
  EmfPlusCombineMode mode{};
  RectF box;
};
std::optional<EmfPlusSetClipRect> DecodeEmfPlusSetClipRect(const EmfPlusRecord& record);

struct EmfPlusSetClipPath {
  EmfPlusCombineMode mode{};
  EmfPlusSlot path = 0;
};
std::optional<EmfPlusSetClipPath> DecodeEmfPlusSetClipPath(const EmfPlusRecord& record);

struct EmfPlusSetClipRegion {
  EmfPlusCombineMode mode{};
  EmfPlusSlot region = 0;
};
std::optional<EmfPlusSetClipRegion> DecodeEmfPlusSetClipRegion(const EmfPlusRecord& record);

struct EmfPlusOffsetClip {
  float x = 0;
  float y = 0;
};
std::optional<EmfPlusOffsetClip> DecodeEmfPlusOffsetClip(const EmfPlusRecord& record);

/// An effect for the image that is drawn next.
struct EmfPlusSerializableObject {
  EmfPlusGuid effect{};
  ByteView parameters;  // borrowed from the record's data
};
std::optional<EmfPlusSerializableObject> DecodeEmfPlusSerializableObject(
    const EmfPlusRecord& record);

/// The state of a graphics that was recorded for a terminal, all at once.
struct EmfPlusSetTSGraphics {
  EmfPlusSmoothingMode smoothing{};
  EmfPlusTextRenderingHint textHint{};
  EmfPlusCompositingMode compositing{};
  std::uint8_t compositingQuality = 0;
  Point16 renderingOrigin;
  std::uint16_t textContrast = 0;
  std::uint8_t filter = 0;
  EmfPlusPixelOffsetMode pixelOffset{};
  XForm worldToDevice;
};
std::optional<EmfPlusSetTSGraphics> DecodeEmfPlusSetTSGraphics(const EmfPlusRecord& record);

}  // namespace metafile
}  // namespace kelvane
