#pragma once

#include <cstdint>

#include "classic/playable/object.h"
#include "classic/reader/gdi_structures.h"

namespace kelvane {

/// A pen. Its own brush style is never consulted: lines are drawn solid, in its colour and width.
class ExtPenObject final : public Object {
 public:
  explicit ExtPenObject(const ExtLogPen& logicalPen) : Object(ObjectType::kPen), pen(logicalPen) {}

  [[nodiscard]] std::uint32_t getColor() const override { return pen.color; }
  [[nodiscard]] std::uint32_t getBrushStyle() const override { return 0; }

  /// @return the width in logical units.
  [[nodiscard]] std::uint32_t getWidth() const { return pen.width; }

  const ExtLogPen pen;
};

}  // namespace kelvane
