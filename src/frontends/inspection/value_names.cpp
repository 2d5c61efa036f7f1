#include "frontends/inspection/value_names.h"

namespace kelvane {
namespace {

constexpr std::uint32_t kAll = 0xFFFFFFFF;
constexpr std::uint32_t kPointMask = PT_LINETO | PT_BEZIERTO;  // of what a point is

// A value by its own name, so that the two cannot part.
#define WHOLE(value) \
  { kAll, value, #value }
#define PART(mask, value) \
  { mask, value, #value }
#define FLAG(value) PART(value, value)

constexpr NamedBits kMapModeNames[] = {
    WHOLE(MM_TEXT),      WHOLE(MM_LOMETRIC), WHOLE(MM_HIMETRIC),  WHOLE(MM_LOENGLISH),
    WHOLE(MM_HIENGLISH), WHOLE(MM_TWIPS),    WHOLE(MM_ISOTROPIC), WHOLE(MM_ANISOTROPIC),
};

constexpr NamedBits kGraphicsModeNames[] = {
    WHOLE(GM_COMPATIBLE),
    WHOLE(GM_ADVANCED),
};

constexpr NamedBits kWorldTransformModeNames[] = {
    WHOLE(MWT_IDENTITY),
    WHOLE(MWT_LEFTMULTIPLY),
    WHOLE(MWT_RIGHTMULTIPLY),
    WHOLE(MWT_SET),
};

constexpr NamedBits kLayoutNames[] = {
    FLAG(LAYOUT_RTL),
    FLAG(LAYOUT_BTT),
    FLAG(LAYOUT_VBH),
    FLAG(LAYOUT_BITMAPORIENTATIONPRESERVED),
};

constexpr NamedBits kBackgroundModeNames[] = {
    WHOLE(TRANSPARENT),
    WHOLE(OPAQUE),
};

constexpr NamedBits kPolyFillModeNames[] = {
    WHOLE(ALTERNATE),
    WHOLE(WINDING),
};

constexpr NamedBits kBinaryRasterOperationNames[] = {
    WHOLE(R2_BLACK),      WHOLE(R2_NOTMERGEPEN), WHOLE(R2_MASKNOTPEN), WHOLE(R2_NOTCOPYPEN),
    WHOLE(R2_MASKPENNOT), WHOLE(R2_NOT),         WHOLE(R2_XORPEN),     WHOLE(R2_NOTMASKPEN),
    WHOLE(R2_MASKPEN),    WHOLE(R2_NOTXORPEN),   WHOLE(R2_NOP),        WHOLE(R2_MERGENOTPEN),
    WHOLE(R2_COPYPEN),    WHOLE(R2_MERGEPENNOT), WHOLE(R2_MERGEPEN),   WHOLE(R2_WHITE),
};

constexpr NamedBits kTernaryRasterOperationNames[] = {
    WHOLE(BLACKNESS), WHOLE(NOTSRCERASE), WHOLE(NOTSRCCOPY), WHOLE(SRCERASE),   WHOLE(DSTINVERT),
    WHOLE(PATINVERT), WHOLE(SRCINVERT),   WHOLE(SRCAND),     WHOLE(MERGEPAINT), WHOLE(MERGECOPY),
    WHOLE(SRCCOPY),   WHOLE(SRCPAINT),    WHOLE(PATCOPY),    WHOLE(PATPAINT),   WHOLE(WHITENESS),
};

constexpr NamedBits kStretchModeNames[] = {
    WHOLE(STRETCH_ANDSCANS),
    WHOLE(STRETCH_ORSCANS),
    WHOLE(STRETCH_DELETESCANS),
    WHOLE(STRETCH_HALFTONE),
};

constexpr NamedBits kArcDirectionNames[] = {
    WHOLE(AD_COUNTERCLOCKWISE),
    WHOLE(AD_CLOCKWISE),
};

constexpr NamedBits kIcmModeNames[] = {
    WHOLE(ICM_OFF),
    WHOLE(ICM_ON),
    WHOLE(ICM_QUERY),
    WHOLE(ICM_DONE_OUTSIDEDC),
};

constexpr NamedBits kColorMatchActionNames[] = {
    WHOLE(CS_ENABLE),
    WHOLE(CS_DISABLE),
    WHOLE(CS_DELETE_TRANSFORM),
};

constexpr NamedBits kTextAlignNames[] = {
    FLAG(TA_UPDATECP),
    PART(TA_HORIZONTALMASK, TA_LEFT),
    PART(TA_HORIZONTALMASK, TA_RIGHT),
    PART(TA_HORIZONTALMASK, TA_CENTER),
    PART(TA_VERTICALMASK, TA_TOP),
    PART(TA_VERTICALMASK, TA_BOTTOM),
    PART(TA_VERTICALMASK, TA_BASELINE),
    FLAG(TA_RTLREADING),
};

constexpr NamedBits kExtTextOutOptionsNames[] = {
    FLAG(ETO_OPAQUE),        FLAG(ETO_CLIPPED),           FLAG(ETO_GLYPH_INDEX),
    FLAG(ETO_RTLREADING),    FLAG(ETO_NO_RECT),           FLAG(ETO_SMALL_CHARS),
    FLAG(ETO_NUMERICSLOCAL), FLAG(ETO_NUMERICSLATIN),     FLAG(ETO_IGNORELANGUAGE),
    FLAG(ETO_PDY),           FLAG(ETO_REVERSE_INDEX_MAP),
};

constexpr NamedBits kPenStyleNames[] = {
    PART(PS_STYLE_MASK, PS_SOLID),
    PART(PS_STYLE_MASK, PS_DASH),
    PART(PS_STYLE_MASK, PS_DOT),
    PART(PS_STYLE_MASK, PS_DASHDOT),
    PART(PS_STYLE_MASK, PS_DASHDOTDOT),
    PART(PS_STYLE_MASK, PS_NULL),
    PART(PS_STYLE_MASK, PS_INSIDEFRAME),
    PART(PS_STYLE_MASK, PS_USERSTYLE),
    PART(PS_STYLE_MASK, PS_ALTERNATE),
    PART(PS_ENDCAP_MASK, PS_ENDCAP_ROUND),
    PART(PS_ENDCAP_MASK, PS_ENDCAP_SQUARE),
    PART(PS_ENDCAP_MASK, PS_ENDCAP_FLAT),
    PART(PS_JOIN_MASK, PS_JOIN_ROUND),
    PART(PS_JOIN_MASK, PS_JOIN_BEVEL),
    PART(PS_JOIN_MASK, PS_JOIN_MITER),
    PART(PS_TYPE_MASK, PS_COSMETIC),
    PART(PS_TYPE_MASK, PS_GEOMETRIC),
};

constexpr NamedBits kBrushStyleNames[] = {
    WHOLE(BS_SOLID),         WHOLE(BS_NULL),        WHOLE(BS_HATCHED),      WHOLE(BS_PATTERN),
    WHOLE(BS_INDEXED),       WHOLE(BS_DIBPATTERN),  WHOLE(BS_DIBPATTERNPT), WHOLE(BS_PATTERN8X8),
    WHOLE(BS_DIBPATTERN8X8), WHOLE(BS_MONOPATTERN),
};

constexpr NamedBits kHatchStyleNames[] = {
    WHOLE(HS_HORIZONTAL),      WHOLE(HS_VERTICAL),    WHOLE(HS_FDIAGONAL),
    WHOLE(HS_BDIAGONAL),       WHOLE(HS_CROSS),       WHOLE(HS_DIAGCROSS),
    WHOLE(HS_SOLIDCLR),        WHOLE(HS_DITHEREDCLR), WHOLE(HS_SOLIDTEXTCLR),
    WHOLE(HS_DITHEREDTEXTCLR), WHOLE(HS_SOLIDBKCLR),  WHOLE(HS_DITHEREDBKCLR),
};

constexpr NamedBits kStockObjectNames[] = {
    WHOLE(WHITE_BRUSH),      WHOLE(LTGRAY_BRUSH),
    WHOLE(GRAY_BRUSH),       WHOLE(DKGRAY_BRUSH),
    WHOLE(BLACK_BRUSH),      WHOLE(NULL_BRUSH),
    WHOLE(WHITE_PEN),        WHOLE(BLACK_PEN),
    WHOLE(NULL_PEN),         WHOLE(OEM_FIXED_FONT),
    WHOLE(ANSI_FIXED_FONT),  WHOLE(ANSI_VAR_FONT),
    WHOLE(SYSTEM_FONT),      WHOLE(DEVICE_DEFAULT_FONT),
    WHOLE(DEFAULT_PALETTE),  WHOLE(SYSTEM_FIXED_FONT),
    WHOLE(DEFAULT_GUI_FONT), WHOLE(DC_BRUSH),
    WHOLE(DC_PEN),
};

constexpr NamedBits kRegionModeNames[] = {
    WHOLE(RGN_AND), WHOLE(RGN_OR), WHOLE(RGN_XOR), WHOLE(RGN_DIFF), WHOLE(RGN_COPY),
};

constexpr NamedBits kPointTypeNames[] = {
    PART(kPointMask, PT_MOVETO),
    PART(kPointMask, PT_LINETO),
    PART(kPointMask, PT_BEZIERTO),
    FLAG(PT_CLOSEFIGURE),
};

constexpr NamedBits kGradientFillModeNames[] = {
    WHOLE(GRADIENT_FILL_RECT_H),
    WHOLE(GRADIENT_FILL_RECT_V),
    WHOLE(GRADIENT_FILL_TRIANGLE),
};

constexpr NamedBits kFloodFillModeNames[] = {
    WHOLE(FLOODFILLBORDER),
    WHOLE(FLOODFILLSURFACE),
};

constexpr NamedBits kDibUsageNames[] = {
    WHOLE(DIB_RGB_COLORS),
    WHOLE(DIB_PAL_COLORS),
    WHOLE(DIB_PAL_INDICES),
};

constexpr NamedBits kDibCompressionNames[] = {
    WHOLE(BI_RGB), WHOLE(BI_RLE8), WHOLE(BI_RLE4),     WHOLE(BI_BITFIELDS), WHOLE(BI_JPEG),
    WHOLE(BI_PNG), WHOLE(BI_CMYK), WHOLE(BI_CMYKRLE8), WHOLE(BI_CMYKRLE4),
};

constexpr NamedBits kCharacterSetNames[] = {
    WHOLE(ANSI_CHARSET),    WHOLE(DEFAULT_CHARSET),  WHOLE(SYMBOL_CHARSET),
    WHOLE(MAC_CHARSET),     WHOLE(SHIFTJIS_CHARSET), WHOLE(HANGUL_CHARSET),
    WHOLE(JOHAB_CHARSET),   WHOLE(GB2312_CHARSET),   WHOLE(CHINESEBIG5_CHARSET),
    WHOLE(GREEK_CHARSET),   WHOLE(TURKISH_CHARSET),  WHOLE(VIETNAMESE_CHARSET),
    WHOLE(HEBREW_CHARSET),  WHOLE(ARABIC_CHARSET),   WHOLE(BALTIC_CHARSET),
    WHOLE(RUSSIAN_CHARSET), WHOLE(THAI_CHARSET),     WHOLE(EASTEUROPE_CHARSET),
    WHOLE(OEM_CHARSET),
};

constexpr NamedBits kOutPrecisionNames[] = {
    WHOLE(OUT_DEFAULT_PRECIS), WHOLE(OUT_STRING_PRECIS),  WHOLE(OUT_STROKE_PRECIS),
    WHOLE(OUT_TT_PRECIS),      WHOLE(OUT_DEVICE_PRECIS),  WHOLE(OUT_RASTER_PRECIS),
    WHOLE(OUT_TT_ONLY_PRECIS), WHOLE(OUT_OUTLINE_PRECIS), WHOLE(OUT_PS_ONLY_PRECIS),
};

constexpr NamedBits kClipPrecisionNames[] = {
    FLAG(CLIP_LH_ANGLES),
    FLAG(CLIP_TT_ALWAYS),
    FLAG(CLIP_DFA_DISABLE),
    FLAG(CLIP_EMBEDDED),
};

constexpr NamedBits kFontQualityNames[] = {
    WHOLE(DEFAULT_QUALITY),        WHOLE(DRAFT_QUALITY),       WHOLE(PROOF_QUALITY),
    WHOLE(NONANTIALIASED_QUALITY), WHOLE(ANTIALIASED_QUALITY), WHOLE(CLEARTYPE_QUALITY),
};

constexpr NamedBits kPitchAndFamilyNames[] = {
    PART(PITCH_MASK, DEFAULT_PITCH),  PART(PITCH_MASK, FIXED_PITCH),
    PART(PITCH_MASK, VARIABLE_PITCH), PART(FF_MASK, FF_DONTCARE),
    PART(FF_MASK, FF_ROMAN),          PART(FF_MASK, FF_SWISS),
    PART(FF_MASK, FF_MODERN),         PART(FF_MASK, FF_SCRIPT),
    PART(FF_MASK, FF_DECORATIVE),
};

constexpr NamedBits kPublicCommentTypeNames[] = {
    WHOLE(EMR_COMMENT_BEGINGROUP),     WHOLE(EMR_COMMENT_ENDGROUP),
    WHOLE(EMR_COMMENT_UNICODE_STRING), WHOLE(EMR_COMMENT_UNICODE_END),
    WHOLE(EMR_COMMENT_MULTIFORMATS),   WHOLE(EMR_COMMENT_WINDOWS_METAFILE),
};

#undef FLAG
#undef PART
#undef WHOLE

}  // namespace

ValueNames NamesOf(MapMode) {
  return kMapModeNames;
}
ValueNames NamesOf(GraphicsMode) {
  return kGraphicsModeNames;
}
ValueNames NamesOf(WorldTransformMode) {
  return kWorldTransformModeNames;
}
ValueNames NamesOf(Layout) {
  return kLayoutNames;
}
ValueNames NamesOf(BackgroundMode) {
  return kBackgroundModeNames;
}
ValueNames NamesOf(PolyFillMode) {
  return kPolyFillModeNames;
}
ValueNames NamesOf(BinaryRasterOperation) {
  return kBinaryRasterOperationNames;
}
ValueNames NamesOf(TernaryRasterOperation) {
  return kTernaryRasterOperationNames;
}
ValueNames NamesOf(StretchMode) {
  return kStretchModeNames;
}
ValueNames NamesOf(ArcDirection) {
  return kArcDirectionNames;
}
ValueNames NamesOf(IcmMode) {
  return kIcmModeNames;
}
ValueNames NamesOf(ColorMatchAction) {
  return kColorMatchActionNames;
}
ValueNames NamesOf(TextAlign) {
  return kTextAlignNames;
}
ValueNames NamesOf(ExtTextOutOptions) {
  return kExtTextOutOptionsNames;
}
ValueNames NamesOf(PenStyle) {
  return kPenStyleNames;
}
ValueNames NamesOf(BrushStyle) {
  return kBrushStyleNames;
}
ValueNames NamesOf(HatchStyle) {
  return kHatchStyleNames;
}
ValueNames NamesOf(StockObject) {
  return kStockObjectNames;
}
ValueNames NamesOf(RegionMode) {
  return kRegionModeNames;
}
ValueNames NamesOf(PointType) {
  return kPointTypeNames;
}
ValueNames NamesOf(GradientFillMode) {
  return kGradientFillModeNames;
}
ValueNames NamesOf(FloodFillMode) {
  return kFloodFillModeNames;
}
ValueNames NamesOf(DibUsage) {
  return kDibUsageNames;
}
ValueNames NamesOf(DibCompression) {
  return kDibCompressionNames;
}
ValueNames NamesOf(CharacterSet) {
  return kCharacterSetNames;
}
ValueNames NamesOf(OutPrecision) {
  return kOutPrecisionNames;
}
ValueNames NamesOf(ClipPrecision) {
  return kClipPrecisionNames;
}
ValueNames NamesOf(FontQuality) {
  return kFontQualityNames;
}
ValueNames NamesOf(PitchAndFamily) {
  return kPitchAndFamilyNames;
}
ValueNames NamesOf(PublicCommentType) {
  return kPublicCommentTypeNames;
}

}  // namespace kelvane
