#include "classic/records/poly_records.h"

#include <cstddef>

#include "classic/context/abstract_context.h"
#include "classic/context/path_primitives.h"
#include "classic/reader/reader.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {
namespace {

template <class T>
void AddCurves(AbstractContext& context, std::span<const T> points) {
  for (; points.size() >= 3; points = points.subspan(3)) {
    AddCurveToPoint(context, points[0].x, points[0].y, points[1].x, points[1].y, points[2].x,
                    points[2].y);
  }
}

template <class T>
void AddLines(AbstractContext& context, std::span<const T> points) {
  for (const T& point : points)
    AddLine(context, point.x, point.y);
}

}  // namespace

template <class T>
void DrawFigure(AbstractContext& context, std::span<const T> points,
                draw_modes::FigureMode figureMode, draw_modes::DrawFromPointMode drawFromPoint) {
  using draw_modes::DrawFromPointMode;
  using draw_modes::FigureMode;
  const bool paints = context.inPath == 0;
  if (paints) CGContextDrawPath(context.context, kCGPathStroke);
  if (drawFromPoint == DrawFromPointMode::kMoveToFirst && !points.empty()) {
    MoveToPoint(context, points[0].x, points[0].y);
    points = points.subspan(1);
  }
  if (figureMode == FigureMode::kBezier) {
    AddCurves(context, points);
  } else {
    AddLines(context, points);
  }
  if (paints) {
    DrawPath(context, figureMode == FigureMode::kPolygon ? kCGPathEOFillStroke : kCGPathStroke);
  }
}

template <class T>
void PolyRecord<T>::drawToPDF(AbstractContext& context) const {
  DrawFigure<T>(context, points, figureMode, drawFromPoint);
}

template <class T>
void PolyRecord<T>::read(Reader& reader) {
  reader.readAll(bounds, count);
  reader.readList(points, count);
}

template <class T>
void PolyPolyRecord<T>::drawToPDF(AbstractContext& context) const {
  DrawFigure<T>(context, points, figureMode, draw_modes::DrawFromPointMode::kMoveToFirst);
}

template <class T>
void PolyPolyRecord<T>::read(Reader& reader) {
  reader.readAll(bounds, figureCount, totalPoints);
  reader.readList(counts, figureCount);
  reader.readList(points, totalPoints);
}

template <class T>
void PolyDrawRecord<T>::drawToPDF(AbstractContext& context) const {
  context.EmptyDraw("PolyDraw");
}

template void DrawFigure<PointL>(AbstractContext&, std::span<const PointL>, draw_modes::FigureMode,
                                 draw_modes::DrawFromPointMode);
template void DrawFigure<Point16>(AbstractContext&, std::span<const Point16>,
                                  draw_modes::FigureMode, draw_modes::DrawFromPointMode);
template class PolyRecord<PointL>;
template class PolyRecord<Point16>;
template class PolyPolyRecord<PointL>;
template class PolyPolyRecord<Point16>;
template class PolyDrawRecord<PointL>;
template class PolyDrawRecord<Point16>;

}  // namespace kelvane
