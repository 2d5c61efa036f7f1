#pragma once

#include <cstdint>
#include <tuple>

#include "metafile/stored_value.h"

namespace kelvane {
inline namespace metafile {

// The values that GDI calls take, field by field as files store them. Units are those of the call.

/// POINTL: 8 bytes.
struct PointL {
  std::int32_t x = 0;
  std::int32_t y = 0;

  constexpr auto Fields() { return std::tie(x, y); }
  friend bool operator==(const PointL&, const PointL&) = default;
};

/// POINTS: 4 bytes.
struct Point16 {
  std::int16_t x = 0;
  std::int16_t y = 0;

  constexpr auto Fields() { return std::tie(x, y); }
  friend bool operator==(const Point16&, const Point16&) = default;
};

/// SIZEL: 8 bytes.
struct SizeL {
  std::int32_t cx = 0;
  std::int32_t cy = 0;

  constexpr auto Fields() { return std::tie(cx, cy); }
  friend bool operator==(const SizeL&, const SizeL&) = default;
};

/// RECTL: 16 bytes. Edges may come in any order; whether right and bottom belong to it is up to the
/// call.
struct RectangleL {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;

  constexpr auto Fields() { return std::tie(left, top, right, bottom); }
  friend bool operator==(const RectangleL&, const RectangleL&) = default;
};

/// XFORM ([MS-EMF] 2.2.28), 24 bytes: the affine map of row vectors
///
///                        | eM11 eM12 0 |
///     [x' y' 1] = [x y 1]| eM21 eM22 0 |
///                        | eDx  eDy  1 |
struct XForm {
  float eM11 = 0;
  float eM12 = 0;
  float eM21 = 0;
  float eM22 = 0;
  float eDx = 0;
  float eDy = 0;

  constexpr auto Fields() { return std::tie(eM11, eM12, eM21, eM22, eDx, eDy); }
  friend bool operator==(const XForm&, const XForm&) = default;
};

/// COLORREF ([MS-WMF] 2.2.2.8), 4 bytes: red in bits 0 to 7, green in 8 to 15, blue in 16 to 23. A
/// top byte of 1 makes it an index into the palette instead; any other means nothing.
struct ColorRef {
  std::uint32_t value = 0;

  [[nodiscard]] constexpr std::uint8_t Red() const { return static_cast<std::uint8_t>(value); }
  [[nodiscard]] constexpr std::uint8_t Green() const {
    return static_cast<std::uint8_t>(value >> 8);
  }
  [[nodiscard]] constexpr std::uint8_t Blue() const {
    return static_cast<std::uint8_t>(value >> 16);
  }
  [[nodiscard]] constexpr bool IsPaletteIndex() const { return value >> 24 == 1; }
  [[nodiscard]] constexpr std::uint16_t PaletteIndex() const {
    return static_cast<std::uint16_t>(value);
  }

  constexpr auto Fields() { return std::tie(value); }
  friend bool operator==(const ColorRef&, const ColorRef&) = default;
};

/// PALETTEENTRY ([MS-EMF] 2.2.18), 4 bytes. Files hold red first.
struct PaletteEntry {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t flags = 0;  // how the system palette is to take it

  constexpr auto Fields() { return std::tie(red, green, blue, flags); }
  friend bool operator==(const PaletteEntry&, const PaletteEntry&) = default;
};

/// BLENDFUNCTION ([MS-EMF] 2.3.1.1), 4 bytes.
struct BlendFunction {
  std::uint8_t blendOp = 0;              // 0: source over destination
  std::uint8_t blendFlags = 0;           // to be 0, and often not
  std::uint8_t sourceConstantAlpha = 0;  // 255 is opaque
  std::uint8_t alphaFormat = 0;          // 1: the source has premultiplied alpha of its own

  constexpr auto Fields() {
    return std::tie(blendOp, blendFlags, sourceConstantAlpha, alphaFormat);
  }
  friend bool operator==(const BlendFunction&, const BlendFunction&) = default;
};

/// TRIVERTEX ([MS-EMF] 2.2.26), 16 bytes. Of a channel the high byte is the 8-bit value.
struct TriVertex {
  PointL position;          // logical units
  std::uint16_t red = 0;    // 0 to 0xFF00
  std::uint16_t green = 0;  // 0 to 0xFF00
  std::uint16_t blue = 0;   // 0 to 0xFF00
  std::uint16_t alpha = 0;  // stored, never used

  constexpr auto Fields() { return std::tie(position, red, green, blue, alpha); }
  friend bool operator==(const TriVertex&, const TriVertex&) = default;
};

/// GRADIENT_TRIANGLE: 12 bytes, indexes of vertices, each as large as it likes.
struct GradientTriangle {
  std::uint32_t vertex1 = 0;
  std::uint32_t vertex2 = 0;
  std::uint32_t vertex3 = 0;

  constexpr auto Fields() { return std::tie(vertex1, vertex2, vertex3); }
  friend bool operator==(const GradientTriangle&, const GradientTriangle&) = default;
};

/// GRADIENT_RECT: 8 bytes, indexes of the vertices at two opposite corners.
struct GradientRectangle {
  std::uint32_t upperLeft = 0;
  std::uint32_t lowerRight = 0;

  constexpr auto Fields() { return std::tie(upperLeft, lowerRight); }
  friend bool operator==(const GradientRectangle&, const GradientRectangle&) = default;
};

/// COLORADJUSTMENT ([MS-EMF] 2.2.2), 24 bytes: how HALFTONE stretching is to change colours.
struct ColorAdjustment {
  std::uint16_t size = 0;    // 24
  std::uint16_t values = 0;  // bit 0 negative, bit 1 logarithmic
  std::uint16_t illuminantIndex = 0;
  std::uint16_t redGamma = 0;    // 10000 is 1
  std::uint16_t greenGamma = 0;  // 10000 is 1
  std::uint16_t blueGamma = 0;   // 10000 is 1
  std::uint16_t referenceBlack = 0;
  std::uint16_t referenceWhite = 0;
  std::int16_t contrast = 0;      // -100 to 100
  std::int16_t brightness = 0;    // -100 to 100
  std::int16_t colorfulness = 0;  // -100 to 100
  std::int16_t redGreenTint = 0;  // -100 to 100

  constexpr auto Fields() {
    return std::tie(size, values, illuminantIndex, redGamma, greenGamma, blueGamma, referenceBlack,
                    referenceWhite, contrast, brightness, colorfulness, redGreenTint);
  }
};

}  // namespace metafile
}  // namespace kelvane
