#pragma once

#include <cstdint>

#include "classic/playable/object.h"
#include "classic/reader/gdi_structures.h"

namespace kelvane {

/// BS_NULL, the brush style that does not fill ([MS-WMF] 2.1.1.4).
inline constexpr std::uint32_t kNullBrushStyle = 1;

/// A solid, hatched or null brush; a hatch is filled solid.
class BrushObject final : public Object {
 public:
  explicit BrushObject(const LogicalBrush& logicalBrush)
      : Object(ObjectType::kBrush), brush(logicalBrush) {}

  [[nodiscard]] std::uint32_t getColor() const override { return brush.color; }
  [[nodiscard]] std::uint32_t getBrushStyle() const override { return brush.style; }

  const LogicalBrush brush;
};

/// A pattern brush. Its bitmap is not kept, and it has no colour of its own.
class DIBBrushObject final : public Object {
 public:
  DIBBrushObject() : Object(ObjectType::kPatternBrush) {}

  [[nodiscard]] std::uint32_t getColor() const override { return 0xFFFFFFFF; }
  [[nodiscard]] std::uint32_t getBrushStyle() const override { return 0; }
};

}  // namespace kelvane
