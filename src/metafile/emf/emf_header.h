#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "metafile/byte_view.h"
#include "metafile/gdi_objects.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

/// " EMF" as the header and the formats of a multi-format comment have it.
inline constexpr std::uint32_t kEmfSignature = 0x464D4520;

/// EMR_HEADER ([MS-EMF] 2.3.4.2): what the file says of itself, believable or not.
struct EmfHeader {
  RectangleL bounds;  // of what was drawn, device units, inclusive; reversed when nothing was
  RectangleL frame;   // of the picture, 0.01 mm
  std::uint32_t signature = 0;   // kEmfSignature
  std::uint32_t version = 0;     // 0x10000
  std::uint32_t bytes = 0;       // of the file; a hint
  std::uint32_t records = 0;     // of the file, header and end included; a hint
  std::uint16_t handles = 0;     // of the object table, the unused 0 included; a hint
  std::uint32_t palEntries = 0;  // of the palette in EMR_EOF
  SizeL device;                  // the reference device, pixels
  SizeL millimeters;             // the reference device

  // What only longer headers have; zeros without.
  PixelFormatDescriptor pixelFormat;
  bool hasOpenGL = false;  // whether there are OpenGL records
  SizeL micrometers;       // the reference device; zeros unless they agree with the millimetres

  // The description, without NULs; empty when there is none.
  ArrayView<char16_t> creator;  // the program
  ArrayView<char16_t> title;    // the picture

  std::uint32_t headerSize = 0;  // bytes without description and pixel format: 88, 100 or 108
};

/// @param bytes  the record behind type and size. Short only when the first 88 bytes are not there;
///               a description or extension that lies elsewhere is as good as none.
EmfHeader DecodeEmfHeader(ByteView& bytes);

/// @param file  borrowed; the header's description views it.
/// @return the header of a metafile; nullopt when the bytes are none.
std::optional<EmfHeader> ReadEmfHeader(std::span<const unsigned char> file);

}  // namespace metafile
}  // namespace kelvane
