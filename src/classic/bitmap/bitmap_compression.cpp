#include "classic/bitmap/bitmap_compression.h"

#include "classic/bitmap/rgb_compression.h"

namespace kelvane {

std::unique_ptr<BitmapCompression> BitmapCompression::GetCompression(std::uint32_t compression) {
  constexpr std::uint32_t kRgb = 0;        // BI_RGB
  constexpr std::uint32_t kBitfields = 3;  // BI_BITFIELDS
  switch (compression) {
    case kRgb:
      return std::make_unique<RGBCompression>(RGBCompression::Masks::kNone);
    case kBitfields:
      return std::make_unique<RGBCompression>(RGBCompression::Masks::kBeforePixels);
    default:
      return nullptr;
  }
}

}  // namespace kelvane
