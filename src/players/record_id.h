#pragma once

#include <cstdint>
#include <string_view>
#include <tuple>

namespace kelvane {

/// Whose numbers the types of records are.
enum class RecordFormat : std::uint8_t { kEmf, kEmfPlus, kWmf, kSpool };

/// A kind of records, known or not.
struct RecordId {
  RecordFormat format;
  std::uint32_t type;

  friend bool operator==(const RecordId&, const RecordId&) = default;
  friend bool operator<(const RecordId& a, const RecordId& b) {
    return std::tie(a.format, a.type) < std::tie(b.format, b.type);
  }
};

/// @return the name in its format's description; empty for a type that is none.
std::string_view NameOf(const RecordId& record);

}  // namespace kelvane
