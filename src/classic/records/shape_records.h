#pragma once

#include <cstdint>

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

// Single lines.

/// EMR_LINETO ([MS-EMF] 2.3.5.13). Outside a path bracket it strokes the path so far and goes on
/// from its end, so that each segment is painted as it comes.
class LineToRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  PointL point;  // logical units
};

/// EMR_MOVETOEX ([MS-EMF] 2.3.11.4).
class MoveToExRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  PointL point;  // logical units
};

// Arcs.

/// What the records of elliptical arcs store.
class EllipticArcRecord : public Record {
 public:
  void read(Reader& reader) override;

  RectangleL box;  // logical units
  PointL start;    // read, not used in drawing, as `end`
  PointL end;
};

/// EMR_ARC ([MS-EMF] 2.3.5.2), drawn as the whole ellipse of its box and only ever stroked.
class ArcRecord : public EllipticArcRecord {
 public:
  void drawToPDF(AbstractContext& context) const override;
};

/// EMR_ARCTO ([MS-EMF] 2.3.5.3): left out of playback; the current point stays.
class ArcToRecord final : public ArcRecord {
 public:
  void drawToPDF(AbstractContext& context) const override;
};

/// EMR_CHORD ([MS-EMF] 2.3.5.4): left out of playback.
class ChordRecord final : public EllipticArcRecord {
 public:
  void drawToPDF(AbstractContext& context) const override;
};

/// EMR_PIE ([MS-EMF] 2.3.5.15): left out of playback.
class PieRecord final : public EllipticArcRecord {
 public:
  void drawToPDF(AbstractContext& context) const override;
};

/// EMR_ANGLEARC ([MS-EMF] 2.3.5.1). Only adds to the path; whatever paints next paints the arc.
class AngleArcRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  PointL centre;             // logical units
  std::uint32_t radius = 0;  // taken as page units
  float startAngle = 0;      // degrees
  float sweepAngle = 0;      // degrees, added to the start
};

// Rectangles and ellipses: each adds its outline to the current path and, outside a path bracket,
// fills and strokes it at once. Boxes are in logical units, edges in any order.

/// EMR_RECTANGLE ([MS-EMF] 2.3.5.34).
class RectangleRecord : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  RectangleL box;
};

/// EMR_ROUNDRECT ([MS-EMF] 2.3.5.35), drawn as the ellipse inscribed in its box.
class RoundRectangleRecord final : public RectangleRecord {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  SIZEL corner;  // logical units; read, never used
};

/// EMR_ELLIPSE ([MS-EMF] 2.3.5.5).
class EllipseRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  RectangleL box;
};

}  // namespace kelvane
