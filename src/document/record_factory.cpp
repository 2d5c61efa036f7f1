#include "document/record_factory.h"

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

using draw_modes::DrawFromPointMode;
using draw_modes::FigureMode;

template <class R>
std::unique_ptr<Record> MakePoly(FigureMode figureMode, DrawFromPointMode drawFromPoint) {
  return std::make_unique<R>(figureMode, drawFromPoint);
}

}  // namespace

std::unique_ptr<Record> MakeRecord(std::uint32_t type) {
  using enum RecordType;
  using enum FigureMode;
  using enum DrawFromPointMode;
  switch (static_cast<RecordType>(type)) {
    case EMR_POLYBEZIER:
      return MakePoly<PolybezierRecord<PointL>>(kBezier, kMoveToFirst);
    case EMR_POLYGON:
      return MakePoly<PolygonRecord<PointL>>(kPolygon, kMoveToFirst);
    case EMR_POLYLINE:
      return MakePoly<PolylineRecord<PointL>>(kPolyline, kMoveToFirst);
    case EMR_POLYBEZIERTO:
      return MakePoly<PolybezierToRecord<PointL>>(kBezier, kContinue);
    case EMR_POLYLINETO:
      return MakePoly<PolylineToRecord<PointL>>(kPolyline, kContinue);
    case EMR_POLYPOLYLINE:
      return std::make_unique<PolyPolylineRecord<PointL>>(kPolyline);
    case EMR_POLYPOLYGON:
      return std::make_unique<PolyPolygonRecord<PointL>>(kPolygon);
    case EMR_SETWINDOWEXTEX:
      return std::make_unique<SetWindowExtExRecord>();
    case EMR_SETWINDOWORGEX:
      return std::make_unique<SetWindowOrgExRecord>();
    case EMR_SETVIEWPORTEXTEX:
      return std::make_unique<SetViewPortExtExRecord>();
    case EMR_SETVIEWPORTORGEX:
      return std::make_unique<SetViewPortOrgExRecord>();
    case EMR_SETBRUSHORGEX:
      return std::make_unique<SetBrushOrgExRecord>();
    case EMR_SETPIXELV:
      return std::make_unique<SetPixelVRecord>();
    case EMR_SETMAPMODE:
      return std::make_unique<SetMapModeRecord>();
    case EMR_SETBKMODE:
      return std::make_unique<SetBkModeRecord>();
    case EMR_SETPOLYFILLMODE:
      return std::make_unique<SetPolyFillModeRecord>();
    case EMR_SETROP2:
      return std::make_unique<SetRop2Record>();
    case EMR_SETSTRETCHBLTMODE:
      return std::make_unique<SetStretchBltModeRecord>();
    case EMR_SETTEXTALIGN:
      return std::make_unique<SetTextAlignRecord>();
    case EMR_SETTEXTCOLOR:
      return std::make_unique<SetTextColorRecord>();
    case EMR_SETBKCOLOR:
      return std::make_unique<SetBkColorRecord>();
    case EMR_MOVETOEX:
      return std::make_unique<MoveToExRecord>();
    case EMR_SETMETARGN:
      return std::make_unique<RecognizedButIgnoredRecord>("EMR_SETMETARGN");
    case EMR_INTERSECTCLIPRECT:
      return std::make_unique<IntersectClipRectRecord>();
    case EMR_SCALEVIEWPORTEXTEX:
      return std::make_unique<ScaleExtExRecord>(false);
    case EMR_SCALEWINDOWEXTEX:
      return std::make_unique<ScaleExtExRecord>(true);
    case EMR_SAVEDC:
      return std::make_unique<SaveDCRecord>();
    case EMR_RESTOREDC:
      return std::make_unique<RestoreDCRecord>();
    case EMR_SETWORLDTRANSFORM:
      return std::make_unique<SetWorldTransformRecord>();
    case EMR_MODIFYWORLDTRANSFORM:
      return std::make_unique<ModifyWorldTransformRecord>();
    case EMR_SELECTOBJECT:
      return std::make_unique<SelectObjectRecord>();
    case EMR_CREATEPEN:
      return std::make_unique<CreatePenRecord>();
    case EMR_CREATEBRUSHINDIRECT:
      return std::make_unique<CreateBrushIndirectRecord>();
    case EMR_DELETEOBJECT:
      return std::make_unique<DeleteObjectRecord>();
    case EMR_ANGLEARC:
      return std::make_unique<AngleArcRecord>();
    case EMR_ELLIPSE:
      return std::make_unique<EllipseRecord>();
    case EMR_RECTANGLE:
      return std::make_unique<RectangleRecord>();
    case EMR_ROUNDRECT:
      return std::make_unique<RoundRectangleRecord>();
    case EMR_ARC:
      return std::make_unique<ArcRecord>();
    case EMR_CHORD:
      return std::make_unique<ChordRecord>();
    case EMR_PIE:
      return std::make_unique<PieRecord>();
    case EMR_SELECTPALETTE:
      return std::make_unique<SelectPaletteRecord>();
    case EMR_LINETO:
      return std::make_unique<LineToRecord>();
    case EMR_ARCTO:
      return std::make_unique<ArcToRecord>();
    case EMR_POLYDRAW:
      return std::make_unique<PolyDrawRecord<PointL>>();
    case EMR_SETARCDIRECTION:
      return std::make_unique<SetArcDirectionRecord>();
    case EMR_SETMITERLIMIT:
      return std::make_unique<SetMiterLimitRecord>();
    case EMR_BEGINPATH:
      return std::make_unique<BeginPathRecord>();
    case EMR_ENDPATH:
      return std::make_unique<EndPathRecord>();
    case EMR_CLOSEFIGURE:
      return std::make_unique<CloseFigureRecord>();
    case EMR_FILLPATH:
      return std::make_unique<FillPathRecord>(false, true);
    case EMR_STROKEANDFILLPATH:
      return std::make_unique<FillPathRecord>(true, true);
    case EMR_STROKEPATH:
      return std::make_unique<FillPathRecord>(true, false);
    case EMR_SELECTCLIPPATH:
      return std::make_unique<SelectClipPathRecord>();
    case EMR_GDICOMMENT:
      return std::make_unique<GDICommentRecord>();
    case EMR_EXTCREATEFONTINDIRECTW:
      return std::make_unique<ExtCreateFontIndirectWRecord>();
    case EMR_BITBLT:
      return std::make_unique<BitBltRecord>();
    case EMR_STRETCHDIBITS:
      return std::make_unique<StretchDibitsRecord>();
    case EMR_EXTTEXTOUTA:
      return std::make_unique<ExtTextOutRecord<char>>();
    case EMR_EXTTEXTOUTW:
      return std::make_unique<ExtTextOutRecord<std::uint16_t>>();
    case EMR_POLYBEZIER16:
      return MakePoly<PolybezierRecord<Point16>>(kBezier, kMoveToFirst);
    case EMR_POLYGON16:
      return MakePoly<PolygonRecord<Point16>>(kPolygon, kMoveToFirst);
    case EMR_POLYLINE16:
      return MakePoly<PolylineRecord<Point16>>(kPolyline, kMoveToFirst);
    case EMR_POLYBEZIERTO16:
      return MakePoly<PolybezierToRecord<Point16>>(kBezier, kContinue);
    case EMR_POLYLINETO16:
      return MakePoly<PolylineToRecord<Point16>>(kPolyline, kContinue);
    case EMR_POLYPOLYLINE16:
      return std::make_unique<PolyPolylineRecord<Point16>>(kPolyline);
    case EMR_POLYPOLYGON16:
      return std::make_unique<PolyPolygonRecord<Point16>>(kPolygon);
    case EMR_POLYDRAW16:
      return std::make_unique<PolyDrawRecord<Point16>>();
    case EMR_CREATEMONOBRUSH:
    case EMR_CREATEDIBPATTERNBRUSHPT:
      return std::make_unique<CreateDIBBrushRecord>();
    case EMR_EXTCREATEPEN:
      return std::make_unique<ExtCreatePenRecord>();
    case EMR_SETICMMODE:
      return std::make_unique<SetICMModeRecord>();
    case EMR_SETLAYOUT:
      return std::make_unique<SetLayoutRecord>();
    case EMR_HEADER:  // a header met again is skipped
    case EMR_EOF:     // ends the parse before it gets here
      break;
  }
  return std::make_unique<UnrecognizedRecord>(type);
}

}  // namespace kelvane
