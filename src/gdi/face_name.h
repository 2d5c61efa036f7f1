#pragma once

#include <algorithm>
#include <string_view>

namespace kelvane {

/// @return whether two names of faces are the same without regard to the case of Latin letters.
constexpr bool IsSameFaceName(std::u16string_view one, std::u16string_view other) {
  constexpr auto lower = [](char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
  };
  return std::ranges::equal(one, other, {}, lower, lower);
}

}  // namespace kelvane
