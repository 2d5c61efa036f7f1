#pragma once

#include <bit>
#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// The state of the device context ([MS-EMF] 2.3.11) but for mapping, clip and selected objects.
// EMR_SAVEDC has no fields.
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_RESTOREDC ([MS-EMF] 2.3.11.6).
struct RestoreDCRecord {
  std::int32_t savedDC = 0;  // -1 for the last saved, -2 for the one before
};
inline RestoreDCRecord DecodeRestoreDC(ByteView& bytes) {
  return {bytes.Read<std::int32_t>()};
}

/// EMR_SETBKMODE ([MS-EMF] 2.3.11.11).
struct SetBkModeRecord {
  BackgroundMode mode{};
};
inline SetBkModeRecord DecodeSetBkMode(ByteView& bytes) {
  return {bytes.Read<BackgroundMode>()};
}

/// EMR_SETBKCOLOR, EMR_SETTEXTCOLOR ([MS-EMF] 2.3.11.10, .26).
struct SetColorRecord {
  ColorRef color;
};
inline SetColorRecord DecodeSetColor(ByteView& bytes) {
  return {bytes.Read<ColorRef>()};
}

/// EMR_SETPOLYFILLMODE ([MS-EMF] 2.3.11.22).
struct SetPolyFillModeRecord {
  PolyFillMode mode{};
};
inline SetPolyFillModeRecord DecodeSetPolyFillMode(ByteView& bytes) {
  return {bytes.Read<PolyFillMode>()};
}

/// EMR_SETROP2 ([MS-EMF] 2.3.11.23).
struct SetRop2Record {
  BinaryRasterOperation rop{};
};
inline SetRop2Record DecodeSetRop2(ByteView& bytes) {
  return {bytes.Read<BinaryRasterOperation>()};
}

/// EMR_SETSTRETCHBLTMODE ([MS-EMF] 2.3.11.24).
struct SetStretchBltModeRecord {
  StretchMode mode{};
};
inline SetStretchBltModeRecord DecodeSetStretchBltMode(ByteView& bytes) {
  return {bytes.Read<StretchMode>()};
}

/// EMR_SETTEXTALIGN ([MS-EMF] 2.3.11.25).
struct SetTextAlignRecord {
  TextAlign align{};
};
inline SetTextAlignRecord DecodeSetTextAlign(ByteView& bytes) {
  return {bytes.Read<TextAlign>()};
}

/// EMR_SETTEXTJUSTIFICATION ([MS-EMF] 2.3.11.27).
struct SetTextJustificationRecord {
  std::int32_t breakExtra = 0;  // logical units, spread over the break characters
  std::int32_t breakCount = 0;
};
inline SetTextJustificationRecord DecodeSetTextJustification(ByteView& bytes) {
  return {bytes.Read<std::int32_t>(), bytes.Read<std::int32_t>()};
}

/// EMR_SETMAPPERFLAGS ([MS-EMF] 2.3.11.20).
struct SetMapperFlagsRecord {
  std::uint32_t flags = 0;  // bit 0: only fonts that match the aspect of the device
};
inline SetMapperFlagsRecord DecodeSetMapperFlags(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>()};
}

/// EMR_SETMITERLIMIT ([MS-EMF] 2.3.11.21).
struct SetMiterLimitRecord {
  float limit = 0;  // the greatest ratio of a miter's length to the pen's width
};
/// The record has a whole number; some writers store the bits of a float, which make a number
/// larger than any limit.
inline SetMiterLimitRecord DecodeSetMiterLimit(ByteView& bytes) {
  constexpr std::uint32_t kBitsOfHalf = 0x3F000000;
  const auto limit = bytes.Read<std::uint32_t>();
  return {limit > kBitsOfHalf ? std::bit_cast<float>(limit) : static_cast<float>(limit)};
}

/// EMR_SETCOLORADJUSTMENT ([MS-EMF] 2.3.11.13).
struct SetColorAdjustmentRecord {
  ColorAdjustment adjustment;
};
inline SetColorAdjustmentRecord DecodeSetColorAdjustment(ByteView& bytes) {
  return {bytes.Read<ColorAdjustment>()};
}

}  // namespace metafile
}  // namespace kelvane
