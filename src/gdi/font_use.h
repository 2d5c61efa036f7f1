#pragma once

#include <string>
#include <tuple>

namespace kelvane {

/// What became of a name of a font. Names are UTF-8.
struct FontUse {
  std::string asked;
  std::string used;  // the family of the face that is drawn from

  friend bool operator==(const FontUse&, const FontUse&) = default;
  friend bool operator<(const FontUse& one, const FontUse& other) {
    return std::tie(one.asked, one.used) < std::tie(other.asked, other.used);
  }
};

}  // namespace kelvane
