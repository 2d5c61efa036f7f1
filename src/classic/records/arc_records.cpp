#include "classic/records/arc_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/path_primitives.h"
#include "classic/reader/reader.h"

namespace kelvane {

void EllipticArcRecord::read(Reader& reader) {
  reader.readAll(box, start, end);
}

void ArcRecord::drawToPDF(AbstractContext& context) const {
  AddEllipseInRect(context, box);
  if (context.inPath == 0) DrawPath(context, kCGPathStroke);
  context.EmptyDraw("Ellipse was drawing instead of arc");
}

void ArcToRecord::drawToPDF(AbstractContext& context) const {
  context.EmptyDraw("ArcTo");
}

void ChordRecord::drawToPDF(AbstractContext& context) const {
  context.EmptyDraw("Chord");
}

void PieRecord::drawToPDF(AbstractContext& context) const {
  context.EmptyDraw("Pie");
}

void AngleArcRecord::drawToPDF(AbstractContext& context) const {
  AddArc(context, centre, radius, startAngle, startAngle + sweepAngle);
}

void AngleArcRecord::read(Reader& reader) {
  reader.readAll(centre, radius, startAngle, sweepAngle);
}

}  // namespace kelvane
