#include "platform/quartz/cg_color_space.h"

namespace kelvane {
namespace {

constexpr CGFloat ToUnitRange(CGFloat component) {
  if (!(component > 0)) return 0;
  return component < 1 ? component : 1;
}

}  // namespace

CGColorSpaceRef CGColorSpaceCreateDeviceGray() {
  return new CGColorSpace(1);
}

CGColorSpaceRef CGColorSpaceCreateDeviceRGB() {
  return new CGColorSpace(3);
}

CGColorSpaceRef CGColorSpaceCreateIndexed(CGColorSpaceRef base, std::size_t lastIndex,
                                          const unsigned char* table) {
  constexpr std::size_t kMostColors = 256;
  const bool isRGB = base != nullptr && base->components == 3;
  if (!isRGB || lastIndex >= kMostColors || table == nullptr) return nullptr;
  return new CGColorSpace(1, std::vector<unsigned char>(table, table + 3 * (lastIndex + 1)));
}

CGColor MakeColor(const CGFloat* components, std::size_t componentCount) {
  const CGFloat first = ToUnitRange(components[0]);
  if (componentCount == 1) return {first, first, first, ToUnitRange(components[1])};
  return {first, ToUnitRange(components[1]), ToUnitRange(components[2]),
          ToUnitRange(components[3])};
}

}  // namespace kelvane
