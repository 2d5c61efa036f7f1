#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/emf/emf_stored_dib.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_objects.h"

namespace kelvane {
inline namespace metafile {

// Objects of the metafile's table ([MS-EMF] 2.3.7, 2.3.8): selecting, deleting, pens, brushes.
// Fonts, palettes and colour spaces have files of their own. An index names an entry of the table,
// or with bit 31 a stock object.
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_SELECTOBJECT, EMR_DELETEOBJECT ([MS-EMF] 2.3.8.5, .3).
struct ObjectRecord {
  std::uint32_t ihObject = 0;
};
inline ObjectRecord DecodeObject(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>()};
}

/// EMR_CREATEPEN ([MS-EMF] 2.3.7.7).
struct CreatePenRecord {
  std::uint32_t ihPen = 0;
  LogPen pen;
};
inline CreatePenRecord DecodeCreatePen(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>(), bytes.Read<LogPen>()};
}

/// EMR_EXTCREATEPEN ([MS-EMF] 2.3.7.9).
struct ExtCreatePenRecord {
  std::uint32_t ihPen = 0;
  LogPenEx pen;
  ArrayView<std::uint32_t>
      styleEntries;   // dash, gap, … of PS_USERSTYLE; logical units or style units
  StoredDib pattern;  // of a pen made of a pattern brush
};
inline ExtCreatePenRecord DecodeExtCreatePen(ByteView& bytes) {
  const auto index = bytes.Read<std::uint32_t>();
  const auto place = bytes.Read<DibPlace>();
  const auto pen = bytes.Read<LogPenEx>();
  const auto styleEntries = bytes.Array<std::uint32_t>(pen.numEntries);
  return {index, pen, styleEntries, DibAt(bytes, place)};
}

/// EMR_CREATEBRUSHINDIRECT ([MS-EMF] 2.3.7.1).
struct CreateBrushIndirectRecord {
  std::uint32_t ihBrush = 0;
  LogBrush brush;
};
inline CreateBrushIndirectRecord DecodeCreateBrushIndirect(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>(), bytes.Read<LogBrush>()};
}

/// EMR_CREATEMONOBRUSH, EMR_CREATEDIBPATTERNBRUSHPT ([MS-EMF] 2.3.7.5, .4).
struct CreatePatternBrushRecord {
  std::uint32_t ihBrush = 0;
  DibUsage usage{};  // of the colour table
  StoredDib pattern;
};
inline CreatePatternBrushRecord DecodeCreatePatternBrush(ByteView& bytes) {
  const auto index = bytes.Read<std::uint32_t>();
  const auto usage = bytes.Read<DibUsage>();
  const auto place = bytes.Read<DibPlace>();
  return {index, usage, DibAt(bytes, place)};
}

}  // namespace metafile
}  // namespace kelvane
