#pragma once

#include <cstdint>
#include <vector>

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"
#include "classic/records/draw_modes.h"

namespace kelvane {

/// Several polylines or polygons in one record, played as a single figure through all their points:
/// the counts of the figures are read and not used. T is PointL or Point16.
template <class T>
class PolyPolyRecord : public Record {
 public:
  explicit PolyPolyRecord(draw_modes::FigureMode figure) : figureMode(figure) {}

  /// Draws all points as one polyline or one even-odd polygon; in any other figure mode nothing.
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
};

/// EMR_POLYPOLYLINE, EMR_POLYPOLYLINE16 ([MS-EMF] 2.3.5.30, 2.3.5.31).
template <class T>
class PolyPolylineRecord final : public PolyPolyRecord<T> {
  using PolyPolyRecord<T>::PolyPolyRecord;
};

/// EMR_POLYPOLYGON, EMR_POLYPOLYGON16 ([MS-EMF] 2.3.5.28, 2.3.5.29).
template <class T>
class PolyPolygonRecord final : public PolyPolyRecord<T> {
  using PolyPolyRecord<T>::PolyPolyRecord;
};

}  // namespace kelvane
