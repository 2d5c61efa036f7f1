#pragma once

#include <compare>
#include <string>

namespace kelvane {

/// What became of a name of a font. Names are UTF-8.
struct FontUse {
  std::string asked;
  std::string used;  // the family of the face that is drawn from

  friend auto operator<=>(const FontUse&, const FontUse&) = default;
};

}  // namespace kelvane
