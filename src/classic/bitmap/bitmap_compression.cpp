#include "classic/bitmap/bitmap_compression.h"

#include "classic/bitmap/rgb_compression.h"

namespace kelvane {

std::unique_ptr<BitmapCompression> BitmapCompression::GetCompression(std::uint32_t compression) {
  switch (compression) {
    case RGBCompression::kRgb:
    case RGBCompression::kBitfields:
      return std::make_unique<RGBCompression>(compression);
    default:
      return nullptr;
  }
}

}  // namespace kelvane
