#pragma once

#include <bitset>
#include <ostream>
#include <random>
#include <utility>
#include <vector>

#include "gdi/region.h"

namespace kelvane {

/// The pixels of a small square. It is so small that the edges of random rectangles often meet.
constexpr int kGridSize = 8;
using Pixels = std::bitset<std::size_t{kGridSize} * kGridSize>;

inline constexpr RegionMode kRegionModes[] = {RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF, RGN_COPY};

inline Pixels CombinePixels(const Pixels& a, const Pixels& b, RegionMode mode) {
  switch (mode) {
    case RGN_AND:
      return a & b;
    case RGN_OR:
      return a | b;
    case RGN_XOR:
      return a ^ b;
    case RGN_DIFF:
      return a & ~b;
    case RGN_COPY:
      return b;
  }
  return {};
}

inline RectangleD RectangleOfPixel(int index) {
  const int column = index % kGridSize;
  const int row = index / kGridSize;
  return {static_cast<double>(column), static_cast<double>(row), column + 1.0, row + 1.0};
}

inline bool Contains(const Region& region, PointD point) {
  return region.Contains(point);
}

template <class Shape>
Pixels PixelsOf(const Shape& shape) {
  Pixels pixels;
  for (int i = 0; i < kGridSize * kGridSize; ++i) {
    const RectangleD pixel = RectangleOfPixel(i);
    pixels[static_cast<std::size_t>(i)] =
        Contains(shape, PointD{pixel.left + 0.5, pixel.top + 0.5});
  }
  return pixels;
}

/// Up to six rectangles on the grid, some of them empty.
inline std::vector<RectangleD> RandomRectangles(std::mt19937& random) {
  const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(random); };
  std::vector<RectangleD> rectangles(static_cast<std::size_t>(upTo(6)));
  for (RectangleD& r : rectangles) {
    r.left = upTo(kGridSize - 1);
    r.top = upTo(kGridSize - 1);
    r.right = r.left + upTo(kGridSize - static_cast<int>(r.left));
    r.bottom = r.top + upTo(kGridSize - static_cast<int>(r.top));
  }
  return rectangles;
}

inline Region UnionOf(const std::vector<RectangleD>& rectangles) {
  Steps steps(1U << 24);
  return Region::Union(rectangles, steps).value();
}

/// The empty region, the whole grid, and random ones.
inline std::vector<Region> GridRegions(std::size_t count) {
  std::mt19937 random(20);  // NOLINT: the same regions in every run
  std::vector<Region> regions = {Region(), Region({0, 0, kGridSize, kGridSize})};
  while (regions.size() < count)
    regions.push_back(UnionOf(RandomRectangles(random)));
  return regions;
}

inline std::ostream& operator<<(std::ostream& out, const RectangleD& r) {
  return out << '[' << r.left << ' ' << r.top << ' ' << r.right << ' ' << r.bottom << ']';
}

inline std::ostream& operator<<(std::ostream& out, const Region& region) {
  out << '{';
  region.ForEachRectangle([&](const RectangleD& rectangle) { out << rectangle; });
  return out << '}';
}

}  // namespace kelvane
