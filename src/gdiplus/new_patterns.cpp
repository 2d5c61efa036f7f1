#include "gdiplus/new_patterns.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace kelvane::gdiplus {
namespace {

template <class Value>
void AddBytes(std::string& bytes, const Value& value) {
  static_assert(std::is_trivially_copyable_v<Value>);
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

void AddShading(std::string& bytes, const CGAxialShading& shading) {
  AddBytes(bytes, shading.start);
  AddBytes(bytes, shading.end);
  for (const CGGradientStop& stop : shading.stops)
    AddBytes(bytes, stop);
}

void AddShading(std::string& bytes, const CGTriangleMesh& mesh) {
  for (const CGMeshVertex& vertex : mesh.vertices)
    AddBytes(bytes, vertex);
}

/// @param pattern  without shapes. @return a number that another one all but never has.
std::size_t HashOf(const CGPattern& pattern) {
  std::string bytes;
  AddBytes(bytes, pattern.matrix);
  AddBytes(bytes, pattern.gap);
  AddBytes(bytes, pattern.Columns());
  AddBytes(bytes, pattern.Rows());
  if (pattern.image != nullptr) AddBytes(bytes, pattern.image->serial);
  if (pattern.shading) {
    std::visit([&](const auto& shading) { AddShading(bytes, shading); }, *pattern.shading);
  }
  return std::hash<std::string_view>{}(bytes);
}

}  // namespace

std::optional<Paint> UnlessTooMany(Graphics& graphics, std::optional<Paint> paint) {
  if (!paint || paint->pattern == nullptr) return paint;
  const std::size_t hash = HashOf(*paint->pattern);
  if (graphics.patterns.contains(hash)) return paint;
  if (!graphics.canvas->AffordPattern()) {
    graphics.shortfalls.Add(Shortfall::kDrawnTooOften);
    return std::nullopt;
  }
  graphics.patterns.insert(hash);
  return paint;
}

}  // namespace kelvane::gdiplus
