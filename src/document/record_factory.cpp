#include "document/record_factory.h"

#include <new>

#include "bitmap/bitmap_records.h"
#include "document/record_type.h"
#include "document/skipped_records.h"
#include "objects/brush_records.h"
#include "objects/font_records.h"
#include "objects/object_records.h"
#include "objects/pen_records.h"
#include "records/arc_records.h"
#include "records/attribute_records.h"
#include "records/clip_records.h"
#include "records/line_records.h"
#include "records/mapping_records.h"
#include "records/path_records.h"
#include "records/poly_draw_record.h"
#include "records/poly_poly_record.h"
#include "records/poly_record.h"
#include "records/shape_records.h"
#include "records/state_records.h"
#include "records/transform_records.h"
#include "records/unused_attribute_records.h"
#include "text/text_records.h"

namespace kelvane {
namespace {

template <class R, class... Arguments>
OwnedRecord Make(RecordArena& arena, Arguments... arguments) {
  return OwnedRecord(::new (arena.allocate(sizeof(R), alignof(R))) R(arguments...));
}

}  // namespace

OwnedRecord MakeRecord(std::uint32_t type, RecordArena& arena) {
  using enum RecordType;
  using enum draw_modes::FigureMode;
  using enum draw_modes::DrawFromPointMode;
  switch (static_cast<RecordType>(type)) {
    case EMR_POLYBEZIER:
      return Make<PolybezierRecord<PointL>>(arena, kBezier, kMoveToFirst);
    case EMR_POLYGON:
      return Make<PolygonRecord<PointL>>(arena, kPolygon, kMoveToFirst);
    case EMR_POLYLINE:
      return Make<PolylineRecord<PointL>>(arena, kPolyline, kMoveToFirst);
    case EMR_POLYBEZIERTO:
      return Make<PolybezierToRecord<PointL>>(arena, kBezier, kContinue);
    case EMR_POLYLINETO:
      return Make<PolylineToRecord<PointL>>(arena, kPolyline, kContinue);
    case EMR_POLYPOLYLINE:
      return Make<PolyPolylineRecord<PointL>>(arena, kPolyline);
    case EMR_POLYPOLYGON:
      return Make<PolyPolygonRecord<PointL>>(arena, kPolygon);
    case EMR_SETWINDOWEXTEX:
      return Make<SetWindowExtExRecord>(arena);
    case EMR_SETWINDOWORGEX:
      return Make<SetWindowOrgExRecord>(arena);
    case EMR_SETVIEWPORTEXTEX:
      return Make<SetViewPortExtExRecord>(arena);
    case EMR_SETVIEWPORTORGEX:
      return Make<SetViewPortOrgExRecord>(arena);
    case EMR_SETBRUSHORGEX:
      return Make<SetBrushOrgExRecord>(arena);
    case EMR_SETPIXELV:
      return Make<SetPixelVRecord>(arena);
    case EMR_SETMAPMODE:
      return Make<SetMapModeRecord>(arena);
    case EMR_SETBKMODE:
      return Make<SetBkModeRecord>(arena);
    case EMR_SETPOLYFILLMODE:
      return Make<SetPolyFillModeRecord>(arena);
    case EMR_SETROP2:
      return Make<SetRop2Record>(arena);
    case EMR_SETSTRETCHBLTMODE:
      return Make<SetStretchBltModeRecord>(arena);
    case EMR_SETTEXTALIGN:
      return Make<SetTextAlignRecord>(arena);
    case EMR_SETTEXTCOLOR:
      return Make<SetTextColorRecord>(arena);
    case EMR_SETBKCOLOR:
      return Make<SetBkColorRecord>(arena);
    case EMR_MOVETOEX:
      return Make<MoveToExRecord>(arena);
    case EMR_SETMETARGN:
      return Make<RecognizedButIgnoredRecord>(arena, "EMR_SETMETARGN");
    case EMR_INTERSECTCLIPRECT:
      return Make<IntersectClipRectRecord>(arena);
    case EMR_SCALEVIEWPORTEXTEX:
      return Make<ScaleExtExRecord>(arena, false);
    case EMR_SCALEWINDOWEXTEX:
      return Make<ScaleExtExRecord>(arena, true);
    case EMR_SAVEDC:
      return Make<SaveDCRecord>(arena);
    case EMR_RESTOREDC:
      return Make<RestoreDCRecord>(arena);
    case EMR_SETWORLDTRANSFORM:
      return Make<SetWorldTransformRecord>(arena);
    case EMR_MODIFYWORLDTRANSFORM:
      return Make<ModifyWorldTransformRecord>(arena);
    case EMR_SELECTOBJECT:
      return Make<SelectObjectRecord>(arena);
    case EMR_CREATEPEN:
      return Make<CreatePenRecord>(arena);
    case EMR_CREATEBRUSHINDIRECT:
      return Make<CreateBrushIndirectRecord>(arena);
    case EMR_DELETEOBJECT:
      return Make<DeleteObjectRecord>(arena);
    case EMR_ANGLEARC:
      return Make<AngleArcRecord>(arena);
    case EMR_ELLIPSE:
      return Make<EllipseRecord>(arena);
    case EMR_RECTANGLE:
      return Make<RectangleRecord>(arena);
    case EMR_ROUNDRECT:
      return Make<RoundRectangleRecord>(arena);
    case EMR_ARC:
      return Make<ArcRecord>(arena);
    case EMR_CHORD:
      return Make<ChordRecord>(arena);
    case EMR_PIE:
      return Make<PieRecord>(arena);
    case EMR_SELECTPALETTE:
      return Make<SelectPaletteRecord>(arena);
    case EMR_LINETO:
      return Make<LineToRecord>(arena);
    case EMR_ARCTO:
      return Make<ArcToRecord>(arena);
    case EMR_POLYDRAW:
      return Make<PolyDrawRecord<PointL>>(arena);
    case EMR_SETARCDIRECTION:
      return Make<SetArcDirectionRecord>(arena);
    case EMR_SETMITERLIMIT:
      return Make<SetMiterLimitRecord>(arena);
    case EMR_BEGINPATH:
      return Make<BeginPathRecord>(arena);
    case EMR_ENDPATH:
      return Make<EndPathRecord>(arena);
    case EMR_CLOSEFIGURE:
      return Make<CloseFigureRecord>(arena);
    case EMR_FILLPATH:
      return Make<FillPathRecord>(arena, false, true);
    case EMR_STROKEANDFILLPATH:
      return Make<FillPathRecord>(arena, true, true);
    case EMR_STROKEPATH:
      return Make<FillPathRecord>(arena, true, false);
    case EMR_SELECTCLIPPATH:
      return Make<SelectClipPathRecord>(arena);
    case EMR_GDICOMMENT:
      return Make<GDICommentRecord>(arena);
    case EMR_EXTCREATEFONTINDIRECTW:
      return Make<ExtCreateFontIndirectWRecord>(arena);
    case EMR_BITBLT:
      return Make<BitBltRecord>(arena);
    case EMR_STRETCHDIBITS:
      return Make<StretchDibitsRecord>(arena);
    case EMR_EXTTEXTOUTA:
      return Make<ExtTextOutRecord<char>>(arena);
    case EMR_EXTTEXTOUTW:
      return Make<ExtTextOutRecord<std::uint16_t>>(arena);
    case EMR_POLYBEZIER16:
      return Make<PolybezierRecord<Point16>>(arena, kBezier, kMoveToFirst);
    case EMR_POLYGON16:
      return Make<PolygonRecord<Point16>>(arena, kPolygon, kMoveToFirst);
    case EMR_POLYLINE16:
      return Make<PolylineRecord<Point16>>(arena, kPolyline, kMoveToFirst);
    case EMR_POLYBEZIERTO16:
      return Make<PolybezierToRecord<Point16>>(arena, kBezier, kContinue);
    case EMR_POLYLINETO16:
      return Make<PolylineToRecord<Point16>>(arena, kPolyline, kContinue);
    case EMR_POLYPOLYLINE16:
      return Make<PolyPolylineRecord<Point16>>(arena, kPolyline);
    case EMR_POLYPOLYGON16:
      return Make<PolyPolygonRecord<Point16>>(arena, kPolygon);
    case EMR_POLYDRAW16:
      return Make<PolyDrawRecord<Point16>>(arena);
    case EMR_CREATEMONOBRUSH:
    case EMR_CREATEDIBPATTERNBRUSHPT:
      return Make<CreateDIBBrushRecord>(arena);
    case EMR_EXTCREATEPEN:
      return Make<ExtCreatePenRecord>(arena);
    case EMR_SETICMMODE:
      return Make<SetICMModeRecord>(arena);
    case EMR_SETLAYOUT:
      return Make<SetLayoutRecord>(arena);
    case EMR_HEADER:  // a header met again is skipped
    case EMR_EOF:     // ends the parse before it gets here
      break;
  }
  return Make<UnrecognizedRecord>(arena, type);
}

}  // namespace kelvane
