#include "classic/records/shape_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/path_primitives.h"
#include "classic/reader/reader.h"

namespace kelvane {
namespace {

void PaintShape(const AbstractContext& context) {
  if (context.inPath == 0) DrawPath(context, kCGPathFillStroke);
}

}  // namespace

void RectangleRecord::drawToPDF(AbstractContext& context) const {
  AddRectangle(context, box);
  PaintShape(context);
}

void RectangleRecord::read(Reader& reader) {
  reader.read(box);
}

void RoundRectangleRecord::drawToPDF(AbstractContext& context) const {
  AddRoundRectangle(context, box);
  PaintShape(context);
}

void RoundRectangleRecord::read(Reader& reader) {
  RectangleRecord::read(reader);
  reader.read(corner);
}

void EllipseRecord::drawToPDF(AbstractContext& context) const {
  AddEllipseInRect(context, box);
  PaintShape(context);
}

void EllipseRecord::read(Reader& reader) {
  reader.read(box);
}

}  // namespace kelvane
