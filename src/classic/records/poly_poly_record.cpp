#include "classic/records/poly_poly_record.h"

#include "classic/reader/reader.h"
#include "classic/records/poly_record.h"

namespace kelvane {

template <class T>
void PolyPolyRecord<T>::drawToPDF(AbstractContext& context) const {
  if (figureMode == draw_modes::FigureMode::kBezier) return;
  DrawFigure<T>(context, points, figureMode, draw_modes::DrawFromPointMode::kMoveToFirst);
}

template <class T>
void PolyPolyRecord<T>::read(Reader& reader) {
  reader.readAll(bounds, figureCount, totalPoints);
  reader.readList(counts, figureCount);
  reader.readList(points, totalPoints);
}

template class PolyPolyRecord<PointL>;
template class PolyPolyRecord<Point16>;

}  // namespace kelvane
