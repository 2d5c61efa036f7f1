#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>

#include "gdi/canvas.h"
#include "gdi/device_context.h"
#include "gdi/font_book.h"
#include "gdi/geometry.h"
#include "gdi/shortfall.h"
#include "platform/quartz/cg_context.h"
#include "players/play_setting.h"
#include "players/report.h"

namespace kelvane {

/// A metafile that lies in another one.
struct MetafileWithin {
  std::span<const unsigned char> file;             // borrowed
  std::span<const unsigned char> placeableHeader;  // of a Windows metafile, where it stands apart
};

/// Plays a metafile that is an image of another one.
/// @param unitToDevice  from the unit square, y downwards, which is the page of the inner one, to
///                      device units of the outer.
/// @param around        the canvas of the outer one.
/// @return why it was not played; nullopt when it was.
using PlayWithin = std::function<std::optional<Shortfall>(
    const MetafileWithin& metafile, const TransformD& unitToDevice, const Canvas& around)>;

/// What a picture is played on, and how. All of it is borrowed.
struct Stage {
  const PlaySetting& setting;
  CGContext& surface;
  CGAffineTransform deviceToPage;
  RectangleD whole;  // what can be seen, device units
  const PlayWithin& playWithin;
  Report& report;  // gets what is missing or only nearly there

  /// A picture within another's image takes from what that one can afford.
  const Canvas* around;              // null for a whole file
  std::shared_ptr<Steps> clipSteps;  // of all of them
};

/// A device context on a stage, with all that it draws with.
struct StagedDevice {
  /// @param fileSize  bytes, of the records to come.
  StagedDevice(const Stage& stage, std::size_t fileSize, const ReferenceDevice& reference,
               const DeviceResolution& resolution);

  Canvas canvas;
  FontBook fonts;
  DeviceContext device;
};

}  // namespace kelvane
