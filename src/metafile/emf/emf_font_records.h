#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_objects.h"

namespace kelvane {
inline namespace metafile {

/// EMR_EXTCREATEFONTINDIRECTW ([MS-EMF] 2.3.7.8). How much there is of a font is told by the size
/// of the record; what is not there stays empty.
struct ExtCreateFontIndirectWRecord {
  std::uint32_t ihFont = 0;
  LogFont font;

  // Of the two longer forms. Names go up to the first NUL, or have all of their units.
  ArrayView<char16_t> fullName;
  ArrayView<char16_t> style;

  Panose panose;  // of the middle form

  // Of the longest form, which asks for a face of several designs.
  ArrayView<char16_t> script;
  ArrayView<std::int32_t> designAxes;
};

/// @param bytes  the record behind type and size; short only when it has no whole LogFont.
ExtCreateFontIndirectWRecord DecodeExtCreateFontIndirectW(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
