#pragma once

#include <cstdint>

#include "classic/context/abstract_context.h"

namespace kelvane {

/// @param colorRef  red in bits 0 to 7, green in 8 to 15, blue in 16 to 23; the top byte is
///                  ignored.
/// @return each channel divided by 256, so that 255 gives 0.99609375.
ContextColor FromColorRef(std::uint32_t colorRef);

/// Makes the colour, opaque, the surface's fill colour. The context's own fillColor stays.
void SetSurfaceFillColor(const AbstractContext& context, const ContextColor& color);

/// Makes the colour, opaque, the surface's stroke colour.
void SetSurfaceStrokeColor(const AbstractContext& context, const ContextColor& color);

}  // namespace kelvane
