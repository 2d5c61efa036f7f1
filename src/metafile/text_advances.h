#pragma once

#include <cstddef>
#include <cstdint>
#include <variant>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"

namespace kelvane {
inline namespace metafile {

/// How far the pen moves after each unit of a text, in numbers as wide as the file has them.
template <class Number>
struct TextAdvances {
  ArrayView<Number> values;  // logical units; empty when the face is to say
  bool arePairs = false;     // whether each unit has two values, dx and dy

  [[nodiscard]] constexpr bool IsEmpty() const { return values.empty(); }
  [[nodiscard]] constexpr std::int32_t Dx(std::size_t unit) const {
    return values[arePairs ? 2 * unit : unit];
  }
  [[nodiscard]] constexpr std::int32_t Dy(std::size_t unit) const {
    return arePairs ? values[2 * unit + 1] : 0;
  }
};

using AnyTextAdvances = std::variant<TextAdvances<std::int32_t>, TextAdvances<std::int16_t>>;

/// Some writers set ETO_PDY and store dx alone: then there is room for no more.
/// @param offset  of the advances, from the first of all bytes. @param units  of the text.
/// @return what is there for every unit, or nothing.
template <class Number>
constexpr TextAdvances<Number> AdvancesAt(ByteView bytes, std::size_t offset, std::size_t units,
                                          ExtTextOutOptions options) {
  const std::uint64_t size = std::uint64_t{units} * sizeof(Number);
  if ((options & ETO_PDY) != 0 && bytes.Holds(offset, 2 * size))
    return {bytes.ArrayAt<Number>(offset, units * 2), true};
  if (!bytes.Holds(offset, size)) return {};
  return {bytes.ArrayAt<Number>(offset, units), false};
}

}  // namespace metafile
}  // namespace kelvane
