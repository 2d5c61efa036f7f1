#pragma once

#include <cstdint>
#include <cstdlib>
#include <utility>

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

/// Brush styles ([MS-WMF] 2.1.1.4) that playback tells apart: all others fill as a solid one does.
inline constexpr std::uint32_t kSolidBrushStyle = 0;
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

/// A font. It carries no colour: text is drawn in the context's text colour.
class ExtFontObject final : public Object {
 public:
  explicit ExtFontObject(ExtLogFontW logicalFont)
      : Object(ObjectType::kFont), font(std::move(logicalFont)) {}

  [[nodiscard]] std::uint32_t getColor() const override { return 0; }
  [[nodiscard]] std::uint32_t getBrushStyle() const override { return 0; }

  /// @return the absolute height in logical units.
  [[nodiscard]] std::uint32_t getHeight() const {
    return static_cast<std::uint32_t>(std::abs(static_cast<std::int64_t>(font.font.lfHeight)));
  }

  const ExtLogFontW font;
};

}  // namespace kelvane
