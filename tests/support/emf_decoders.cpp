#include "support/emf_decoders.h"

#include <algorithm>
#include <array>
#include <bit>

#include "metafile/emf/emf_bitmap_records.h"
#include "metafile/emf/emf_clip_records.h"
#include "metafile/emf/emf_color_records.h"
#include "metafile/emf/emf_comment_records.h"
#include "metafile/emf/emf_control_records.h"
#include "metafile/emf/emf_font_records.h"
#include "metafile/emf/emf_gradient_records.h"
#include "metafile/emf/emf_header.h"
#include "metafile/emf/emf_line_records.h"
#include "metafile/emf/emf_mapping_records.h"
#include "metafile/emf/emf_object_records.h"
#include "metafile/emf/emf_palette_records.h"
#include "metafile/emf/emf_path_records.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/emf/emf_region_records.h"
#include "metafile/emf/emf_shape_records.h"
#include "metafile/emf/emf_state_records.h"
#include "metafile/emf/emf_text_records.h"

namespace kelvane::test {
namespace {

// What records show of their bytes, read to the last of them.

template <class T>
std::size_t Sum(const ArrayView<T>& view) {
  std::size_t sum = 0;
  for (const T element : view) {
    for (const unsigned char byte : std::bit_cast<std::array<unsigned char, sizeof(T)>>(element))
      sum += byte;
  }
  return sum;
}

std::size_t Sum(const ByteView& view) {
  std::size_t sum = 0;
  for (const unsigned char byte : view.Bytes())
    sum += byte;
  return sum;
}

std::size_t Sum(const StoredDib& dib) {
  return Sum(dib.header) + Sum(dib.pixels);
}

std::size_t Sum(const RegionData& region) {
  return Sum(region.rectangles);
}

template <class Unit>
std::size_t Sum(const TextItem<Unit>& text) {
  return Sum(text.text) + Sum(text.advances.values);
}

template <class... Views>
std::size_t SumOfAll(const Views&... views) {
  return (Sum(views) + ...);
}

// Decoders of one signature.

using Decoder = std::size_t (*)(ByteView& bytes);

/// For records that hold plain values only.
template <auto decode>
std::size_t Plain(ByteView& bytes) {
  decode(bytes);
  return 0;
}

/// For records with one member that shows bytes.
template <auto decode, auto member>
std::size_t With(ByteView& bytes) {
  return Sum(decode(bytes).*member);
}

template <auto decode, auto first, auto second>
std::size_t WithBoth(ByteView& bytes) {
  const auto record = decode(bytes);
  return SumOfAll(record.*first, record.*second);
}

template <class Point>
std::size_t Poly(ByteView& bytes) {
  return Sum(DecodePoly<Point>(bytes).points);
}

template <class Point>
std::size_t PolyPoly(ByteView& bytes) {
  const auto record = DecodePolyPoly<Point>(bytes);
  return SumOfAll(record.counts, record.points);
}

template <class Point>
std::size_t PolyDraw(ByteView& bytes) {
  const auto record = DecodePolyDraw<Point>(bytes);
  return SumOfAll(record.points, record.types);
}

template <auto decode>
std::size_t Blit(ByteView& bytes) {
  return Sum(decode(bytes).source.dib);
}

template <auto decode>
std::size_t MaskedBlit(ByteView& bytes) {
  const auto record = decode(bytes);
  return SumOfAll(record.source.dib, record.mask.dib);
}

template <class Unit>
std::size_t Text(ByteView& bytes) {
  return Sum(DecodeExtTextOut<Unit>(bytes).text);
}

template <class Unit>
std::size_t PolyText(ByteView& bytes) {
  const auto record = DecodePolyTextOut<Unit>(bytes);
  std::size_t sum = 0;
  for (std::size_t i = 0; i < record.texts.size(); ++i)
    sum += Sum(record.Text(i));
  return sum;
}

std::size_t Font(ByteView& bytes) {
  const auto record = DecodeExtCreateFontIndirectW(bytes);
  return SumOfAll(record.fullName, record.style, record.script, record.designAxes);
}

std::size_t Gradient(ByteView& bytes) {
  const auto record = DecodeGradientFill(bytes);
  return SumOfAll(record.vertices, record.rectangles, record.triangles);
}

std::size_t MultiFormats(ByteView data) {
  const auto comment = DecodeMultiFormats(data);
  std::size_t sum = 0;
  for (const EmrFormat format : comment.formats) {
    ByteView bytes = comment.DataOf(format);
    sum += format.signature == kEpsSignature ? Sum(DecodeEpsData(bytes).text) : Sum(bytes);
  }
  return sum;
}

std::size_t PublicComment(ByteView data) {
  switch (DecodePublicCommentType(data)) {
    case EMR_COMMENT_BEGINGROUP:
      return Sum(DecodeBeginGroup(data).description);
    case EMR_COMMENT_MULTIFORMATS:
      return MultiFormats(data);
    case EMR_COMMENT_WINDOWS_METAFILE:
      return Sum(DecodeWindowsMetafile(data).metafile);
    default:
      return 0;
  }
}

std::size_t Comment(ByteView& bytes) {
  const CommentRecord record = DecodeComment(bytes);
  return record.kind == EmfCommentKind::kPublic ? PublicComment(record.data) : Sum(record.data);
}

struct Row {
  std::uint32_t type;
  Decoder decode;
};

constexpr Row kRows[] = {
    {EMR_HEADER, WithBoth<DecodeEmfHeader, &EmfHeader::creator, &EmfHeader::title>},
    {EMR_POLYBEZIER, Poly<PointL>},
    {EMR_POLYGON, Poly<PointL>},
    {EMR_POLYLINE, Poly<PointL>},
    {EMR_POLYBEZIERTO, Poly<PointL>},
    {EMR_POLYLINETO, Poly<PointL>},
    {EMR_POLYPOLYLINE, PolyPoly<PointL>},
    {EMR_POLYPOLYGON, PolyPoly<PointL>},
    {EMR_SETWINDOWEXTEX, Plain<DecodeExtent>},
    {EMR_SETWINDOWORGEX, Plain<DecodeOrigin>},
    {EMR_SETVIEWPORTEXTEX, Plain<DecodeExtent>},
    {EMR_SETVIEWPORTORGEX, Plain<DecodeOrigin>},
    {EMR_SETBRUSHORGEX, Plain<DecodeOrigin>},
    {EMR_EOF, With<DecodeEof, &EofRecord::palette>},
    {EMR_SETPIXELV, Plain<DecodeSetPixelV>},
    {EMR_SETMAPPERFLAGS, Plain<DecodeSetMapperFlags>},
    {EMR_SETMAPMODE, Plain<DecodeSetMapMode>},
    {EMR_SETBKMODE, Plain<DecodeSetBkMode>},
    {EMR_SETPOLYFILLMODE, Plain<DecodeSetPolyFillMode>},
    {EMR_SETROP2, Plain<DecodeSetRop2>},
    {EMR_SETSTRETCHBLTMODE, Plain<DecodeSetStretchBltMode>},
    {EMR_SETTEXTALIGN, Plain<DecodeSetTextAlign>},
    {EMR_SETCOLORADJUSTMENT, Plain<DecodeSetColorAdjustment>},
    {EMR_SETTEXTCOLOR, Plain<DecodeSetColor>},
    {EMR_SETBKCOLOR, Plain<DecodeSetColor>},
    {EMR_OFFSETCLIPRGN, Plain<DecodeOffsetClipRgn>},
    {EMR_MOVETOEX, Plain<DecodeMoveToEx>},
    {EMR_EXCLUDECLIPRECT, Plain<DecodeClipRect>},
    {EMR_INTERSECTCLIPRECT, Plain<DecodeClipRect>},
    {EMR_SCALEVIEWPORTEXTEX, Plain<DecodeScaleExtent>},
    {EMR_SCALEWINDOWEXTEX, Plain<DecodeScaleExtent>},
    {EMR_RESTOREDC, Plain<DecodeRestoreDC>},
    {EMR_SETWORLDTRANSFORM, Plain<DecodeSetWorldTransform>},
    {EMR_MODIFYWORLDTRANSFORM, Plain<DecodeModifyWorldTransform>},
    {EMR_SELECTOBJECT, Plain<DecodeObject>},
    {EMR_CREATEPEN, Plain<DecodeCreatePen>},
    {EMR_CREATEBRUSHINDIRECT, Plain<DecodeCreateBrushIndirect>},
    {EMR_DELETEOBJECT, Plain<DecodeObject>},
    {EMR_ANGLEARC, Plain<DecodeAngleArc>},
    {EMR_ELLIPSE, Plain<DecodeBox>},
    {EMR_RECTANGLE, Plain<DecodeBox>},
    {EMR_ROUNDRECT, Plain<DecodeRoundRect>},
    {EMR_ARC, Plain<DecodeArc>},
    {EMR_CHORD, Plain<DecodeArc>},
    {EMR_PIE, Plain<DecodeArc>},
    {EMR_SELECTPALETTE, Plain<DecodeSelectPalette>},
    {EMR_CREATEPALETTE, With<DecodeCreatePalette, &CreatePaletteRecord::entries>},
    {EMR_SETPALETTEENTRIES, With<DecodeSetPaletteEntries, &SetPaletteEntriesRecord::entries>},
    {EMR_RESIZEPALETTE, Plain<DecodeResizePalette>},
    {EMR_EXTFLOODFILL, Plain<DecodeExtFloodFill>},
    {EMR_LINETO, Plain<DecodeLineTo>},
    {EMR_ARCTO, Plain<DecodeArc>},
    {EMR_POLYDRAW, PolyDraw<PointL>},
    {EMR_SETARCDIRECTION, Plain<DecodeSetArcDirection>},
    {EMR_SETMITERLIMIT, Plain<DecodeSetMiterLimit>},
    {EMR_FILLPATH, Plain<DecodePaintPath>},
    {EMR_STROKEANDFILLPATH, Plain<DecodePaintPath>},
    {EMR_STROKEPATH, Plain<DecodePaintPath>},
    {EMR_SELECTCLIPPATH, Plain<DecodeSelectClipPath>},
    {EMR_COMMENT, Comment},
    {EMR_FILLRGN, With<DecodeFillRgn, &FillRgnRecord::region>},
    {EMR_FRAMERGN, With<DecodeFrameRgn, &FrameRgnRecord::region>},
    {EMR_INVERTRGN, With<DecodePaintRgn, &PaintRgnRecord::region>},
    {EMR_PAINTRGN, With<DecodePaintRgn, &PaintRgnRecord::region>},
    {EMR_EXTSELECTCLIPRGN, With<DecodeExtSelectClipRgn, &ExtSelectClipRgnRecord::region>},
    {EMR_BITBLT, Blit<DecodeBitBlt>},
    {EMR_STRETCHBLT, Blit<DecodeStretchBlt>},
    {EMR_MASKBLT, MaskedBlit<DecodeMaskBlt>},
    {EMR_PLGBLT, MaskedBlit<DecodePlgBlt>},
    {EMR_SETDIBITSTODEVICE, With<DecodeSetDIBitsToDevice, &SetDIBitsToDeviceRecord::dib>},
    {EMR_STRETCHDIBITS, With<DecodeStretchDIBits, &StretchDIBitsRecord::dib>},
    {EMR_EXTCREATEFONTINDIRECTW, Font},
    {EMR_EXTTEXTOUTA, Text<char>},
    {EMR_EXTTEXTOUTW, Text<char16_t>},
    {EMR_POLYBEZIER16, Poly<Point16>},
    {EMR_POLYGON16, Poly<Point16>},
    {EMR_POLYLINE16, Poly<Point16>},
    {EMR_POLYBEZIERTO16, Poly<Point16>},
    {EMR_POLYLINETO16, Poly<Point16>},
    {EMR_POLYPOLYLINE16, PolyPoly<Point16>},
    {EMR_POLYPOLYGON16, PolyPoly<Point16>},
    {EMR_POLYDRAW16, PolyDraw<Point16>},
    {EMR_CREATEMONOBRUSH, With<DecodeCreatePatternBrush, &CreatePatternBrushRecord::pattern>},
    {EMR_CREATEDIBPATTERNBRUSHPT,
     With<DecodeCreatePatternBrush, &CreatePatternBrushRecord::pattern>},
    {EMR_EXTCREATEPEN,
     WithBoth<DecodeExtCreatePen, &ExtCreatePenRecord::styleEntries, &ExtCreatePenRecord::pattern>},
    {EMR_POLYTEXTOUTA, PolyText<char>},
    {EMR_POLYTEXTOUTW, PolyText<char16_t>},
    {EMR_SETICMMODE, Plain<DecodeSetIcmMode>},
    {EMR_CREATECOLORSPACE, With<DecodeCreateColorSpace, &CreateColorSpaceRecord::fileName>},
    {EMR_SETCOLORSPACE, Plain<DecodeColorSpace>},
    {EMR_DELETECOLORSPACE, Plain<DecodeColorSpace>},
    {EMR_GLSRECORD, With<DecodeGls, &GlsRecord::data>},
    {EMR_GLSBOUNDEDRECORD, With<DecodeGlsBounded, &GlsBoundedRecord::data>},
    {EMR_PIXELFORMAT, Plain<DecodePixelFormat>},
    {EMR_DRAWESCAPE, With<DecodeEscape, &EscapeRecord::data>},
    {EMR_EXTESCAPE, With<DecodeEscape, &EscapeRecord::data>},
    {EMR_SMALLTEXTOUT,
     WithBoth<DecodeSmallTextOut, &SmallTextOutRecord::smallText, &SmallTextOutRecord::text>},
    {EMR_FORCEUFIMAPPING, Plain<DecodeForceUfiMapping>},
    {EMR_NAMEDESCAPE,
     WithBoth<DecodeNamedEscape, &NamedEscapeRecord::driver, &NamedEscapeRecord::data>},
    {EMR_COLORCORRECTPALETTE, Plain<DecodeColorCorrectPalette>},
    {EMR_SETICMPROFILEA,
     WithBoth<DecodeSetIcmProfile, &SetIcmProfileRecord::name, &SetIcmProfileRecord::data>},
    {EMR_SETICMPROFILEW,
     WithBoth<DecodeSetIcmProfile, &SetIcmProfileRecord::name, &SetIcmProfileRecord::data>},
    {EMR_ALPHABLEND, Blit<DecodeAlphaBlend>},
    {EMR_SETLAYOUT, Plain<DecodeSetLayout>},
    {EMR_TRANSPARENTBLT, Blit<DecodeTransparentBlt>},
    {EMR_GRADIENTFILL, Gradient},
    {EMR_SETLINKEDUFIS, With<DecodeSetLinkedUfis, &SetLinkedUfisRecord::ufis>},
    {EMR_SETTEXTJUSTIFICATION, Plain<DecodeSetTextJustification>},
    {EMR_COLORMATCHTOTARGETW, WithBoth<DecodeColorMatchToTargetW, &ColorMatchToTargetWRecord::name,
                                       &ColorMatchToTargetWRecord::data>},
    {EMR_CREATECOLORSPACEW, WithBoth<DecodeCreateColorSpaceW, &CreateColorSpaceWRecord::fileName,
                                     &CreateColorSpaceWRecord::data>},
};

const Row* Find(std::uint32_t type) {
  const auto* const row = std::ranges::find(kRows, type, &Row::type);
  return row == std::end(kRows) ? nullptr : row;
}

}  // namespace

std::size_t DecodeEmfRecord(std::uint32_t type, ByteView& bytes) {
  const Row* row = Find(type);
  return row == nullptr ? 0 : row->decode(bytes);
}

bool HasEmfDecoder(std::uint32_t type) {
  return Find(type) != nullptr;
}

}  // namespace kelvane::test
