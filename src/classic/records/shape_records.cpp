#include "classic/records/shape_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/path_primitives.h"
#include "classic/reader/reader.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {
namespace {

void PaintShape(const AbstractContext& context) {
  if (context.inPath == 0) DrawPath(context, kCGPathFillStroke);
}

}  // namespace

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
