#pragma once

#include "metafile/byte_view.h"
#include "metafile/dib.h"
#include "metafile/gdi_enumerations.h"

namespace kelvane {
inline namespace metafile {

/// The two parts of a bitmap as a record has them.
struct StoredDib {
  ByteView header;  // header and colour table; empty when there is no bitmap
  ByteView pixels;  // as the header says

  [[nodiscard]] constexpr bool IsEmpty() const { return header.Bytes().empty(); }
};

/// @param usage  of the colour table.
constexpr DibBytes BytesOf(const StoredDib& dib, DibUsage usage) {
  return {dib.header.Bytes(), dib.pixels.Bytes(), usage};
}

/// Takes a bitmap apart whose pixels follow its colour table.
/// @param bytes  at the bitmap, which takes all that is left of them; short when there are no
/// pixels.
/// @param usage  of the colour table.
StoredDib ReadPackedDib(ByteView& bytes, DibUsage usage);

}  // namespace metafile
}  // namespace kelvane
