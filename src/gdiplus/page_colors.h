#pragma once

#include <cmath>

#include "gdi/page_color.h"
#include "metafile/emfplus/emfplus_types.h"
#include "platform/quartz/cg_color_space.h"

namespace kelvane::gdiplus {

inline CGColor ColorOnPage(Argb color) {
  return {ChannelOnPage(color.red), ChannelOnPage(color.green), ChannelOnPage(color.blue),
          ChannelOnPage(color.alpha)};
}

}  // namespace kelvane::gdiplus
