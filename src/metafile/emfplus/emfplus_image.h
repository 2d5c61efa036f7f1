#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

/// EmfPlusBitmap of pixels ([MS-EMFPLUS] 2.2.2.2). There are as many bytes as rows need.
struct EmfPlusPixels {
  std::size_t width = 0;   // at least 1
  std::size_t height = 0;  // at least 1
  std::size_t stride = 0;  // bytes from a row to the next; the top row comes first
  EmfPlusPixelFormat format{};
  std::vector<Argb> palette;            // of indexed formats
  std::span<const unsigned char> rows;  // borrowed from the object's bytes
};

/// EmfPlusBitmap that is a whole file: PNG, JPEG, GIF, TIFF or BMP, and up to 3 bytes behind it.
struct EmfPlusImageFile {
  std::span<const unsigned char> bytes;  // borrowed from the object's bytes
};

/// EmfPlusMetafile ([MS-EMFPLUS] 2.2.2.27).
struct EmfPlusMetafile {
  EmfPlusMetafileType type{};

  // Borrowed from the object's bytes: a whole file; of kPlaceableWmf what follows its first header.
  std::span<const unsigned char> bytes;
  std::span<const unsigned char> placeableHeader;  // of kPlaceableWmf
};

/// EmfPlusImage ([MS-EMFPLUS] 2.2.1.4).
using EmfPlusImage = std::variant<EmfPlusPixels, EmfPlusImageFile, EmfPlusMetafile>;

/// @param bytes  the object from its version on; the image takes what is left of it.
/// @return nullopt for what is no image, or has fewer bytes than its rows need.
std::optional<EmfPlusImage> ReadEmfPlusImage(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
