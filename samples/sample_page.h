#pragma once

#include <array>
#include <cstdint>

#include "support/metafile.h"

namespace kelvane::samples {

enum Ink : std::uint32_t { kNight, kSky, kLeaf, kGold, kCoral, kSand, kBrown, kWhite };

inline constexpr std::array kColors = {test::Rgb(38, 50, 86),   test::Rgb(164, 208, 232),
                                       test::Rgb(104, 159, 98), test::Rgb(246, 196, 83),
                                       test::Rgb(226, 109, 90), test::Rgb(240, 222, 188),
                                       test::Rgb(125, 88, 66),  test::Rgb(255, 255, 255)};

// Where the page's object table holds the brush and the pen of a colour.
constexpr std::uint32_t Brush(Ink ink) {
  return 1 + ink;
}
constexpr std::uint32_t Pen(Ink ink) {
  return static_cast<std::uint32_t>(1 + kColors.size() + ink);
}
inline constexpr std::uint32_t kFirstFreeIndex = 1 + 2 * kColors.size();

/// How ModifyWorldTransform combines its transform with the current one.
inline constexpr std::int32_t kApplyFirst = 2;
inline constexpr std::int32_t kReplace = 4;

/// How SelectClipPath combines the path with the clip.
inline constexpr std::uint32_t kIntersect = 1;

/// A page of 480 by 320 with a brush and a pen, 2 wide, of every colour in the object table.
test::Metafile Page();

void Select(test::Metafile& page, Ink fill, Ink outline);

double Radians(double degrees);

/// The point at a distance and direction, counter-clockwise from the right, as it is seen.
test::At Polar(test::At centre, double radius, double degrees);

/// A figure of straight edges between `count` points on a circle, `step` points apart, back at its
/// start.
test::Points Star(test::At centre, double radius, int count, int step);

/// Turns by `degrees`, scales evenly, then moves the origin to `origin`.
XForm Turned(double degrees, double scale, test::At origin);

}  // namespace kelvane::samples
