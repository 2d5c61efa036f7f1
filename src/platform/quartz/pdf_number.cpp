#include "platform/quartz/pdf_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace kelvane {

char* WriteNumber(char* out, float value) {
  // Most coordinates are whole; every whole float below 2^24 has its integer's digits.
  constexpr float kExactIntegers = 16777216;
  char* const end = out + kNumberRoom;
  if (std::abs(value) < kExactIntegers) {
    const int whole = static_cast<int>(value);
    if (static_cast<float>(whole) == value) return std::to_chars(out, end, whole).ptr;
  }
  if (std::isnan(value)) value = 0;
  constexpr float kLargest = std::numeric_limits<float>::max();
  value = std::clamp(value, -kLargest, kLargest);
  char* last = std::to_chars(out, end, value, std::chars_format::fixed).ptr;
  // Readers take a number without a point for an integer and refuse one that no integer of theirs
  // can hold.
  constexpr float kIntegerLimit = 0x1p63F;
  if (std::abs(value) >= kIntegerLimit) *last++ = '.';
  return last;
}

}  // namespace kelvane
