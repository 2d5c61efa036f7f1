#pragma once

#include <array>
#include <cstdint>
#include <tuple>

#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// What GDI objects are created of, field by field as files store them.

/// LOGPEN ([MS-EMF] 2.2.19), 16 bytes.
struct LogPen {
  PenStyle style{};
  PointL width;  // x in logical units, 0 for a device pixel; y means nothing
  ColorRef color;

  constexpr auto Fields() { return std::tie(style, width, color); }
  friend bool operator==(const LogPen&, const LogPen&) = default;
};

/// EXTLOGPEN ([MS-EMF] 2.2.20), 24 bytes without the lengths of dashes and gaps that follow it.
struct LogPenEx {
  PenStyle style{};
  std::uint32_t width = 0;  // logical units of a geometric pen, 1 of a cosmetic one
  BrushStyle brushStyle{};
  ColorRef color;                // no patterns'
  std::uint32_t hatch = 0;       // HatchStyle of BS_HATCHED, DibUsage of a pattern
  std::uint32_t numEntries = 0;  // dashes and gaps, as stored

  constexpr auto Fields() { return std::tie(style, width, brushStyle, color, hatch, numEntries); }
  friend bool operator==(const LogPenEx&, const LogPenEx&) = default;
};

/// LOGBRUSH32 ([MS-EMF] 2.2.12), 12 bytes.
struct LogBrush {
  BrushStyle style{};
  ColorRef color;  // of BS_SOLID and BS_HATCHED
  HatchStyle hatch{};

  constexpr auto Fields() { return std::tie(style, color, hatch); }
  friend bool operator==(const LogBrush&, const LogBrush&) = default;
};

/// What a font is asked for by, its numbers as wide as in the file, its name in Units.
template <class Number, class Unit>
struct BasicLogFont {
  Number height = 0;       // logical units; > 0 of the cell, < 0 of the em, 0 for the default
  Number width = 0;        // logical units, of an average character; 0 as the face has it
  Number escapement = 0;   // of the line, tenths of a degree, counter-clockwise
  Number orientation = 0;  // of a character, tenths of a degree, counter-clockwise
  Number weight = 0;       // 1 to 1000; 400 is regular, 700 bold, 0 the default
  std::uint8_t italic = 0;
  std::uint8_t underline = 0;
  std::uint8_t strikeOut = 0;
  CharacterSet charSet{};
  OutPrecision outPrecision{};
  ClipPrecision clipPrecision{};
  FontQuality quality{};
  PitchAndFamily pitchAndFamily{};
  std::array<Unit, 32> faceName{};  // up to the first NUL, or all of it

  constexpr auto Fields() {
    return std::tie(height, width, escapement, orientation, weight, italic, underline, strikeOut,
                    charSet, outPrecision, clipPrecision, quality, pitchAndFamily, faceName);
  }
  friend bool operator==(const BasicLogFont&, const BasicLogFont&) = default;
};

/// LOGFONTW ([MS-EMF] 2.2.13), 92 bytes.
using LogFont = BasicLogFont<std::int32_t, char16_t>;

/// LOGFONT ([MS-WMF] 2.2.1.2), 50 bytes. The name is in the code page of the character set.
using LogFont16 = BasicLogFont<std::int16_t, char>;

/// PANOSE ([MS-EMF] 2.2.21), 10 bytes.
struct Panose {
  std::uint8_t familyType = 0;
  std::uint8_t serifStyle = 0;
  std::uint8_t weight = 0;
  std::uint8_t proportion = 0;
  std::uint8_t contrast = 0;
  std::uint8_t strokeVariation = 0;
  std::uint8_t armStyle = 0;
  std::uint8_t letterform = 0;
  std::uint8_t midline = 0;
  std::uint8_t xHeight = 0;

  constexpr auto Fields() {
    return std::tie(familyType, serifStyle, weight, proportion, contrast, strokeVariation, armStyle,
                    letterform, midline, xHeight);
  }
  friend bool operator==(const Panose&, const Panose&) = default;
};

/// LOGCOLORSPACE ([MS-WMF] 2.2.2.11, .12), 68 bytes without the name of a profile that follows it.
struct LogColorSpace {
  std::uint32_t signature = 0;              // 0x50534F43
  std::uint32_t version = 0;                // 0x400
  std::uint32_t size = 0;                   // bytes, of all of it
  std::uint32_t type = 0;                   // 0: calibrated by what follows
  std::uint32_t intent = 0;                 // of rendering
  std::array<std::int32_t, 9> endpoints{};  // x, y, z of red, green and blue, 2.30 fixed
  std::array<std::uint32_t, 3> gamma{};     // of red, green and blue, 16.16 fixed

  constexpr auto Fields() {
    return std::tie(signature, version, size, type, intent, endpoints, gamma);
  }
  friend bool operator==(const LogColorSpace&, const LogColorSpace&) = default;
};

/// PIXELFORMATDESCRIPTOR ([MS-EMF] 2.2.22), 40 bytes: what OpenGL draws into.
struct PixelFormatDescriptor {
  std::uint16_t size = 0;     // 40
  std::uint16_t version = 0;  // 1
  std::uint32_t flags = 0;
  std::uint8_t pixelType = 0;
  std::uint8_t colorBits = 0;
  std::uint8_t redBits = 0;
  std::uint8_t redShift = 0;
  std::uint8_t greenBits = 0;
  std::uint8_t greenShift = 0;
  std::uint8_t blueBits = 0;
  std::uint8_t blueShift = 0;
  std::uint8_t alphaBits = 0;
  std::uint8_t alphaShift = 0;
  std::uint8_t accumBits = 0;
  std::uint8_t accumRedBits = 0;
  std::uint8_t accumGreenBits = 0;
  std::uint8_t accumBlueBits = 0;
  std::uint8_t accumAlphaBits = 0;
  std::uint8_t depthBits = 0;
  std::uint8_t stencilBits = 0;
  std::uint8_t auxBuffers = 0;
  std::uint8_t layerType = 0;
  std::uint8_t reserved = 0;
  std::uint32_t layerMask = 0;
  std::uint32_t visibleMask = 0;
  std::uint32_t damageMask = 0;

  constexpr auto Fields() {
    return std::tie(size, version, flags, pixelType, colorBits, redBits, redShift, greenBits,
                    greenShift, blueBits, blueShift, alphaBits, alphaShift, accumBits, accumRedBits,
                    accumGreenBits, accumBlueBits, accumAlphaBits, depthBits, stencilBits,
                    auxBuffers, layerType, reserved, layerMask, visibleMask, damageMask);
  }
};

/// UNIVERSAL_FONT_ID ([MS-EMF] 2.2.27), 8 bytes.
struct UniversalFontId {
  std::uint32_t checksum = 0;
  std::uint32_t index = 0;

  constexpr auto Fields() { return std::tie(checksum, index); }
  friend bool operator==(const UniversalFontId&, const UniversalFontId&) = default;
};

}  // namespace metafile
}  // namespace kelvane
