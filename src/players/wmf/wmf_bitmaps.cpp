#include "players/wmf/wmf_bitmaps.h"

#include <utility>

#include "gdi/objects.h"

namespace kelvane {
namespace {

DibColor Shown(const DeviceContext& device, ColorRef color) {
  const RgbColor rgb = ResolveColor(device, color);
  return {rgb.red, rgb.green, rgb.blue};
}

}  // namespace

std::optional<DibBytes> BytesOf(WmfPlayback& playback, const Bitmap16& bitmap) {
  const DeviceContext& device = playback.device;
  auto made = WmfDeviceBitmap::Of(bitmap, Shown(device, device.state.textColor),
                                  Shown(device, device.state.backgroundColor));
  if (!made) {
    playback.LeftOut("its bitmap cannot be read without the device it was made for");
    return std::nullopt;
  }
  return playback.deviceBitmaps.emplace_back(*std::move(made)).Bytes();
}

}  // namespace kelvane
