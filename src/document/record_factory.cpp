#include "document/record_factory.h"

#include "bitmap/bitmap_records.h"
#include "document/record_type.h"
#include "document/skipped_records.h"
#include "records/arc_records.h"
#include "records/line_records.h"
#include "records/poly_draw_record.h"
#include "records/poly_poly_record.h"
#include "records/poly_record.h"
#include "records/shape_records.h"

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
    case EMR_MOVETOEX:
      return std::make_unique<MoveToExRecord>();
    case EMR_SETMETARGN:
      return std::make_unique<RecognizedButIgnoredRecord>("EMR_SETMETARGN");
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
    case EMR_LINETO:
      return std::make_unique<LineToRecord>();
    case EMR_ARCTO:
      return std::make_unique<ArcToRecord>();
    case EMR_POLYDRAW:
      return std::make_unique<PolyDrawRecord<PointL>>();
    case EMR_BITBLT:
      return std::make_unique<BitBltRecord>();
    case EMR_STRETCHDIBITS:
      return std::make_unique<StretchDibitsRecord>();
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
    case EMR_HEADER:  // a header met again is skipped
    case EMR_EOF:     // ends the parse before it gets here
      break;
  }
  return std::make_unique<UnrecognizedRecord>(type);
}

}  // namespace kelvane
