#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Palettes ([MS-EMF] 2.3.7, 2.3.8). EMR_REALIZEPALETTE has no fields.
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_SELECTPALETTE ([MS-EMF] 2.3.8.6).
struct SelectPaletteRecord {
  std::uint32_t ihPal = 0;  // of the table, or DEFAULT_PALETTE
};
inline SelectPaletteRecord DecodeSelectPalette(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>()};
}

/// EMR_CREATEPALETTE ([MS-EMF] 2.3.7.6).
struct CreatePaletteRecord {
  std::uint32_t ihPal = 0;
  std::uint16_t version = 0;  // 0x300
  ArrayView<PaletteEntry> entries;
};
/// There are stubs of another version, whose entries are not there whatever they count.
inline CreatePaletteRecord DecodeCreatePalette(ByteView& bytes) {
  constexpr std::uint16_t kVersion = 0x300;
  const auto index = bytes.Read<std::uint32_t>();
  const auto version = bytes.Read<std::uint16_t>();
  const auto count = bytes.Read<std::uint16_t>();
  if (version != kVersion) return {index, version, {}};
  return {index, version, bytes.Array<PaletteEntry>(count)};
}

/// EMR_SETPALETTEENTRIES ([MS-EMF] 2.3.8.8).
struct SetPaletteEntriesRecord {
  std::uint32_t ihPal = 0;
  std::uint32_t start = 0;  // the first entry to be replaced
  ArrayView<PaletteEntry> entries;
};
inline SetPaletteEntriesRecord DecodeSetPaletteEntries(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>(), bytes.Read<std::uint32_t>(),
          bytes.Array<PaletteEntry>(bytes.Read<std::uint32_t>())};
}

/// EMR_RESIZEPALETTE ([MS-EMF] 2.3.8.4).
struct ResizePaletteRecord {
  std::uint32_t ihPal = 0;
  std::uint32_t entries = 0;
};
inline ResizePaletteRecord DecodeResizePalette(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>(), bytes.Read<std::uint32_t>()};
}

/// EMR_COLORCORRECTPALETTE ([MS-EMF] 2.3.8.1).
struct ColorCorrectPaletteRecord {
  std::uint32_t ihPal = 0;
  std::uint32_t firstEntry = 0;
  std::uint32_t entries = 0;
  std::uint32_t reserved = 0;
};
inline ColorCorrectPaletteRecord DecodeColorCorrectPalette(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>(), bytes.Read<std::uint32_t>(), bytes.Read<std::uint32_t>(),
          bytes.Read<std::uint32_t>()};
}

}  // namespace metafile
}  // namespace kelvane
