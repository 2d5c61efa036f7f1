#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

/// What tells the poly records apart.
namespace draw_modes {

enum class FigureMode : std::uint32_t {
  kPolyline = 0,  // lines; an open figure
  kPolygon = 1,   // lines; filled and stroked
  kBezier = 2,    // groups of control, control, end
};

enum class DrawFromPointMode : std::uint32_t {
  kMoveToFirst = 0,  // the figure starts with a move to its first point
  kContinue = 1,     // it goes on from the current point, if any, as the records named …TO do
};

}  // namespace draw_modes

/// Plays one figure: outside a path bracket it strokes what is pending, adds the figure and paints
/// it; inside one it only adds. The current point goes with what is stroked, so outside a bracket
/// no figure goes on from it: lines then start at their first point, a Bezier run at its third. A
/// polygon is never closed, so its fill closes it and its stroke leaves the last edge out. Points
/// that do not make up a group of three are left out of a Bezier run.
/// @param points  logical units. T is PointL or Point16.
template <class T>
void DrawFigure(AbstractContext& context, std::span<const T> points,
                draw_modes::FigureMode figureMode, draw_modes::DrawFromPointMode drawFromPoint);

/// A polyline, polygon or Bezier run. T is PointL or Point16, the two widths a file may use.
/// The points are copied: after `read` nothing refers to the input.
template <class T>
class PolyRecord : public Record {
 public:
  /// Adds the figure to the current path and, outside a path bracket, paints it at once.
  void drawToPDF(AbstractContext& context) const override;

  /// Reads bounds, count and points. When the data ends early the whole points read are kept.
  void read(Reader& reader) override;

  RectangleL bounds;        // read, never used in drawing
  std::uint32_t count = 0;  // as stored; may exceed points.size()
  std::vector<T> points;    // logical units, file order
  const draw_modes::FigureMode figureMode;
  const draw_modes::DrawFromPointMode drawFromPoint;

 protected:
  PolyRecord(draw_modes::FigureMode figure, draw_modes::DrawFromPointMode drawFrom)
      : figureMode(figure), drawFromPoint(drawFrom) {}
};

/// EMR_POLYBEZIER, EMR_POLYBEZIER16 ([MS-EMF] 2.3.5.16, 2.3.5.17).
template <class T>
class PolybezierRecord final : public PolyRecord<T> {
 public:
  PolybezierRecord()
      : PolyRecord<T>(draw_modes::FigureMode::kBezier,
                      draw_modes::DrawFromPointMode::kMoveToFirst) {}
};

/// EMR_POLYGON, EMR_POLYGON16 ([MS-EMF] 2.3.5.22, 2.3.5.23).
template <class T>
class PolygonRecord final : public PolyRecord<T> {
 public:
  PolygonRecord()
      : PolyRecord<T>(draw_modes::FigureMode::kPolygon,
                      draw_modes::DrawFromPointMode::kMoveToFirst) {}
};

/// EMR_POLYLINE, EMR_POLYLINE16 ([MS-EMF] 2.3.5.24, 2.3.5.25).
template <class T>
class PolylineRecord final : public PolyRecord<T> {
 public:
  PolylineRecord()
      : PolyRecord<T>(draw_modes::FigureMode::kPolyline,
                      draw_modes::DrawFromPointMode::kMoveToFirst) {}
};

/// EMR_POLYBEZIERTO, EMR_POLYBEZIERTO16 ([MS-EMF] 2.3.5.18, 2.3.5.19).
template <class T>
class PolybezierToRecord final : public PolyRecord<T> {
 public:
  PolybezierToRecord()
      : PolyRecord<T>(draw_modes::FigureMode::kBezier, draw_modes::DrawFromPointMode::kContinue) {}
};

/// EMR_POLYLINETO, EMR_POLYLINETO16 ([MS-EMF] 2.3.5.26, 2.3.5.27).
template <class T>
class PolylineToRecord final : public PolyRecord<T> {
 public:
  PolylineToRecord()
      : PolyRecord<T>(draw_modes::FigureMode::kPolyline, draw_modes::DrawFromPointMode::kContinue) {
  }
};

/// Several polylines or polygons in one record, played as a single figure through all their points:
/// the counts of the figures are read and not used. T is PointL or Point16.
template <class T>
class PolyPolyRecord : public Record {
 public:
  /// Draws all points as one polyline or one even-odd polygon.
  void drawToPDF(AbstractContext& context) const override;

  /// Reads bounds, both totals, the counts and the points; of each list, the whole elements that
  /// the data supplies.
  void read(Reader& reader) override;

  RectangleL bounds;                  // read, not used in drawing
  std::uint32_t figureCount = 0;      // as stored
  std::uint32_t totalPoints = 0;      // as stored; may exceed points.size()
  std::vector<std::uint32_t> counts;  // points of each figure; not used in drawing
  std::vector<T> points;              // logical units, all figures one after the other
  const draw_modes::FigureMode figureMode;

 protected:
  explicit PolyPolyRecord(draw_modes::FigureMode figure) : figureMode(figure) {}
};

/// EMR_POLYPOLYLINE, EMR_POLYPOLYLINE16 ([MS-EMF] 2.3.5.30, 2.3.5.31).
template <class T>
class PolyPolylineRecord final : public PolyPolyRecord<T> {
 public:
  PolyPolylineRecord() : PolyPolyRecord<T>(draw_modes::FigureMode::kPolyline) {}
};

/// EMR_POLYPOLYGON, EMR_POLYPOLYGON16 ([MS-EMF] 2.3.5.28, 2.3.5.29).
template <class T>
class PolyPolygonRecord final : public PolyPolyRecord<T> {
 public:
  PolyPolygonRecord() : PolyPolyRecord<T>(draw_modes::FigureMode::kPolygon) {}
};

/// EMR_POLYDRAW, EMR_POLYDRAW16 ([MS-EMF] 2.3.5.20, 2.3.5.21): left out of playback. The body is
/// not read, since its bounds would stand where the count is looked for; the framing skips it. T is
/// PointL or Point16.
template <class T>
class PolyDrawRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& /*reader*/) override {}
};

}  // namespace kelvane
