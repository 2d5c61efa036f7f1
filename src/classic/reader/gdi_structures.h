#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "classic/reader/geometry_types.h"

namespace kelvane {

// The structures that object and text records embed, field by field in file order. A COLORREF is
// red in bits 0 to 7, green in 8 to 15, blue in 16 to 23; the top byte means nothing.

/// LOGPEN ([MS-EMF] 2.2.19), 16 bytes.
struct LogicalPen {
  std::uint32_t style = 0;  // PS_
  Point width;              // logical units; y is not used
  std::uint32_t color = 0;  // COLORREF
};

/// LOGBRUSH ([MS-EMF] 2.2.12), 12 bytes.
struct LogicalBrush {
  std::uint32_t style = 0;  // BS_
  std::uint32_t color = 0;  // COLORREF
  std::uint32_t hatch = 0;  // HS_
};

/// LOGPENEX ([MS-EMF] 2.2.20). 28 bytes are read: of the style entries only the first, whatever
/// their number.
struct ExtLogPen {
  std::uint32_t style = 0;            // PS_
  std::uint32_t width = 0;            // logical units
  std::uint32_t brushStyle = 0;       // BS_
  std::uint32_t color = 0;            // COLORREF
  std::uint32_t hatch = 0;            // HS_
  std::uint32_t styleEntryCount = 0;  // as stored
  std::uint32_t styleEntry = 0;       // logical units
};

/// EMRTEXT ([MS-EMF] 2.2.5), 40 bytes.
struct TextW {
  PointL reference;  // logical units
  std::uint32_t characterCount = 0;
  std::uint32_t stringOffset = 0;   // bytes from the record's start
  std::uint32_t options = 0;        // ETO_
  RectangleL rectangle;             // logical units
  std::uint32_t spacingOffset = 0;  // bytes from the record's start
};

/// LOGFONTW ([MS-EMF] 2.2.13), 92 bytes.
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
  std::u16string lfFaceName;  // once read always 32 units: the name, then zeros
};

/// PANOSE ([MS-EMF] 2.2.21), 10 bytes.
struct PANOSE {
  std::uint8_t bFamilyType = 0;
  std::uint8_t bSerifStyle = 0;
  std::uint8_t bWeight = 0;
  std::uint8_t bProportion = 0;
  std::uint8_t bContrast = 0;
  std::uint8_t bStrokeVariation = 0;
  std::uint8_t bArmStyle = 0;
  std::uint8_t bLetterform = 0;
  std::uint8_t bMidline = 0;
  std::uint8_t bXHeight = 0;
};

/// LOGFONTPANOSE ([MS-EMF] 2.2.16), 320 bytes.
struct ExtLogFontW {
  LogFontW font;
  std::array<std::uint16_t, 64> fullName = {};  // UTF-16 units, padded with zeros
  std::array<std::uint16_t, 32> style = {};     // UTF-16 units, padded with zeros
  std::uint32_t version = 0;
  std::uint32_t styleSize = 0;
  std::uint32_t match = 0;
  std::uint32_t reserved = 0;
  std::array<std::uint8_t, 4> vendorId = {};
  std::uint32_t culture = 0;
  PANOSE panose;
  std::uint16_t padding = 0;
};

}  // namespace kelvane
