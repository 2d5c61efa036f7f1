#include "limits/clip_families.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kOffsetClipRgn = 26;
constexpr std::uint32_t kWidenPath = 66;
constexpr std::uint32_t kSelectRegion = 75;
constexpr std::uint32_t kSymmetric = 3;

Bytes RegionOf(const RectangleL& box, std::uint32_t mode) {
  const auto& [left, top, right, bottom] = box;
  Bytes region = Bytes().U32(48).U32(mode).U32(32).U32(1).U32(1).U32(16);
  return region.Rectangle(left, top, right, bottom).Rectangle(left, top, right, bottom);
}

}  // namespace

File OffsetClips(std::size_t size) {
  return Repeated(size, 16 + 24, [](Metafile& metafile, std::size_t i) {
    if (i == 0) metafile.Record(kSelectRegion, RegionOf({0, 0, 900, 900}, kRegionCopy));
    const std::int32_t step = i % 2 == 0 ? 1 : -1;
    metafile.Record(kOffsetClipRgn, Bytes().PointL(step, step)).Rectangle({1, 2, 3, 4});
  });
}

// Squares that lie across those before.
File XorClips(std::size_t size) {
  return Repeated(size, 64 + 24, [](Metafile& metafile, std::size_t i) {
    const std::int32_t left = Scattered(i);
    const std::int32_t top = Scattered(3 * i + 1);
    metafile.Record(kSelectRegion, RegionOf({left, top, left + 20, top + 20}, kSymmetric));
    metafile.Rectangle({1, 2, 3, 4});
  });
}

// A path of many lines, and marks under it.
File AClipOfAPath(std::size_t size) {
  Points points;
  for (std::size_t i = 0; i * 8 < size; ++i)
    points.push_back({Scattered(i), Signed(i % 1000)});
  Metafile metafile;
  metafile.Bounds(0, 0, 1024, 1024).BeginPath().Polygon(points).EndPath();
  metafile.SelectClipPath(kRegionCopy);
  for (std::size_t i = 0; i * 48 < size; ++i)
    metafile.Rectangle({Scattered(i), 2, Scattered(i + 1), 4});
  return metafile.Build();
}

File WidenedPaths(std::size_t size) {
  return Repeated(size, 8 + 44 + 8 + 8 + 24, [](Metafile& metafile, std::size_t i) {
    if (i == 0) metafile.CreatePen(2, 9, 0).SelectObject(2);
    const Points line = {
        {Scattered(i), 1}, {30, Scattered(i + 1)}, {1, 900}, {Scattered(i + 2), 2}};
    metafile.BeginPath().Polyline(line).EndPath().Record(kWidenPath).StrokePath();
  });
}

// One path, and its outline.
File AWidenedPath(std::size_t size) {
  Points points;
  for (std::size_t i = 0; i * 4 < size; ++i)
    points.push_back({Signed(i % 1000), Signed(i / 1000 * 3)});
  Metafile metafile;
  metafile.Bounds(0, 0, 1024, 1024).CreatePen(1, 2, 0).SelectObject(1);
  metafile.BeginPath().Polyline(points).EndPath().Record(kWidenPath);
  return metafile.StrokePath().Build();
}

}  // namespace kelvane::test
