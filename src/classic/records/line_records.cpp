#include "classic/records/line_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/path_primitives.h"
#include "classic/reader/reader.h"

namespace kelvane {

void LineToRecord::drawToPDF(AbstractContext& context) const {
  AddLine(context, point.x, point.y);
  if (context.inPath != 0) return;
  CGContextDrawPath(context.context, kCGPathStroke);
  MoveToPoint(context, point.x, point.y);
}

void LineToRecord::read(Reader& reader) {
  reader.read(point);
}

void MoveToExRecord::drawToPDF(AbstractContext& context) const {
  MoveToPoint(context, point.x, point.y);
}

void MoveToExRecord::read(Reader& reader) {
  reader.read(point);
}

}  // namespace kelvane
