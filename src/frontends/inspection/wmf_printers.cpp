#include "frontends/inspection/wmf_printers.h"

#include <array>

#include "frontends/inspection/shared_fields.h"
#include "metafile/wmf/wmf_bitmap_records.h"
#include "metafile/wmf/wmf_escape_records.h"
#include "metafile/wmf/wmf_object_records.h"
#include "metafile/wmf/wmf_record_type.h"
#include "metafile/wmf/wmf_region_records.h"
#include "metafile/wmf/wmf_shape_records.h"
#include "metafile/wmf/wmf_state_records.h"
#include "metafile/wmf/wmf_text_records.h"

namespace kelvane {
namespace {

/// Of a record of no interest to pictures.
void PrintData(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Data", bytes.Split(bytes.Remaining()));
}

void PrintColor(ByteView& bytes, FieldWriter& fields) {
  fields.Field("ColorRef", DecodeWmfColor(bytes).color);
}
void PrintLevel(ByteView& bytes, FieldWriter& fields) {
  fields.Field("nSavedDC", DecodeWmfRestoreDC(bytes).savedDC);
}
void PrintPoint(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Point", DecodeWmfPoint(bytes).point);
}
void PrintWmfExtent(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Extent", DecodeWmfExtent(bytes).extent);
}
void PrintScale(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfScaleExtent(bytes);
  fields.Field("xNum", record.xNum)
      .Field("xDenom", record.xDenom)
      .Field("yNum", record.yNum)
      .Field("yDenom", record.yDenom);
}
void PrintCharExtra(ByteView& bytes, FieldWriter& fields) {
  fields.Field("CharExtra", DecodeWmfSetTextCharExtra(bytes).extra);
}
void PrintJustification(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfSetTextJustification(bytes);
  fields.Field("BreakCount", record.breakCount).Field("BreakExtra", record.breakExtra);
}
void PrintMapperFlags(ByteView& bytes, FieldWriter& fields) {
  fields.Field("MapperValues", DecodeWmfSetMapperFlags(bytes).flags);
}

// Records of one value of an enumeration.
void PrintBkMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("BkMode", DecodeWmfMode<BackgroundMode>(bytes).mode);
}
void PrintWmfMapMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("MapMode", DecodeWmfMode<MapMode>(bytes).mode);
}
void PrintDrawMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("DrawMode", DecodeWmfMode<BinaryRasterOperation>(bytes).mode);
}
void PrintFillMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("PolyFillMode", DecodeWmfMode<PolyFillMode>(bytes).mode);
}
void PrintStretchMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("StretchMode", DecodeWmfMode<StretchMode>(bytes).mode);
}
void PrintAlignment(ByteView& bytes, FieldWriter& fields) {
  fields.Field("TextAlignmentMode", DecodeWmfMode<TextAlign>(bytes).mode);
}
void PrintLayout(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Layout", DecodeWmfMode<Layout>(bytes).mode);
}

void PrintWmfBox(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Box", DecodeWmfBox(bytes).box);
}
void PrintWmfRoundRect(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfRoundRect(bytes);
  fields.Field("Box", record.box).Field("Corner", record.corner);
}
void PrintWmfArc(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfArc(bytes);
  fields.Field("Box", record.box).Field("Start", record.start).Field("End", record.end);
}
void PrintWmfPoly(ByteView& bytes, FieldWriter& fields) {
  fields.Field("aPoints", DecodeWmfPoly(bytes).points);
}
void PrintWmfPolyPolygon(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfPolyPolygon(bytes);
  fields.Field("aPointsPerPolygon", record.counts).Field("aPoints", record.points);
}
void PrintSetPixel(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfSetPixel(bytes);
  fields.Field("Pixel", record.pixel).Field("ColorRef", record.color);
}
template <auto decode>
void PrintFlood(ByteView& bytes, FieldWriter& fields) {
  const auto record = decode(bytes);
  fields.Field("Start", record.start).Field("ColorRef", record.color).Field("Mode", record.mode);
}

void PrintIndex(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Index", DecodeWmfObject(bytes).index);
}
void PrintPen(ByteView& bytes, FieldWriter& fields) {
  const LogPen pen = DecodeWmfCreatePenIndirect(bytes).pen;
  fields.Field("PenStyle", pen.style).Field("Width", pen.width).Field("ColorRef", pen.color);
}
void PrintBrush(ByteView& bytes, FieldWriter& fields) {
  const LogBrush brush = DecodeWmfCreateBrushIndirect(bytes).brush;
  fields.Field("BrushStyle", brush.style)
      .Field("ColorRef", brush.color)
      .Field("BrushHatch", brush.hatch);
}
void PrintFont(ByteView& bytes, FieldWriter& fields) {
  AddLogFont(fields, DecodeWmfCreateFontIndirect(bytes).font);
}
void PrintPalette(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfPalette(bytes);
  fields.Field("Start", record.start).Field("aPaletteEntries", record.entries);
}
void PrintPaletteSize(ByteView& bytes, FieldWriter& fields) {
  fields.Field("NumberOfEntries", DecodeWmfResizePalette(bytes).entries);
}

