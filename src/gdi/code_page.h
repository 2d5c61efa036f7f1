#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "metafile/gdi_enumerations.h"

namespace kelvane {

/// Text in bytes as UTF-16.
struct DecodedBytes {
  std::u16string text;
  std::vector<std::uint32_t> firstBytes;  // for each unit, the byte that it begins at
};

/// @param bytes     text in the code page of a font. A byte that stands for nothing becomes U+FFFD;
///                  in fonts of symbols all bytes from 0x20 on are codes, from U+F020 on.
/// @param faceName  of the font: a script at its end ("Arial CE") counts before the character set.
DecodedBytes DecodeBytes(std::string_view bytes, CharacterSet charSet,
                         std::u16string_view faceName);

}  // namespace kelvane
