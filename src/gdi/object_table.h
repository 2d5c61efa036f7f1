#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

#include "gdi/brush.h"
#include "gdi/palette.h"
#include "gdi/pen.h"
#include "metafile/gdi_objects.h"

namespace kelvane {

/// An object, shared with the contexts' states in which it is selected: deleting it takes it out of
/// the table and nowhere else. Only palettes change once they are there.
using GdiObject =
    std::variant<std::monostate, std::shared_ptr<const Pen>, std::shared_ptr<const Brush>,
                 std::shared_ptr<const LogFont>, std::shared_ptr<Palette>>;

/// Objects by their handles: what a file creates at indexes of its choice, and the stock objects.
class ObjectTable {
 public:
  ObjectTable();

  /// Puts an object at an index, in the place of the one that is there. Index 0, which stands for
  /// the picture itself, and those that no header can ask for are passed over.
  void Set(std::uint32_t index, Pen pen);
  void Set(std::uint32_t index, Brush brush);
  void Set(std::uint32_t index, const LogFont& font);
  void Set(std::uint32_t index, Palette palette);

  /// Nothing happens to stock objects, nor where there is none.
  void Delete(std::uint32_t handle);

  /// @param handle  an index, or a stock object. @return null when there is none of that kind.
  template <class T>
  [[nodiscard]] std::shared_ptr<T> Find(std::uint32_t handle) const {
    const auto* object = std::get_if<std::shared_ptr<T>>(&At(handle));
    return object != nullptr ? *object : nullptr;
  }

 private:
  static constexpr std::size_t kMostObjects = 0x10000;  // the header counts them in 16 bits
  static constexpr std::size_t kStockObjects = 20;

  [[nodiscard]] const GdiObject& At(std::uint32_t handle) const;
  void Put(std::uint32_t index, GdiObject object);
  GdiObject& Stock(StockObject handle);
  void MakeStockFonts();

  std::array<GdiObject, kStockObjects> stock_;  // those without a meaning are nothing
  std::vector<GdiObject> objects_;              // by index, up to the highest used
};

}  // namespace kelvane
