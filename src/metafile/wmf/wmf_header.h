#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

/// META_PLACEABLE ([MS-WMF] 2.3.2.3): how large the picture is meant to be.
struct WmfPlaceable {
  RectangleL box;                  // logical units; edges in any order
  std::uint16_t unitsPerInch = 0;  // 0 says nothing
  bool isChecked = false;          // whether its checksum is right; no reason to refuse it
};

/// META_HEADER ([MS-WMF] 2.3.2.2). All of it are hints: files are read by their records.
struct WmfPlainHeader {
  std::uint16_t kind = 0;       // 1 in memory, 2 on disk; the same in all that follows
  std::uint16_t version = 0;    // 0x100, or 0x300 where there may be device-independent bitmaps
  std::uint32_t words = 0;      // of the file, without a placeable header
  std::uint16_t objects = 0;    // of the table at its fullest
  std::uint32_t maxRecord = 0;  // words of the largest record
};

/// What stands before the records of a Windows metafile. Either part may be missing: documents keep
/// pictures without the first, some without both.
struct WmfHeader {
  std::optional<WmfPlaceable> placeable;
  std::optional<WmfPlainHeader> plain;
  std::size_t records = 0;  // where the first record begins, in bytes from the file's start
};

/// Tells a Windows metafile by its bytes. Where there is no header, all of it must be records of
/// known types up to a META_EOF, so that nothing else is taken for one.
/// @param placeable  a placeable header that is kept elsewhere; it counts where the file has none.
/// @return nullopt for anything else.
std::optional<WmfHeader> ReadWmfHeader(std::span<const unsigned char> file,
                                       std::span<const unsigned char> placeable = {});

}  // namespace metafile
}  // namespace kelvane
