#include "gdi/device_context.h"

#include <cstdint>

namespace kelvane {

namespace {

/// The open bracket loses what was added since it was saved, and all of it when there was another
/// bracket in between.
void GoBackTo(DeviceContext& device, const OpenBracket& bracket) {
  if (device.bracketSerial == bracket.serial) {
    device.bracketPath.GoBackTo(bracket.saved);
  } else {
    device.bracketPath.Clear();
    device.bracketSerial = bracket.serial;
    device.state.figureIsOpen = false;  // nothing is left of it to go on with
  }
}

}  // namespace

DeviceContext::DeviceContext(const ReferenceDevice& device, Canvas* target)
    : state(device), canvas(target) {
  state.pen = objects.Find<const Pen>(BLACK_PEN);
  state.brush = objects.Find<const Brush>(WHITE_BRUSH);
  state.font = objects.Find<const LogFont>(SYSTEM_FONT);
  state.palette = objects.Find<Palette>(DEFAULT_PALETTE);
}

int SaveDC(DeviceContext& device) {
  if (device.state.bracket) device.state.bracket->saved = device.bracketPath.Reached();
  device.saved.Push(device.state);
  return static_cast<int>(device.saved.Depth());
}

bool RestoreDC(DeviceContext& device, int level) {
  const auto depth = static_cast<std::int64_t>(device.saved.Depth());
  const std::int64_t wanted = level < 0 ? depth + level : std::int64_t{level} - 1;
  if (wanted < 0 || wanted >= depth) return false;
  device.state = device.saved.PopTo(static_cast<std::size_t>(wanted));
  if (device.state.bracket) GoBackTo(device, *device.state.bracket);
  return true;
}

}  // namespace kelvane
