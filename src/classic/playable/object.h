#pragma once

#include <cstdint>

namespace kelvane {

/// A graphics object of the metafile: a value copy of what a record described, without any drawing
/// resource.
class Object {
 public:
  enum class ObjectType : std::uint32_t {
    kPen = 0,
    kBrush = 1,  // solid, hatched or null
    kFont = 2,
    kPatternBrush = 3,
  };

  explicit Object(ObjectType objectType) : type(objectType) {}
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  /// @return the COLORREF: red in bits 0 to 7, green in 8 to 15, blue in 16 to 23.
  [[nodiscard]] virtual std::uint32_t getColor() const = 0;

  /// @return the BS_ brush style ([MS-WMF] 2.1.1.4).
  [[nodiscard]] virtual std::uint32_t getBrushStyle() const = 0;

  const ObjectType type;
};

}  // namespace kelvane