void PrintRegion(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfCreateRegion(bytes);
  fields.Field("BoundingRectangle", record.bounds).Field("aScans", record.rectangles);
}
void PrintFillRegion(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfFillRegion(bytes);
  fields.Field("Region", record.region).Field("Brush", record.brush);
}
void PrintFrameRegion(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfFrameRegion(bytes);
  fields.Field("Region", record.region).Field("Brush", record.brush).Field("Frame", record.frame);
}

void PrintTextOut(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfTextOut(bytes);
  fields.Field("Reference", record.reference).Field("String", record.text);
}
void PrintWmfExtTextOut(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfExtTextOut(bytes);
  fields.Field("Reference", record.reference).Field("fwOpts", record.options);
  if ((record.options & (ETO_OPAQUE | ETO_CLIPPED)) != 0)
    fields.Field("Rectangle", record.rectangle);
  fields.Field("String", record.text);
  if (!record.advances.IsEmpty()) fields.Field("Dx", record.advances.values);
}

void AddBitmap(FieldWriter& fields, const Bitmap16& bitmap) {
  if (bitmap.IsEmpty()) return;
  fields.Field("Width", bitmap.width)
      .Field("Height", bitmap.height)
      .Field("WidthBytes", bitmap.widthBytes)
      .Field("BitsPixel", bitmap.bitsPixel)
      .Field("Bits", bitmap.bits);
}
void AddBitmap(FieldWriter& fields, const StoredDib& dib) {
  AddDib(fields, "", dib);
}
template <auto decode>
void PrintWmfBlit(ByteView& bytes, FieldWriter& fields) {
  const auto record = decode(bytes);
  fields.Field("Dest", record.destination)
      .Field("cDest", record.size)
      .Field("Src", record.source)
      .Field("cSrc", record.sourceSize)
      .Field("RasterOperation", record.rop)
      .Field("ColorUsage", record.usage);
  AddBitmap(fields, record.bitmap);
}
void PrintSetDibToDev(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfSetDibToDev(bytes);
  fields.Field("Dest", record.destination)
      .Field("cDest", record.size)
      .Field("Src", record.source)
      .Field("ColorUsage", record.usage)
      .Field("StartScan", record.startScan)
      .Field("ScanCount", record.scans);
  AddBitmap(fields, record.dib);
}
void PrintPatBlt(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfPatBlt(bytes);
  fields.Field("Dest", record.destination)
      .Field("cDest", record.size)
      .Field("RasterOperation", record.rop);
}
template <auto decode>
void PrintPatternBrush(ByteView& bytes, FieldWriter& fields) {
  const auto record = decode(bytes);
  fields.Field("Style", record.style).Field("ColorUsage", record.usage);
  AddBitmap(fields, record.dib);
  AddBitmap(fields, record.bitmap);
}

void PrintWmfEscape(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeWmfEscape(bytes);
  fields.Hexadecimal("EscapeFunction", record.escape);
  const auto piece = ReadWmfEmfPiece(record);
  if (!piece) {
    fields.Field("EscapeData", record.data);
    return;
  }
  fields.Field("CommentRecordCount", piece->pieces)
      .Field("RemainingBytes", piece->remaining)
      .Field("EnhancedMetafileDataSize", piece->size)
      .Field("EnhancedMetafileData", piece->data);
}

