#pragma once

#include <cstdint>

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"
#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

/// EMR_BEGINPATH ([MS-EMF] 2.3.10): strokes what is pending, so that it stays out of the new path,
/// and opens a path bracket, in which drawing records only add to the path.
class BeginPathRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& /*reader*/) override {}
};

/// EMR_ENDPATH ([MS-EMF] 2.3.10): closes the bracket. The path waits for a record that paints it or
/// clips to it.
class EndPathRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& /*reader*/) override {}
};

/// EMR_CLOSEFIGURE ([MS-EMF] 2.3.10): leaves the figure open, so that its stroke lacks the closing
/// line.
class CloseFigureRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& /*context*/) const override {}
  void read(Reader& /*reader*/) override {}
};

/// EMR_FILLPATH, EMR_STROKEANDFILLPATH and EMR_STROKEPATH ([MS-EMF] 2.3.5.9, 2.3.5.38, 2.3.5.39).
/// Fills by the non-zero winding rule, under a hollow brush too.
class FillPathRecord final : public Record {
 public:
  explicit FillPathRecord(CGPathDrawingMode mode) : painting(mode) {}

  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  RectangleL bounds;  // read, not used
  const CGPathDrawingMode painting;
};

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
