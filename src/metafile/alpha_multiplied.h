#pragma once

#include <algorithm>

namespace kelvane {
inline namespace metafile {

/// @param channel  multiplied by alpha. @param alpha  of which `full` is the most, as of channels.
/// @return the channel itself; 0 where nothing can be seen of it.
constexpr unsigned DividedByAlpha(unsigned channel, unsigned alpha, unsigned full) {
  return alpha == 0 ? 0 : std::min((channel * full + alpha / 2) / alpha, full);
}

}  // namespace metafile
}  // namespace kelvane
