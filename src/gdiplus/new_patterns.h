#pragma once

#include <optional>

#include "gdiplus/paint.h"

namespace kelvane::gdiplus {

/// A document keeps each pattern that its page shows, in far more memory than the few bytes of a
/// record that turns a brush or moves what it fills.
/// @param paint  just made. @return the same; nullopt, which the graphics are told, when its
///               pattern is none of those before it and there have been too many.
std::optional<Paint> UnlessTooMany(Graphics& graphics, std::optional<Paint> paint);

}  // namespace kelvane::gdiplus
