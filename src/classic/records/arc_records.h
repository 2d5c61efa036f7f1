#pragma once

#include <cstdint>

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

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

}  // namespace kelvane
