#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// A device colour space, grey with one component or RGB with three; or, for images, a table of RGB
/// colours, whose one component is a colour's number.
class CGColorSpace final : public CFObject {
 public:
  explicit CGColorSpace(std::size_t componentCount, std::vector<unsigned char> colorTable = {})
      : components(componentCount), table(std::move(colorTable)) {}

  [[nodiscard]] bool IsIndexed() const { return !table.empty(); }

  const std::size_t components;
  const std::vector<unsigned char> table;  // red, green, blue of each colour; empty: none
};

using CGColorSpaceRef = const CGColorSpace*;

/// @return a space owned by the caller. Throws std::bad_alloc.
CGColorSpaceRef CGColorSpaceCreateDeviceGray();
/// @return a space owned by the caller. Throws std::bad_alloc.
CGColorSpaceRef CGColorSpaceCreateDeviceRGB();

/// Colours by number.
/// @param base       RGB.
/// @param lastIndex  at most 255.
/// @param table      red, green and blue, a byte each, of lastIndex + 1 colours; copied.
/// @return a space owned by the caller; null for another base, a number too large and a null table.
///         Throws std::bad_alloc.
CGColorSpaceRef CGColorSpaceCreateIndexed(CGColorSpaceRef base, std::size_t lastIndex,
                                          const unsigned char* table);

/// A colour as the surface keeps it: components from 0 to 1, grey as three equal ones.
/// Alpha counts in shadings and patterns; of a plain colour it is kept for the caller, and back
/// ends paint opaque.
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
