#pragma once

#include <cstdint>

namespace kelvane {
inline namespace metafile {

// What the numbers of EMF+ mean ([MS-EMFPLUS] 2.1.1). A file may store any number in their place.

enum class EmfPlusObjectType : std::uint8_t {
  kInvalid = 0,
  kBrush = 1,
  kPen = 2,
  kPath = 3,
  kRegion = 4,
  kImage = 5,
  kFont = 6,
  kStringFormat = 7,
  kImageAttributes = 8,
  kCustomLineCap = 9
};

/// Units of lengths; world units go through the world transform, all others do not.
enum class EmfPlusUnit : std::uint32_t {
  kWorld = 0,
  kDisplay = 1,
  kPixel = 2,
  kPoint = 3,
  kInch = 4,
  kDocument = 5,  // 1/300 inch
  kMillimeter = 6
};

/// How an area joins the clip.
enum class EmfPlusCombineMode : std::uint8_t {
  kReplace = 0,
  kIntersect = 1,
  kUnion = 2,
  kXor = 3,
  kExclude = 4,    // the old one without the new
  kComplement = 5  // the new one without the old
};

/// How a brush goes on beyond its tile.
enum class EmfPlusWrapMode : std::int32_t {
  kTile = 0,
  kTileFlipX = 1,
  kTileFlipY = 2,
  kTileFlipXY = 3,
  kClamp = 4
};

enum class EmfPlusLineCap : std::int32_t {
  kFlat = 0,
  kSquare = 1,
  kRound = 2,
  kTriangle = 3,
  kNoAnchor = 0x10,
  kSquareAnchor = 0x11,
  kRoundAnchor = 0x12,
  kDiamondAnchor = 0x13,
  kArrowAnchor = 0x14,
  kCustom = 0xFF
};

enum class EmfPlusDashCap : std::int32_t { kFlat = 0, kRound = 2, kTriangle = 3 };

enum class EmfPlusLineStyle : std::int32_t {
  kSolid = 0,
  kDash = 1,
  kDot = 2,
  kDashDot = 3,
  kDashDotDot = 4,
  kCustom = 5
};

enum class EmfPlusLineJoin : std::int32_t { kMiter = 0, kBevel = 1, kRound = 2, kMiterClipped = 3 };

enum class EmfPlusPenAlignment : std::int32_t {
  kCenter = 0,
  kInset = 1,
  kLeft = 2,
  kOutset = 3,
  kRight = 4
};

enum class EmfPlusSmoothingMode : std::uint8_t {
  kDefault = 0,
  kHighSpeed = 1,
  kHighQuality = 2,
  kNone = 3,
  kAntiAlias8x4 = 4,
  kAntiAlias8x8 = 5
};

enum class EmfPlusTextRenderingHint : std::uint8_t {
  kSystemDefault = 0,
  kSingleBitPerPixelGridFit = 1,
  kSingleBitPerPixel = 2,
  kAntiAliasGridFit = 3,
  kAntiAlias = 4,
  kClearTypeGridFit = 5
};

enum class EmfPlusInterpolationMode : std::uint8_t {
  kDefault = 0,
  kLowQuality = 1,
  kHighQuality = 2,
  kBilinear = 3,
  kBicubic = 4,
  kNearestNeighbor = 5,
  kHighQualityBilinear = 6,
  kHighQualityBicubic = 7
};

/// Where the middle of a pixel lies: at whole coordinates, or for kHighQuality and kHalf at halves.
enum class EmfPlusPixelOffsetMode : std::uint8_t {
  kDefault = 0,
  kHighSpeed = 1,
  kHighQuality = 2,
  kNone = 3,
  kHalf = 4
};

enum class EmfPlusCompositingMode : std::uint8_t { kSourceOver = 0, kSourceCopy = 1 };

enum class EmfPlusStringAlignment : std::uint32_t { kNear = 0, kCenter = 1, kFar = 2 };

enum class EmfPlusStringTrimming : std::int32_t {
  kNone = 0,
  kCharacter = 1,
  kWord = 2,
  kEllipsisCharacter = 3,
  kEllipsisWord = 4,
  kEllipsisPath = 5
};

enum class EmfPlusHotkeyPrefix : std::int32_t { kNone = 0, kShow = 1, kHide = 2 };

enum class EmfPlusDigitSubstitution : std::uint32_t {
  kUser = 0,
  kNone = 1,
  kNational = 2,
  kTraditional = 3
};

/// How the nodes of a region's tree stand to each other, or what a leaf is.
enum class EmfPlusRegionNodeType : std::uint32_t {
  kAnd = 1,
  kOr = 2,
  kXor = 3,
  kExclude = 4,     // left without right
  kComplement = 5,  // right without left
  kRectangle = 0x10000000,
  kPath = 0x10000001,
  kEmpty = 0x10000002,
  kInfinite = 0x10000003
};

enum class EmfPlusPixelFormat : std::uint32_t {
  kUndefined = 0,
  k1Indexed = 0x00030101,
  k4Indexed = 0x00030402,
  k8Indexed = 0x00030803,
  k16Gray = 0x00101004,
  k16Rgb555 = 0x00021005,
  k16Rgb565 = 0x00021006,
  k16Argb1555 = 0x00061007,
  k24Rgb = 0x00021808,
  k32Rgb = 0x00022009,
  k32Argb = 0x0026200A,
  k32PremultipliedArgb = 0x000E200B,
  k48Rgb = 0x0010300C,
  k64Argb = 0x0034400D,
  k64PremultipliedArgb = 0x001A400E,
  k64PremultipliedArgbByItsBits = 0x001C400E
};

constexpr unsigned EmfPlusBitsPerPixel(EmfPlusPixelFormat format) {
  return static_cast<std::uint32_t>(format) >> 8 & 0xFF;
}

/// @return whether pixels number the colours of a palette.
constexpr bool IsEmfPlusIndexed(EmfPlusPixelFormat format) {
  return (static_cast<std::uint32_t>(format) & 0x00010000) != 0;
}

enum class EmfPlusMetafileType : std::uint32_t {
  kWmf = 1,
  kPlaceableWmf = 2,
  kEmf = 3,
  kEmfPlusOnly = 4,
  kEmfPlusDual = 5
};

}  // namespace metafile
}  // namespace kelvane
