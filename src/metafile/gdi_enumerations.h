#pragma once

#include <cstdint>

namespace kelvane {
inline namespace metafile {

// The values of GDI by their Windows names. Each enumeration has the width in which it is stored
// and may hold any value of it: files store what they like.

/// SetMapMode ([MS-EMF] 2.1.21).
enum MapMode : std::uint32_t {
  MM_TEXT = 1,        // a device unit, y down
  MM_LOMETRIC = 2,    // 0.1 mm, y up
  MM_HIMETRIC = 3,    // 0.01 mm, y up
  MM_LOENGLISH = 4,   // 0.01 inch, y up
  MM_HIENGLISH = 5,   // 0.001 inch, y up
  MM_TWIPS = 6,       // 1/1440 inch, y up
  MM_ISOTROPIC = 7,   // window to viewport, equal in x and y
  MM_ANISOTROPIC = 8  // window to viewport
};

/// SetGraphicsMode ([MS-EMF] 2.1.16).
enum GraphicsMode : std::uint32_t { GM_COMPATIBLE = 1, GM_ADVANCED = 2 };

/// ModifyWorldTransform ([MS-EMF] 2.1.24).
enum WorldTransformMode : std::uint32_t {
  MWT_IDENTITY = 1,       // the given transform is ignored
  MWT_LEFTMULTIPLY = 2,   // the given one comes first
  MWT_RIGHTMULTIPLY = 3,  // the given one comes last
  MWT_SET = 4
};

/// SetLayout ([MS-EMF] 2.3.11.17); flags.
enum Layout : std::uint32_t {
  LAYOUT_RTL = 0x1,  // x runs to the left
  LAYOUT_BTT = 0x2,
  LAYOUT_VBH = 0x4,
  LAYOUT_BITMAPORIENTATIONPRESERVED = 0x8
};

/// SetBkMode ([MS-EMF] 2.1.4).
enum BackgroundMode : std::uint32_t { TRANSPARENT = 1, OPAQUE = 2 };

/// SetPolyFillMode ([MS-EMF] 2.1.27).
enum PolyFillMode : std::uint32_t {
  ALTERNATE = 1,  // even-odd
  WINDING = 2     // non-zero
};

/// SetROP2 ([MS-WMF] 2.1.1.2): the pen's or brush's colour P over the destination D.
enum BinaryRasterOperation : std::uint32_t {
  R2_BLACK = 1,         // 0
  R2_NOTMERGEPEN = 2,   // ~(P | D)
  R2_MASKNOTPEN = 3,    // ~P & D
  R2_NOTCOPYPEN = 4,    // ~P
  R2_MASKPENNOT = 5,    // P & ~D
  R2_NOT = 6,           // ~D
  R2_XORPEN = 7,        // P ^ D
  R2_NOTMASKPEN = 8,    // ~(P & D)
  R2_MASKPEN = 9,       // P & D
  R2_NOTXORPEN = 10,    // ~(P ^ D)
  R2_NOP = 11,          // D
  R2_MERGENOTPEN = 12,  // ~P | D
  R2_COPYPEN = 13,      // P
  R2_MERGEPENNOT = 14,  // P | ~D
  R2_MERGEPEN = 15,     // P | D
  R2_WHITE = 16         // 1
};

/// BitBlt and its kin ([MS-WMF] 2.1.1.31): brush P, source S, destination D. Bits 16 to 23 are the
/// operation; what stands below them is of no use, and the top two bits are modifiers.
enum TernaryRasterOperation : std::uint32_t {
  BLACKNESS = 0x00000042,    // 0
  NOTSRCERASE = 0x001100A6,  // ~(S | D)
  NOTSRCCOPY = 0x00330008,   // ~S
  SRCERASE = 0x00440328,     // S & ~D
  DSTINVERT = 0x00550009,    // ~D
  PATINVERT = 0x005A0049,    // P ^ D
  SRCINVERT = 0x00660046,    // S ^ D
  SRCAND = 0x008800C6,       // S & D
  MERGEPAINT = 0x00BB0226,   // ~S | D
  MERGECOPY = 0x00C000CA,    // P & S
  SRCCOPY = 0x00CC0020,      // S
  SRCPAINT = 0x00EE0086,     // S | D
  PATCOPY = 0x00F00021,      // P
  PATPAINT = 0x00FB0A09,     // P | ~S | D
  WHITENESS = 0x00FF0062     // 1
};

/// SetStretchBltMode ([MS-EMF] 2.1.32).
enum StretchMode : std::uint32_t {
  STRETCH_ANDSCANS = 1,     // BLACKONWHITE
  STRETCH_ORSCANS = 2,      // WHITEONBLACK
  STRETCH_DELETESCANS = 3,  // COLORONCOLOR
  STRETCH_HALFTONE = 4
};

/// SetArcDirection ([MS-EMF] 2.1.2).
enum ArcDirection : std::uint32_t { AD_COUNTERCLOCKWISE = 1, AD_CLOCKWISE = 2 };

/// SetICMMode ([MS-EMF] 2.1.18).
enum IcmMode : std::uint32_t { ICM_OFF = 1, ICM_ON = 2, ICM_QUERY = 3, ICM_DONE_OUTSIDEDC = 4 };

/// ColorMatchToTarget ([MS-EMF] 2.1.6).
enum ColorMatchAction : std::uint32_t { CS_ENABLE = 1, CS_DISABLE = 2, CS_DELETE_TRANSFORM = 3 };

/// SetTextAlign ([MS-WMF] 2.1.2.3, .4); flags, but for the two masks.
enum TextAlign : std::uint32_t {
  TA_NOUPDATECP = 0,
  TA_UPDATECP = 0x1,  // the text starts at the current position, and moves it
  TA_LEFT = 0,
  TA_RIGHT = 0x2,
  TA_CENTER = 0x6,
  TA_HORIZONTALMASK = 0x6,
  TA_TOP = 0,
  TA_BOTTOM = 0x8,
  TA_BASELINE = 0x18,
  TA_VERTICALMASK = 0x18,
  TA_RTLREADING = 0x100,
  // The same bits for fonts that run downwards.
  VTA_TOP = TA_LEFT,
  VTA_RIGHT = TA_TOP,
  VTA_BOTTOM = TA_RIGHT,
  VTA_CENTER = TA_CENTER,
  VTA_LEFT = TA_BOTTOM,
  VTA_BASELINE = TA_BASELINE
};

/// ExtTextOut ([MS-EMF] 2.1.11); flags.
enum ExtTextOutOptions : std::uint32_t {
  ETO_OPAQUE = 0x2,        // the rectangle is filled with the background colour
  ETO_CLIPPED = 0x4,       // the rectangle clips
  ETO_GLYPH_INDEX = 0x10,  // glyph numbers instead of characters
  ETO_RTLREADING = 0x80,
  ETO_NO_RECT = 0x100,      // no rectangle is stored
  ETO_SMALL_CHARS = 0x200,  // the low byte of each UTF-16 unit is stored
  ETO_NUMERICSLOCAL = 0x400,
  ETO_NUMERICSLATIN = 0x800,
  ETO_IGNORELANGUAGE = 0x1000,
  ETO_PDY = 0x2000,  // advances are pairs of dx and dy
  ETO_REVERSE_INDEX_MAP = 0x10000
};

/// Pens ([MS-EMF] 2.1.25): a style, an end cap, a join and a type, each under its mask.
enum PenStyle : std::uint32_t {
  PS_SOLID = 0,
  PS_DASH = 1,
  PS_DOT = 2,
  PS_DASHDOT = 3,
  PS_DASHDOTDOT = 4,
  PS_NULL = 5,
  PS_INSIDEFRAME = 6,
  PS_USERSTYLE = 7,
  PS_ALTERNATE = 8,  // every other pixel
  PS_STYLE_MASK = 0xF,
  PS_ENDCAP_ROUND = 0,
  PS_ENDCAP_SQUARE = 0x100,
  PS_ENDCAP_FLAT = 0x200,
  PS_ENDCAP_MASK = 0xF00,
  PS_JOIN_ROUND = 0,
  PS_JOIN_BEVEL = 0x1000,
  PS_JOIN_MITER = 0x2000,
  PS_JOIN_MASK = 0xF000,
  PS_COSMETIC = 0,
  PS_GEOMETRIC = 0x10000,
  PS_TYPE_MASK = 0xF0000
};

/// Brushes, of which pens may be made ([MS-WMF] 2.1.1.4).
enum BrushStyle : std::uint32_t {
  BS_SOLID = 0,
  BS_NULL = 1,
  BS_HATCHED = 2,
  BS_PATTERN = 3,
  BS_INDEXED = 4,
  BS_DIBPATTERN = 5,
  BS_DIBPATTERNPT = 6,
  BS_PATTERN8X8 = 7,
  BS_DIBPATTERN8X8 = 8,
  BS_MONOPATTERN = 9
};

/// Hatches ([MS-EMF] 2.1.17, [MS-WMF] 2.1.1.12).
enum HatchStyle : std::uint32_t {
  HS_HORIZONTAL = 0,
  HS_VERTICAL = 1,
  HS_FDIAGONAL = 2,  // falls to the right
  HS_BDIAGONAL = 3,  // rises to the right
  HS_CROSS = 4,
  HS_DIAGCROSS = 5,
  HS_SOLIDCLR = 6,         // the brush's colour
  HS_DITHEREDCLR = 7,      // the brush's colour
  HS_SOLIDTEXTCLR = 8,     // the text's colour
  HS_DITHEREDTEXTCLR = 9,  // the text's colour
  HS_SOLIDBKCLR = 10,      // the background's colour
  HS_DITHEREDBKCLR = 11    // the background's colour
};

/// Handles of objects that nobody creates ([MS-EMF] 2.1.31).
enum StockObject : std::uint32_t {
  STOCK_OBJECT_BIT = 0x80000000,
  WHITE_BRUSH = 0x80000000,
  LTGRAY_BRUSH = 0x80000001,  // C0C0C0
  GRAY_BRUSH = 0x80000002,    // 808080
  DKGRAY_BRUSH = 0x80000003,  // 404040
  BLACK_BRUSH = 0x80000004,
  NULL_BRUSH = 0x80000005,
  WHITE_PEN = 0x80000006,
  BLACK_PEN = 0x80000007,
  NULL_PEN = 0x80000008,
  OEM_FIXED_FONT = 0x8000000A,
  ANSI_FIXED_FONT = 0x8000000B,
  ANSI_VAR_FONT = 0x8000000C,
  SYSTEM_FONT = 0x8000000D,
  DEVICE_DEFAULT_FONT = 0x8000000E,
  DEFAULT_PALETTE = 0x8000000F,
  SYSTEM_FIXED_FONT = 0x80000010,
  DEFAULT_GUI_FONT = 0x80000011,
  DC_BRUSH = 0x80000012,
  DC_PEN = 0x80000013
};

/// How a region joins the clip ([MS-EMF] 2.1.29).
enum RegionMode : std::uint32_t {
  RGN_AND = 1,
  RGN_OR = 2,
  RGN_XOR = 3,
  RGN_DIFF = 4,  // the clip without the region
  RGN_COPY = 5
};

/// PolyDraw ([MS-EMF] 2.1.26). The flag closes the figure after the point.
enum PointType : std::uint8_t {
  PT_CLOSEFIGURE = 0x01,
  PT_LINETO = 0x02,
  PT_BEZIERTO = 0x04,  // in threes
  PT_MOVETO = 0x06
};

/// GradientFill ([MS-EMF] 2.1.15).
enum GradientFillMode : std::uint32_t {
  GRADIENT_FILL_RECT_H = 0,
  GRADIENT_FILL_RECT_V = 1,
  GRADIENT_FILL_TRIANGLE = 2
};

/// ExtFloodFill ([MS-EMF] 2.1.13).
enum FloodFillMode : std::uint32_t {
  FLOODFILLBORDER = 0,  // up to the colour
  FLOODFILLSURFACE = 1  // as far as the colour goes
};

/// What a DIB's colour table holds ([MS-EMF] 2.1.9).
enum DibUsage : std::uint32_t {
  DIB_RGB_COLORS = 0,
  DIB_PAL_COLORS = 1,  // 16-bit indexes into the palette
  DIB_PAL_INDICES = 2  // there is none
};

/// How a DIB's pixels are stored ([MS-WMF] 2.1.1.7).
enum DibCompression : std::uint32_t {
  BI_RGB = 0,
  BI_RLE8 = 1,
  BI_RLE4 = 2,
  BI_BITFIELDS = 3,
  BI_JPEG = 4,  // a whole JPEG file
  BI_PNG = 5,   // a whole PNG file
  BI_CMYK = 11,
  BI_CMYKRLE8 = 12,
  BI_CMYKRLE4 = 13
};

/// Fonts ([MS-WMF] 2.1.1.5).
enum CharacterSet : std::uint8_t {
  ANSI_CHARSET = 0,
  DEFAULT_CHARSET = 1,  // the system's
  SYMBOL_CHARSET = 2,
  MAC_CHARSET = 77,
  SHIFTJIS_CHARSET = 128,
  HANGUL_CHARSET = 129,
  JOHAB_CHARSET = 130,
  GB2312_CHARSET = 134,
  CHINESEBIG5_CHARSET = 136,
  GREEK_CHARSET = 161,
  TURKISH_CHARSET = 162,
  VIETNAMESE_CHARSET = 163,
  HEBREW_CHARSET = 177,
  ARABIC_CHARSET = 178,
  BALTIC_CHARSET = 186,
  RUSSIAN_CHARSET = 204,
  THAI_CHARSET = 222,
  EASTEUROPE_CHARSET = 238,
  OEM_CHARSET = 255
};

/// Fonts ([MS-WMF] 2.1.1.21).
enum OutPrecision : std::uint8_t {
  OUT_DEFAULT_PRECIS = 0,
  OUT_STRING_PRECIS = 1,
  OUT_STROKE_PRECIS = 3,
  OUT_TT_PRECIS = 4,
  OUT_DEVICE_PRECIS = 5,
  OUT_RASTER_PRECIS = 6,
  OUT_TT_ONLY_PRECIS = 7,
  OUT_OUTLINE_PRECIS = 8,
  OUT_PS_ONLY_PRECIS = 10
};

/// Fonts ([MS-WMF] 2.1.2.1); flags.
enum ClipPrecision : std::uint8_t {
  CLIP_DEFAULT_PRECIS = 0,
  CLIP_LH_ANGLES = 0x10,  // angles turn as the coordinates do
  CLIP_TT_ALWAYS = 0x20,
  CLIP_DFA_DISABLE = 0x40,
  CLIP_EMBEDDED = 0x80
};

/// Fonts ([MS-WMF] 2.1.1.10).
enum FontQuality : std::uint8_t {
  DEFAULT_QUALITY = 0,
  DRAFT_QUALITY = 1,
  PROOF_QUALITY = 2,
  NONANTIALIASED_QUALITY = 3,
  ANTIALIASED_QUALITY = 4,
  CLEARTYPE_QUALITY = 5
};

/// Fonts ([MS-WMF] 2.2.2.14): a pitch and a family, each under its mask.
enum PitchAndFamily : std::uint8_t {
  DEFAULT_PITCH = 0,
  FIXED_PITCH = 1,
  VARIABLE_PITCH = 2,
  PITCH_MASK = 0x03,
  FF_DONTCARE = 0,
  FF_ROMAN = 0x10,
  FF_SWISS = 0x20,
  FF_MODERN = 0x30,
  FF_SCRIPT = 0x40,
  FF_DECORATIVE = 0x50,
  FF_MASK = 0xF0
};

}  // namespace metafile
}  // namespace kelvane
