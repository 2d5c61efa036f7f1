#pragma once

#include <cstdint>
#include <vector>

namespace kelvane::test {

/// What varies in a TIFF file of one strip, or of tiles that are all the same.
struct TiffFields {
  std::uint32_t width = 1;
  std::uint32_t height = 1;
  std::uint32_t samples = 3;      // red, green, blue, and alpha that they are not multiplied by
  std::uint32_t compression = 1;  // none
  std::uint32_t orientation = 1;  // the first row above, the first column on the left
  std::uint32_t tileSide = 0;     // pixels; 0 for a strip
};

/// @return a file of bytes of pixels, whatever the fields promise.
std::vector<unsigned char> TiffFile(const TiffFields& fields,
                                    const std::vector<unsigned char>& pixels);

}  // namespace kelvane::test
