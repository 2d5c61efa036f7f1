#include "gdi/objects.h"

namespace kelvane {
namespace {

bool IsDashed(const Pen& pen) {
  return pen.style >= PS_DASH && pen.style <= PS_DASHDOTDOT;
}

std::shared_ptr<Palette> PaletteOfFile(const DeviceContext& device, std::uint32_t index) {
  if ((index & STOCK_OBJECT_BIT) != 0) return nullptr;
  return device.objects.Find<Palette>(index);
}

template <class T>
bool Select(const DeviceContext& device, std::uint32_t handle, std::shared_ptr<T>& selected) {
  auto object = device.objects.Find<T>(handle);
  if (object == nullptr) return false;
  selected = std::move(object);
  return true;
}

}  // namespace

bool SelectObject(DeviceContext& device, std::uint32_t handle) {
  return Select(device, handle, device.state.pen) || Select(device, handle, device.state.brush) ||
         Select(device, handle, device.state.font);
}

bool SelectPalette(DeviceContext& device, std::uint32_t handle) {
  return Select(device, handle, device.state.palette);
}

void DeleteObject(DeviceContext& device, std::uint32_t handle) {
  device.objects.Delete(handle);
}

bool SetPaletteEntries(DeviceContext& device, std::uint32_t index, std::uint32_t start,
                       ArrayView<PaletteEntry> entries) {
  const auto palette = PaletteOfFile(device, index);
  if (palette == nullptr) return false;
  palette->SetEntries(start, entries);
  return true;
}

bool ResizePalette(DeviceContext& device, std::uint32_t index, std::uint32_t size) {
  const auto palette = PaletteOfFile(device, index);
  return palette != nullptr && palette->Resize(size);
}

RgbColor ResolveColor(const DeviceContext& device, ColorRef color) {
  return ResolveColor(color, *device.state.palette);
}

BrushPaint ResolveBrush(const DeviceContext& device, const Brush& brush) {
  const DeviceState& state = device.state;
  return ResolveBrush(
      brush, {state.textColor, state.backgroundColor, state.backgroundMode, *state.palette});
}

PenStroke ResolvePen(const DeviceContext& device) {
  const DeviceState& state = device.state;
  double scale = state.mapping.HorizontalScale();
  if (device.isForAnyDevice && device.canvas != nullptr && IsDashed(*state.pen))
    scale /= device.canvas->ScreenPixel();
  return ResolvePen(*state.pen, scale, state.backgroundMode);
}

}  // namespace kelvane
