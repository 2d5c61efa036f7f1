#include "players/stage.h"

namespace kelvane {
namespace {

ReferenceDevice Seen(ReferenceDevice reference, const RectangleD& whole) {
  reference.pageLeft = whole.left;
  reference.pageRight = whole.right;
  return reference;
}

}  // namespace

StagedDevice::StagedDevice(const Stage& stage, std::size_t fileSize,
                           const ReferenceDevice& reference, const DeviceResolution& resolution)
    : canvas(stage.surface, stage.deviceToPage, stage.whole, resolution),
      fonts(stage.setting.text.registry, stage.surface.FontFilter(), stage.setting.text.map),
      device(Seen(reference, stage.whole), &canvas) {
  if (stage.around != nullptr) {
    canvas.ShareAllowanceOf(*stage.around);
  } else {
    canvas.AllowFor(fileSize);
  }
  device.fonts = &fonts;
  device.outlinesText = stage.setting.text.outlines;
  device.clipSteps = stage.clipSteps;
}

}  // namespace kelvane
