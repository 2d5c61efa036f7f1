#pragma once

#include <cstdint>
#include <string>

namespace kelvane {

/// LOGFONTW ([MS-EMF] 2.2.13).
struct LogFontW {
  std::int32_t lfHeight = 0;       // logical units; negative: of the em, not the cell
  std::int32_t lfWidth = 0;        // logical units
  std::int32_t lfEscapement = 0;   // tenths of a degree, counter-clockwise
  std::int32_t lfOrientation = 0;  // tenths of a degree
  std::int32_t lfWeight = 0;       // 0 to 1000
  std::uint8_t lfItalic = 0;
  std::uint8_t lfUnderline = 0;
  std::uint8_t lfStrikeOut = 0;
  std::uint8_t lfCharSet = 0;
  std::uint8_t lfOutPrecision = 0;
  std::uint8_t lfClipPrecision = 0;
  std::uint8_t lfQuality = 0;
  std::uint8_t lfPitchAndFamily = 0;
  std::u16string lfFaceName;  // UTF-16 units
};

}  // namespace kelvane
