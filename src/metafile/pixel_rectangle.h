#pragma once

#include <cstddef>

namespace kelvane {
inline namespace metafile {

/// A part of a bitmap, pixels, counted from the top left of the picture.
struct PixelRectangle {
  std::size_t left = 0;
  std::size_t top = 0;
  std::size_t width = 0;
  std::size_t height = 0;
};

}  // namespace metafile
}  // namespace kelvane