constexpr PrinterRow kWmfRows[] = {
    {META_EOF, PrintNoFields},
    {META_SAVEDC, PrintNoFields},
    {META_REALIZEPALETTE, PrintNoFields},
    {META_SETRELABS, PrintNoFields},
    {META_RESTOREDC, PrintLevel},
    {META_SETBKMODE, PrintBkMode},
    {META_SETMAPMODE, PrintWmfMapMode},
    {META_SETROP2, PrintDrawMode},
    {META_SETPOLYFILLMODE, PrintFillMode},
    {META_SETSTRETCHBLTMODE, PrintStretchMode},
    {META_SETTEXTALIGN, PrintAlignment},
    {META_SETLAYOUT, PrintLayout},
    {META_SETBKCOLOR, PrintColor},
    {META_SETTEXTCOLOR, PrintColor},
    {META_SETTEXTCHAREXTRA, PrintCharExtra},
    {META_SETTEXTJUSTIFICATION, PrintJustification},
    {META_SETMAPPERFLAGS, PrintMapperFlags},
    {META_SETWINDOWORG, PrintPoint},
    {META_SETVIEWPORTORG, PrintPoint},
    {META_OFFSETWINDOWORG, PrintPoint},
    {META_OFFSETVIEWPORTORG, PrintPoint},
    {META_OFFSETCLIPRGN, PrintPoint},
    {META_MOVETO, PrintPoint},
    {META_LINETO, PrintPoint},
    {META_SETWINDOWEXT, PrintWmfExtent},
    {META_SETVIEWPORTEXT, PrintWmfExtent},
    {META_SCALEWINDOWEXT, PrintScale},
    {META_SCALEVIEWPORTEXT, PrintScale},
    {META_EXCLUDECLIPRECT, PrintWmfBox},
    {META_INTERSECTCLIPRECT, PrintWmfBox},
    {META_RECTANGLE, PrintWmfBox},
    {META_ELLIPSE, PrintWmfBox},
    {META_ROUNDRECT, PrintWmfRoundRect},
    {META_ARC, PrintWmfArc},
    {META_PIE, PrintWmfArc},
    {META_CHORD, PrintWmfArc},
    {META_POLYGON, PrintWmfPoly},
    {META_POLYLINE, PrintWmfPoly},
    {META_POLYPOLYGON, PrintWmfPolyPolygon},
    {META_SETPIXEL, PrintSetPixel},
    {META_FLOODFILL, PrintFlood<DecodeWmfFloodFill>},
    {META_EXTFLOODFILL, PrintFlood<DecodeWmfExtFloodFill>},
    {META_SELECTOBJECT, PrintIndex},
    {META_SELECTCLIPREGION, PrintIndex},
    {META_SELECTPALETTE, PrintIndex},
    {META_DELETEOBJECT, PrintIndex},
    {META_INVERTREGION, PrintIndex},
    {META_PAINTREGION, PrintIndex},
    {META_CREATEPENINDIRECT, PrintPen},
    {META_CREATEBRUSHINDIRECT, PrintBrush},
    {META_CREATEFONTINDIRECT, PrintFont},
    {META_CREATEPALETTE, PrintPalette},
    {META_SETPALENTRIES, PrintPalette},
    {META_ANIMATEPALETTE, PrintPalette},
    {META_RESIZEPALETTE, PrintPaletteSize},
    {META_CREATEREGION, PrintRegion},
    {META_FILLREGION, PrintFillRegion},
    {META_FRAMEREGION, PrintFrameRegion},
    {META_TEXTOUT, PrintTextOut},
    {META_EXTTEXTOUT, PrintWmfExtTextOut},
    {META_BITBLT, PrintWmfBlit<DecodeWmfBitBlt>},
    {META_STRETCHBLT, PrintWmfBlit<DecodeWmfStretchBlt>},
    {META_DIBBITBLT, PrintWmfBlit<DecodeWmfDibBitBlt>},
    {META_DIBSTRETCHBLT, PrintWmfBlit<DecodeWmfDibStretchBlt>},
    {META_STRETCHDIB, PrintWmfBlit<DecodeWmfStretchDib>},
    {META_SETDIBTODEV, PrintSetDibToDev},
    {META_PATBLT, PrintPatBlt},
    {META_DIBCREATEPATTERNBRUSH, PrintPatternBrush<DecodeWmfDibCreatePatternBrush>},
    {META_CREATEPATTERNBRUSH, PrintPatternBrush<DecodeWmfCreatePatternBrush>},
    {META_ESCAPE, PrintWmfEscape},
    {META_CREATEBRUSH, PrintData},
    {META_CREATEBITMAPINDIRECT, PrintData},
    {META_CREATEBITMAP, PrintData},
    {META_DRAWTEXT, PrintData},
    {META_RESETDC, PrintData},
    {META_STARTDOC, PrintData},
    {META_STARTPAGE, PrintData},
    {META_ENDPAGE, PrintData},
    {META_ABORTDOC, PrintData},
    {META_ENDDOC, PrintData},
};

using WmfPrinterTable = std::array<FieldPrinter, kWmfRecordIndexes>;

constexpr auto kWmfPrinters = [] {
  WmfPrinterTable table{};
  for (const PrinterRow& row : kWmfRows)
    table[WmfRecordIndex(static_cast<std::uint16_t>(row.type))] = row.print;
  return table;
}();

}  // namespace

FieldPrinter FindWmfPrinter(std::uint16_t type) {
  return WmfRecordName(type).empty() ? nullptr : kWmfPrinters[WmfRecordIndex(type)];
}

}  // namespace kelvane
