#include "platform/svg/svg_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace kelvane {
namespace {

constexpr double kFarthest =
    1e9;  // in units, where no page reaches and single precision still does

/// Digits, and a point if any of those behind it count. @return whether they do.
bool AppendDigits(std::string& text, std::uint64_t steps, int decimals, std::uint64_t perUnit) {
  std::array<char, 24> digits;
  char* const start = digits.data();
  const std::uint64_t whole = steps / perUnit;
  std::uint64_t part = steps % perUnit;
  if (whole != 0 || part == 0) {
    text.append(start, std::to_chars(start, start + digits.size(), whole).ptr);
  }
  if (part == 0) return false;
  text += '.';
  for (; part % 10 == 0; part /= 10)
    --decimals;
  char* const end = std::to_chars(start, start + digits.size(), part).ptr;
  text.append(static_cast<std::size_t>(decimals - (end - start)), '0');
  text.append(start, end);
  return true;
}

/// One that is very large or very small, with an exponent.
void AppendAnyNumber(std::string& text, double value) {
  constexpr int kDigits = 6;
  std::array<char, 32> digits;
  char* const start = digits.data();
  text.append(
      start,
      std::to_chars(start, start + digits.size(), value, std::chars_format::general, kDigits).ptr);
}

}  // namespace

SvgGrid::SvgGrid(double extent) {
  constexpr double kSteps = 1e5;
  constexpr int kMostDecimals = 8;
  while (decimals_ < kMostDecimals && static_cast<double>(perUnit_) * extent < kSteps) {
    ++decimals_;
    perUnit_ *= 10;
  }
}

std::int64_t SvgGrid::Steps(double coordinate) const {
  return std::llround(std::clamp(coordinate, -kFarthest, kFarthest) *
                      static_cast<double>(perUnit_));
}

bool SvgGrid::Append(std::string& text, std::int64_t steps) const {
  if (steps < 0) text += '-';
  return AppendDigits(text, static_cast<std::uint64_t>(std::abs(steps)), decimals_,
                      static_cast<std::uint64_t>(perUnit_));
}

void AppendSvgNumber(std::string& text, double value) {
  constexpr double kTooLarge = 1e9;
  constexpr double kTooSmall = 1e-3;
  constexpr int kDigits = 6;
  const double size = std::abs(value);
  if (value != 0 && !(size >= kTooSmall && size < kTooLarge)) return AppendAnyNumber(text, value);
  int decimals = kDigits - 1;
  std::uint64_t perUnit = 100'000;
  for (double reach = 10; decimals > 0 && size >= reach; reach *= 10) {
    --decimals;
    perUnit /= 10;
  }
  for (double reach = 1; value != 0 && size < reach && reach > kTooSmall; reach /= 10) {
    ++decimals;
    perUnit *= 10;
  }
  const auto steps = static_cast<std::uint64_t>(std::llround(size * static_cast<double>(perUnit)));
  if (value < 0 && steps != 0) text += '-';
  AppendDigits(text, steps, decimals, perUnit);
}

void AppendSvgAttribute(std::string& text, const char* name, double value) {
  text.append(" ").append(name).append("=\"");
  AppendSvgNumber(text, value);
  text += '"';
}

void AppendSvgTransform(std::string& text, const char* name, const CGAffineTransform& transform) {
  if (transform == CGAffineTransformIdentity) return;
  text.append(" ").append(name).append("=\"matrix(");
  const char* between = "";
  for (const CGFloat element :
       {transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty}) {
    text += between;
    AppendSvgNumber(text, element);
    between = " ";
  }
  text += ")\"";
}

}  // namespace kelvane
