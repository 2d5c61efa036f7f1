#pragma once

#include <optional>
#include <span>

#include "metafile/dib.h"

namespace kelvane {
inline namespace metafile {

/// @param file  a BMP file. Borrowed, as bitmaps are.
/// @return where the parts of its bitmap lie, for Dib::Read; nullopt when a file begins otherwise,
///         or says that its pixels are where it has no bytes.
std::optional<DibBytes> ReadBmpFile(std::span<const unsigned char> file);

}  // namespace metafile
}  // namespace kelvane
