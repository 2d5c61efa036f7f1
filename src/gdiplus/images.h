#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>

#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_image.h"
#include "metafile/emfplus/emfplus_image_attributes.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane::gdiplus {

/// Plays a metafile that is an image.
/// @param unitToDevice  maps the unit square, y downwards, which is the metafile's own page, to
///                      where it is drawn; the clip is set.
/// @return why it was not played; nullopt when it was.
using PlayMetafile = std::function<std::optional<Shortfall>(const EmfPlusMetafile& metafile,
                                                            const TransformD& unitToDevice)>;

/// Draws a part of an image. Of a metafile that is all of it.
/// @param source      the part, pixels.
/// @param corners     where its upper left, upper right and lower left corner go, world units.
/// @param attributes  how the image goes on where the part reaches beyond it by more than half a
///                    pixel; null for not at all.
void DrawImage(Graphics& graphics, const EmfPlusImage& image, const RectF& source,
               const std::array<PointF, 3>& corners, const EmfPlusImageAttributes* attributes,
               const PlayMetafile& play);

}  // namespace kelvane::gdiplus
