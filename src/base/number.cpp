#include "base/number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace kelvane {
namespace {

constexpr int kShades = 256;

/// Writes `shade` / 256: colours are made of such fractions, and all digits of one make its
/// shortest decimal.
/// @param shade  not 0, from -255 to 255.
char* WriteShade(char* out, int shade) {
  constexpr int kDigits = 8;
  constexpr unsigned kHundredMillionths = 390625;  // in a shade
  if (shade < 0) *out++ = '-';
  *out++ = '0';
  *out++ = '.';
  unsigned rest = static_cast<unsigned>(std::abs(shade)) * kHundredMillionths;
  int digits = kDigits;
  for (; rest % 10 == 0; rest /= 10)
    --digits;
  for (char* digit = out + digits; digit != out; rest /= 10)
    *--digit = static_cast<char>('0' + rest % 10);
  return out + digits;
}

/// Writes a count of parts of one, of which some are left over, without zeros at the end.
/// @tparam kDigits  decimals; 10 to their power are the parts of one.
template <int kDigits>
char* WriteParts(char* out, char* end, int parts) {
  constexpr int kPartsOfOne = kDigits == 3 ? 1000 : 100;
  if (parts < 0) *out++ = '-';
  const int count = std::abs(parts);
  out = std::to_chars(out, end, count / kPartsOfOne).ptr;
  *out++ = '.';
  int rest = count % kPartsOfOne;
  int digits = kDigits;
  for (; rest % 10 == 0; rest /= 10)
    --digits;
  for (char* digit = out + digits; digit != out; rest /= 10)
    *--digit = static_cast<char>('0' + rest % 10);
  return out + digits;
}

}  // namespace

char* WriteNumber(char* out, float value) {
  // Most coordinates are whole; every whole float below 2^24 has its integer's digits.
  constexpr float kExactIntegers = 16777216;
  char* const end = out + kNumberRoom;
  if (std::abs(value) < kExactIntegers) {
    const int whole = static_cast<int>(value);
    if (static_cast<float>(whole) == value) return std::to_chars(out, end, whole).ptr;
  }
  if (std::abs(value) < 1) {
    const float shades = value * kShades;
    const int whole = static_cast<int>(shades);
    if (static_cast<float>(whole) == shades) return WriteShade(out, whole);
  }
  // Below these, values a part apart are different numbers, so one that is the closest to a count
  // of parts has these for its shortest decimal.
  constexpr float kTellsThousandths = 16384;
  constexpr float kTellsHundredths = 131072;
  if (std::abs(value) < kTellsThousandths) {
    const auto thousandths = static_cast<int>(std::lrintf(value * 1000));
    if (static_cast<float>(thousandths) / 1000 == value)
      return WriteParts<3>(out, end, thousandths);
  } else if (std::abs(value) < kTellsHundredths) {
    const auto hundredths = static_cast<int>(std::lrintf(value * 100));
    if (static_cast<float>(hundredths) / 100 == value) return WriteParts<2>(out, end, hundredths);
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
