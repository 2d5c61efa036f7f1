#pragma once

#include <memory>

#include "base/saved_states.h"
#include "gdi/clip_state.h"
#include "gdi/mapping.h"
#include "gdi/object_table.h"
#include "gdi/steps.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// All of a device context that SaveDC keeps and RestoreDC brings back. What is large is shared.
struct DeviceState {
  explicit DeviceState(const ReferenceDevice& device) : mapping(device) {}

  Mapping mapping;
  ClipState clip;

  // Never null.
  std::shared_ptr<const Pen> pen;
  std::shared_ptr<const Brush> brush;
  std::shared_ptr<const LogFont> font;
  std::shared_ptr<Palette> palette;

  ColorRef textColor{0x000000};
  ColorRef backgroundColor{0xFFFFFF};
  BackgroundMode backgroundMode = OPAQUE;
  BinaryRasterOperation rop2 = R2_COPYPEN;
  PolyFillMode polyFillMode = ALTERNATE;
  StretchMode stretchMode = STRETCH_ANDSCANS;
  TextAlign textAlign = TA_NOUPDATECP;
  ArcDirection arcDirection = AD_COUNTERCLOCKWISE;
  float miterLimit = 10;
  PointD currentPosition;  // logical units
  PointL brushOrigin;      // device units

  /// The path that was finished last and is not used up, in device units; null without one.
  std::shared_ptr<const CGPath> path;

  friend bool operator==(const DeviceState&, const DeviceState&) = default;
};

/// What a picture is played on. The functions of gdi/ are those of Windows by their names; they
/// return false, and change nothing, where Windows' would fail.
struct DeviceContext {
  explicit DeviceContext(const ReferenceDevice& device);

  ObjectTable objects;
  DeviceState state;
  SavedStates<DeviceState> saved;

  /// What clipping may still take. A part comes with each call and with each rectangle of it, so
  /// that only files run out in which few shapes cut each other into very many.
  Steps clipSteps{1U << 23};
};

/// @return the level that RestoreDC takes to come back here: 1, 2, …
int SaveDC(DeviceContext& device);

/// @param level  less than 0: so many levels up; else a level that SaveDC gave.
bool RestoreDC(DeviceContext& device, int level);

}  // namespace kelvane
