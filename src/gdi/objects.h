#pragma once

#include <cstdint>

#include "gdi/device_context.h"
#include "metafile/array_view.h"

namespace kelvane {

/// Selects a pen, a brush or a font.
bool SelectObject(DeviceContext& device, std::uint32_t handle);

bool SelectPalette(DeviceContext& device, std::uint32_t handle);

/// What is selected stays in use.
void DeleteObject(DeviceContext& device, std::uint32_t handle);

/// Changes a palette of the file's, also where it is selected; the stock palette stays as it is.
bool SetPaletteEntries(DeviceContext& device, std::uint32_t index, std::uint32_t start,
                       ArrayView<PaletteEntry> entries);

bool ResizePalette(DeviceContext& device, std::uint32_t index, std::uint32_t size);

/// @return a colour as it shows with the palette that is selected.
RgbColor ResolveColor(const DeviceContext& device, ColorRef color);

/// @return what a brush, the selected one or another, paints with in the state there is.
BrushPaint ResolveBrush(const DeviceContext& device, const Brush& brush);

/// @return how the selected pen's lines are drawn in the state there is.
PenStroke ResolvePen(const DeviceContext& device);

}  // namespace kelvane
