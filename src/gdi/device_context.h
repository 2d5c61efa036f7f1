#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "base/saved_states.h"
#include "gdi/canvas.h"
#include "gdi/clip_state.h"
#include "gdi/mapping.h"
#include "gdi/object_table.h"
#include "gdi/pending_blits.h"
#include "gdi/pending_marks.h"
#include "gdi/shortfall.h"
#include "gdi/steps.h"
#include "gdi/written_text.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

class FontBook;

/// A path bracket that is open.
struct OpenBracket {
  std::uint64_t serial = 0;     // never used twice in a context
  CGPath::Progress saved = {};  // of the path, when the state was saved

  friend bool operator==(const OpenBracket&, const OpenBracket&) = default;
};

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
  std::int32_t extraOfBreaks = 0;     // logical units, shared out among the breaks of a line
  std::int32_t breaks = 0;            // spaces
  std::int32_t extraOfCharacter = 0;  // logical units
  PointD currentPosition;             // logical units
  bool figureIsOpen = false;          // a line to somewhere goes on with the figure that ends there
  PointD figureStart;                 // logical units; of that figure
  PointL brushOrigin;                 // device units

  /// The path that was finished last and is not used up, in device units; null without one.
  std::shared_ptr<const CGPath> path;
  std::optional<OpenBracket> bracket;

  friend bool operator==(const DeviceState&, const DeviceState&) = default;
};

/// What a picture is played on. The functions of gdi/ are those of Windows by their names; they
/// return false, and change nothing, where Windows' would fail.
struct DeviceContext {
  /// @param target  borrowed; without one nothing is drawn.
  explicit DeviceContext(const ReferenceDevice& device, Canvas* target = nullptr);

  ObjectTable objects;
  DeviceState state;
  SavedStates<DeviceState> saved;
  Canvas* canvas;             // null draws nothing
  FontBook* fonts = nullptr;  // null writes nothing
  bool outlinesText = false;  // glyphs become shapes

  /// Whether nobody knows what device the picture was made for. Its pixels then mean nothing: text
  /// is measured in logical units, and the lines that can be dashed are those as thin as a screen's
  /// pixels.
  bool isForAnyDevice = false;

  PendingMarks pending;
  PendingBlits pendingBlits;
  CGPath bracketPath;               // of the open bracket, device units
  std::uint64_t bracketSerial = 0;  // of the bracket that bracketPath belongs to
  std::uint64_t bracketsBegun = 0;
  CGPath scratch;    // of the call at hand; kept for its memory
  WrittenText text;  // likewise

  /// What has not come out as it should, for whoever reports it, and clears it.
  Shortfalls shortfalls;

  /// What clipping may still take, here and in other pictures of the file. A part comes with each
  /// call and with each rectangle of it, so that only files run out in which few shapes cut each
  /// other into very many.
  std::shared_ptr<Steps> clipSteps = std::make_shared<Steps>(1U << 23);
};

/// @return the level that RestoreDC takes to come back here: 1, 2, …
int SaveDC(DeviceContext& device);

/// @param level  less than 0: so many levels up; else a level that SaveDC gave.
bool RestoreDC(DeviceContext& device, int level);

}  // namespace kelvane
