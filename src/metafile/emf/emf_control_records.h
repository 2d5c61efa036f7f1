#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_objects.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Records that draw nothing themselves: the end of the file, escapes to drivers, OpenGL and its
// pixel format, fonts for printers ([MS-EMF] 2.3.4, 2.3.6, 2.3.9, 2.3.11).
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_EOF ([MS-EMF] 2.3.4.1).
struct EofRecord {
  ArrayView<PaletteEntry> palette;  // of all that was drawn
};
inline EofRecord DecodeEof(ByteView& bytes) {
  const auto count = bytes.Read<std::uint32_t>();
  const auto offset = bytes.Read<std::uint32_t>();
  return {bytes.ArrayAt<PaletteEntry>(offset, count)};
}

/// EMR_DRAWESCAPE, EMR_EXTESCAPE ([MS-EMF] 2.3.6.1, .2).
struct EscapeRecord {
  std::uint32_t escape = 0;  // what the driver is asked for
  ByteView data;
};
inline EscapeRecord DecodeEscape(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>(), bytes.Split(bytes.Read<std::uint32_t>())};
}

/// EMR_NAMEDESCAPE ([MS-EMF] 2.3.6.3).
struct NamedEscapeRecord {
  std::uint32_t escape = 0;
  ByteView driver;  // its name, UTF-16 with a NUL
  ByteView data;
};
inline NamedEscapeRecord DecodeNamedEscape(ByteView& bytes) {
  const auto escape = bytes.Read<std::uint32_t>();
  const auto driverSize = bytes.Read<std::uint32_t>();
  const auto dataSize = bytes.Read<std::uint32_t>();
  return {escape, bytes.Split(driverSize), bytes.Split(dataSize)};
}

/// EMR_GLSRECORD ([MS-EMF] 2.3.9.2).
struct GlsRecord {
  ByteView data;
};
inline GlsRecord DecodeGls(ByteView& bytes) {
  return {bytes.Split(bytes.Read<std::uint32_t>())};
}

/// EMR_GLSBOUNDEDRECORD ([MS-EMF] 2.3.9.1).
struct GlsBoundedRecord {
  RectangleL bounds;  // device units
  ByteView data;
};
inline GlsBoundedRecord DecodeGlsBounded(ByteView& bytes) {
  return {bytes.Read<RectangleL>(), bytes.Split(bytes.Read<std::uint32_t>())};
}

/// EMR_PIXELFORMAT ([MS-EMF] 2.3.11.5).
struct PixelFormatRecord {
  PixelFormatDescriptor pixelFormat;
};
inline PixelFormatRecord DecodePixelFormat(ByteView& bytes) {
  return {bytes.Read<PixelFormatDescriptor>()};
}

/// EMR_FORCEUFIMAPPING ([MS-EMF] 2.3.11.2).
struct ForceUfiMappingRecord {
  UniversalFontId ufi;
};
inline ForceUfiMappingRecord DecodeForceUfiMapping(ByteView& bytes) {
  return {bytes.Read<UniversalFontId>()};
}

/// EMR_SETLINKEDUFIS ([MS-EMF] 2.3.11.18).
struct SetLinkedUfisRecord {
  ArrayView<UniversalFontId> ufis;
};
inline SetLinkedUfisRecord DecodeSetLinkedUfis(ByteView& bytes) {
  return {bytes.Array<UniversalFontId>(bytes.Read<std::uint32_t>())};
}

}  // namespace metafile
}  // namespace kelvane
