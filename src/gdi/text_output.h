#pragma once

#include <cstdint>
#include <string>

#include "gdi/device_context.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/text_advances.h"

namespace kelvane {

/// The arguments of ExtTextOut beside its text.
struct TextPlacing {
  PointL reference;  // logical units
  ExtTextOutOptions options{};
  RectangleL rectangle;  // logical units; of ETO_OPAQUE and ETO_CLIPPED
  GraphicsMode graphicsMode = GM_COMPATIBLE;
  AnyTextAdvances advances;  // for each unit of text; empty when the face says
};

/// @param text  UTF-16, or numbers of glyphs.
void ExtTextOut(DeviceContext& device, const TextPlacing& placing, std::u16string text);

/// @param text  in the code page of the selected font.
void ExtTextOut(DeviceContext& device, const TextPlacing& placing, const std::string& text);

/// @param extra   logical units, shared out among the spaces of a line.
/// @param breaks  how many spaces that is.
void SetTextJustification(DeviceContext& device, std::int32_t extra, std::int32_t breaks);

/// @param extra  logical units behind each character.
void SetTextCharacterExtra(DeviceContext& device, std::int32_t extra);

}  // namespace kelvane
