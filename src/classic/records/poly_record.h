#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"
#include "classic/records/draw_modes.h"

namespace kelvane {

/// Plays one figure: outside a path bracket it strokes what is pending, adds the figure and paints
/// it; inside one it only adds. A polygon is never closed, so its fill closes it and its stroke
/// leaves the last edge out. Points that do not make up a group of three are left out of a Bezier.
/// @param points  logical units. T is PointL or Point16.
template <class T>
void DrawFigure(AbstractContext& context, std::span<const T> points,
                draw_modes::FigureMode figureMode, draw_modes::DrawFromPointMode drawFromPoint);

/// A polyline, polygon or Bezier run. T is PointL or Point16, the two widths a file may use.
/// The points are copied: after `read` nothing refers to the input.
template <class T>
class PolyRecord : public Record {
 public:
  PolyRecord(draw_modes::FigureMode figure, draw_modes::DrawFromPointMode drawFrom)
      : figureMode(figure), drawFromPoint(drawFrom) {}

  /// Adds the figure to the current path and, outside a path bracket, paints it at once.
  void drawToPDF(AbstractContext& context) const override;

  /// Reads bounds, count and points. When the data ends early the whole points read are kept.
  void read(Reader& reader) override;

  RectangleL bounds;        // read, never used in drawing
  std::uint32_t count = 0;  // as stored; may exceed points.size()
  std::vector<T> points;    // logical units, file order
  const draw_modes::FigureMode figureMode;
  const draw_modes::DrawFromPointMode drawFromPoint;
};

/// EMR_POLYBEZIER, EMR_POLYBEZIER16 ([MS-EMF] 2.3.5.16, 2.3.5.17).
template <class T>
class PolybezierRecord final : public PolyRecord<T> {
  using PolyRecord<T>::PolyRecord;
};

/// EMR_POLYGON, EMR_POLYGON16 ([MS-EMF] 2.3.5.22, 2.3.5.23).
template <class T>
class PolygonRecord final : public PolyRecord<T> {
  using PolyRecord<T>::PolyRecord;
};

/// EMR_POLYLINE, EMR_POLYLINE16 ([MS-EMF] 2.3.5.24, 2.3.5.25).
template <class T>
class PolylineRecord final : public PolyRecord<T> {
  using PolyRecord<T>::PolyRecord;
};

/// EMR_POLYBEZIERTO, EMR_POLYBEZIERTO16 ([MS-EMF] 2.3.5.18, 2.3.5.19).
template <class T>
class PolybezierToRecord final : public PolyRecord<T> {
  using PolyRecord<T>::PolyRecord;
};

/// EMR_POLYLINETO, EMR_POLYLINETO16 ([MS-EMF] 2.3.5.26, 2.3.5.27).
template <class T>
class PolylineToRecord final : public PolyRecord<T> {
  using PolyRecord<T>::PolyRecord;
};

}  // namespace kelvane
