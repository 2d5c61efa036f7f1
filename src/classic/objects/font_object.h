#pragma once

#include <cstdint>
#include <cstdlib>
#include <utility>

#include "classic/playable/object.h"
#include "classic/reader/gdi_structures.h"

namespace kelvane {

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
