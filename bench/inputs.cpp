#include "inputs.h"

#include <array>
#include <cmath>

#include "support/metafile.h"

namespace kelvane::bench {
namespace {

using test::At;
using test::Metafile;
using test::Points;

constexpr std::size_t kPointsInARecord = 301;  // a move and a hundred Bezier curves

/// The n-th point of a long winding line over the page; coordinates have up to five digits.
At PointAt(std::size_t n) {
  const auto turn = static_cast<double>(n);
  return {static_cast<std::int32_t>(std::lround(16000 + 15900 * std::sin(turn / 7))),
          static_cast<std::int32_t>(std::lround(16000 + 15900 * std::cos(turn / 11)))};
}

Points PointsFrom(std::size_t first) {
  Points points;
  for (std::size_t i = 0; i < kPointsInARecord; ++i)
    points.push_back(PointAt(first + i));
  return points;
}

/// Adds about `bytes` of records; `add` is given the number of the record.
template <class Add>
Metafile Filled(std::size_t bytes, std::size_t recordSize, const Add& add) {
  Metafile metafile;
  metafile.Bounds(0, 0, 32000, 32000);
  for (std::size_t i = 0; i < bytes / recordSize; ++i)
    add(metafile, i);
  return metafile;
}

constexpr std::size_t kPolySize = 28 + 4 * kPointsInARecord;
constexpr std::size_t kLineSize = 16;

Metafile Polylines(std::size_t bytes) {
  return Filled(bytes, kPolySize, [](Metafile& metafile, std::size_t i) {
    metafile.Polyline(PointsFrom(i * kPointsInARecord));
  });
}

Metafile Polybeziers(std::size_t bytes) {
  return Filled(bytes, kPolySize, [](Metafile& metafile, std::size_t i) {
    metafile.Polybezier(PointsFrom(i * kPointsInARecord));
  });
}

Metafile Lines(std::size_t bytes) {
  return Filled(bytes, 2 * kLineSize, [](Metafile& metafile, std::size_t i) {
    const At from = PointAt(i);
    const At to = PointAt(i + 1);
    metafile.MoveTo(from.x, from.y).LineTo(to.x, to.y);
  });
}

}  // namespace

std::vector<Input> AllInputs() {
  std::vector<Input> inputs;
  for (const auto& [size, bytes] : {std::pair{"20KB", 20'000U}, std::pair{"10MB", 10'000'000U}}) {
    inputs.push_back({std::string("polyline16/") + size, Polylines(bytes).Build()});
    inputs.push_back({std::string("polybezier16/") + size, Polybeziers(bytes).Build()});
    inputs.push_back({std::string("moveto-lineto/") + size, Lines(bytes).Build()});
  }
  return inputs;
}

Input EmptyPage() {
  return {"empty-page", Metafile().Build()};
}

}  // namespace kelvane::bench
