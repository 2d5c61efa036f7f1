#include "classic/document/record_factory.h"

#include "classic/bitmap/bitmap_records.h"
#include "classic/document/record_type.h"
#include "classic/document/skipped_records.h"
#include "classic/objects/creation_records.h"
#include "classic/objects/object_records.h"
#include "classic/records/mapping_records.h"
#include "classic/records/path_records.h"
#include "classic/records/poly_records.h"
#include "classic/records/shape_records.h"
#include "classic/records/state_records.h"
#include "classic/records/unused_attribute_records.h"
#include "classic/text/text_records.h"

namespace kelvane {
OwnedRecord MakeRecord(std::uint32_t type, RecordArena& arena) {
  using enum RecordType;
  using enum draw_modes::FigureMode;
  using enum draw_modes::DrawFromPointMode;
  switch (static_cast<RecordType>(type)) {
    case EMR_POLYBEZIER:
      return arena.Make<PolybezierRecord<PointL>>(kBezier, kMoveToFirst);
    case EMR_POLYGON:
      return arena.Make<PolygonRecord<PointL>>(kPolygon, kMoveToFirst);
    case EMR_POLYLINE:
      return arena.Make<PolylineRecord<PointL>>(kPolyline, kMoveToFirst);
    case EMR_POLYBEZIERTO:
      return arena.Make<PolybezierToRecord<PointL>>(kBezier, kContinue);
    case EMR_POLYLINETO:
      return arena.Make<PolylineToRecord<PointL>>(kPolyline, kContinue);
    case EMR_POLYPOLYLINE:
      return arena.Make<PolyPolylineRecord<PointL>>(kPolyline);
    case EMR_POLYPOLYGON:
      return arena.Make<PolyPolygonRecord<PointL>>(kPolygon);
    case EMR_SETWINDOWEXTEX:
      return arena.Make<SetWindowExtExRecord>();
    case EMR_SETWINDOWORGEX:
      return arena.Make<SetWindowOrgExRecord>();
    case EMR_SETVIEWPORTEXTEX:
      return arena.Make<SetViewPortExtExRecord>();
    case EMR_SETVIEWPORTORGEX:
      return arena.Make<SetViewPortOrgExRecord>();
    case EMR_SETBRUSHORGEX:
      return arena.Make<SetBrushOrgExRecord>();
    case EMR_SETPIXELV:
      return arena.Make<SetPixelVRecord>();
    case EMR_SETMAPMODE:
      return arena.Make<SetMapModeRecord>();
    case EMR_SETBKMODE:
      return arena.Make<SetBkModeRecord>();
    case EMR_SETPOLYFILLMODE:
      return arena.Make<SetPolyFillModeRecord>();
    case EMR_SETROP2:
      return arena.Make<SetRop2Record>();
    case EMR_SETSTRETCHBLTMODE:
      return arena.Make<SetStretchBltModeRecord>();
    case EMR_SETTEXTALIGN:
      return arena.Make<SetTextAlignRecord>();
    case EMR_SETTEXTCOLOR:
      return arena.Make<SetTextColorRecord>();
    case EMR_SETBKCOLOR:
      return arena.Make<SetBkColorRecord>();
    case EMR_MOVETOEX:
      return arena.Make<MoveToExRecord>();
    case EMR_SETMETARGN:
      return arena.Make<RecognizedButIgnoredRecord>("EMR_SETMETARGN");
    case EMR_INTERSECTCLIPRECT:
      return arena.Make<IntersectClipRectRecord>();
    case EMR_SCALEVIEWPORTEXTEX:
      return arena.Make<ScaleExtExRecord>(false);
    case EMR_SCALEWINDOWEXTEX:
      return arena.Make<ScaleExtExRecord>(true);
    case EMR_SAVEDC:
      return arena.Make<SaveDCRecord>();
    case EMR_RESTOREDC:
      return arena.Make<RestoreDCRecord>();
    case EMR_SETWORLDTRANSFORM:
      return arena.Make<SetWorldTransformRecord>();
    case EMR_MODIFYWORLDTRANSFORM:
      return arena.Make<ModifyWorldTransformRecord>();
    case EMR_SELECTOBJECT:
      return arena.Make<SelectObjectRecord>();
    case EMR_CREATEPEN:
      return arena.Make<CreatePenRecord>();
    case EMR_CREATEBRUSHINDIRECT:
      return arena.Make<CreateBrushIndirectRecord>();
    case EMR_DELETEOBJECT:
      return arena.Make<DeleteObjectRecord>();
    case EMR_ANGLEARC:
      return arena.Make<AngleArcRecord>();
    case EMR_ELLIPSE:
      return arena.Make<EllipseRecord>();
    case EMR_RECTANGLE:
      return arena.Make<RectangleRecord>();
    case EMR_ROUNDRECT:
      return arena.Make<RoundRectangleRecord>();
    case EMR_ARC:
      return arena.Make<ArcRecord>();
    case EMR_CHORD:
      return arena.Make<ChordRecord>();
    case EMR_PIE:
      return arena.Make<PieRecord>();
    case EMR_SELECTPALETTE:
      return arena.Make<SelectPaletteRecord>();
    case EMR_LINETO:
      return arena.Make<LineToRecord>();
    case EMR_ARCTO:
      return arena.Make<ArcToRecord>();
    case EMR_POLYDRAW:
      return arena.Make<PolyDrawRecord<PointL>>();
    case EMR_SETARCDIRECTION:
      return arena.Make<SetArcDirectionRecord>();
    case EMR_SETMITERLIMIT:
      return arena.Make<SetMiterLimitRecord>();
    case EMR_BEGINPATH:
      return arena.Make<BeginPathRecord>();
    case EMR_ENDPATH:
      return arena.Make<EndPathRecord>();
    case EMR_CLOSEFIGURE:
      return arena.Make<CloseFigureRecord>();
    case EMR_FILLPATH:
      return arena.Make<FillPathRecord>(false, true);
    case EMR_STROKEANDFILLPATH:
      return arena.Make<FillPathRecord>(true, true);
    case EMR_STROKEPATH:
      return arena.Make<FillPathRecord>(true, false);
    case EMR_SELECTCLIPPATH:
      return arena.Make<SelectClipPathRecord>();
    case EMR_GDICOMMENT:
      return arena.Make<GDICommentRecord>();
    case EMR_EXTCREATEFONTINDIRECTW:
      return arena.Make<ExtCreateFontIndirectWRecord>();
    case EMR_BITBLT:
      return arena.Make<BitBltRecord>();
    case EMR_STRETCHDIBITS:
      return arena.Make<StretchDibitsRecord>();
    case EMR_EXTTEXTOUTA:
      return arena.Make<ExtTextOutRecord<char>>();
    case EMR_EXTTEXTOUTW:
      return arena.Make<ExtTextOutRecord<std::uint16_t>>();
    case EMR_POLYBEZIER16:
      return arena.Make<PolybezierRecord<Point16>>(kBezier, kMoveToFirst);
    case EMR_POLYGON16:
      return arena.Make<PolygonRecord<Point16>>(kPolygon, kMoveToFirst);
    case EMR_POLYLINE16:
      return arena.Make<PolylineRecord<Point16>>(kPolyline, kMoveToFirst);
    case EMR_POLYBEZIERTO16:
      return arena.Make<PolybezierToRecord<Point16>>(kBezier, kContinue);
    case EMR_POLYLINETO16:
      return arena.Make<PolylineToRecord<Point16>>(kPolyline, kContinue);
    case EMR_POLYPOLYLINE16:
      return arena.Make<PolyPolylineRecord<Point16>>(kPolyline);
    case EMR_POLYPOLYGON16:
      return arena.Make<PolyPolygonRecord<Point16>>(kPolygon);
    case EMR_POLYDRAW16:
      return arena.Make<PolyDrawRecord<Point16>>();
    case EMR_CREATEMONOBRUSH:
    case EMR_CREATEDIBPATTERNBRUSHPT:
      return arena.Make<CreateDIBBrushRecord>();
    case EMR_EXTCREATEPEN:
      return arena.Make<ExtCreatePenRecord>();
    case EMR_SETICMMODE:
      return arena.Make<SetICMModeRecord>();
    case EMR_SETLAYOUT:
      return arena.Make<SetLayoutRecord>();
    case EMR_HEADER:  // a header met again is skipped
    case EMR_EOF:     // ends the parse before it gets here
      break;
  }
  return arena.Make<UnrecognizedRecord>(type);
}

}  // namespace kelvane
