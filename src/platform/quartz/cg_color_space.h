#pragma once

#include <cstddef>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// A device colour space: grey with one component or RGB with three.
class CGColorSpace final : public CFObject {
 public:
  explicit CGColorSpace(std::size_t componentCount) : components(componentCount) {}

  const std::size_t components;
};

using CGColorSpaceRef = const CGColorSpace*;

/// @return a space owned by the caller. Throws std::bad_alloc.
CGColorSpaceRef CGColorSpaceCreateDeviceGray();
/// @return a space owned by the caller. Throws std::bad_alloc.
CGColorSpaceRef CGColorSpaceCreateDeviceRGB();

/// A colour as the surface keeps it: components from 0 to 1, grey as three equal ones.
/// Alpha is kept for the caller; both back ends paint opaque.
struct CGColor {
  CGFloat red = 0;
  CGFloat green = 0;
  CGFloat blue = 0;
  CGFloat alpha = 1;

  friend bool operator==(const CGColor&, const CGColor&) = default;
};

/// @param components  1 (grey) or 3 (RGB) values, then alpha; brought into 0 to 1, not-a-number
///                    becoming 0.
CGColor MakeColor(const CGFloat* components, std::size_t componentCount);

}  // namespace kelvane
