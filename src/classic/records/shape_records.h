#pragma once

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

// Each adds its outline to the current path and, outside a path bracket, fills and strokes it at
// once. Boxes are in logical units, edges in any order.

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
