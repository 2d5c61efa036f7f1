#pragma once

#include <cstdint>

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

/// EMR_SELECTCLIPPATH ([MS-EMF] 2.3.2.5). Clips to the path in mode RGN_AND only; in every other
/// mode the path stays pending, and whatever paints next strokes its outline.
class SelectClipPathRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::uint32_t iMode = 0;  // RGN_
};

/// EMR_INTERSECTCLIPRECT ([MS-EMF] 2.3.2.3): left out of playback.
class IntersectClipRectRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& /*context*/) const override {}
  void read(Reader& reader) override;

  RectangleL rclClip;  // logical units
};

}  // namespace kelvane
