#pragma once

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

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

}  // namespace kelvane
