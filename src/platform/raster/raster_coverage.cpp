#include "platform/raster/raster_coverage.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>

#include "platform/raster/raster_pixel.h"

namespace kelvane {
namespace {

/// @return how much of a pixel is within, 0 to 1.
float Covered(float winding, bool isEvenOdd) {
  const float size = std::abs(winding);
  if (!isEvenOdd) return std::min(size, 1.0F);
  const float rest = size - 2 * std::floor(size / 2);
  return rest > 1 ? 2 - rest : rest;
}

}  // namespace

RasterCoverage::RasterCoverage(const RasterMask& mask)
    : mask_(mask),
      width_(static_cast<std::size_t>(mask.Width()) + 2),
      steps_(width_ * static_cast<std::size_t>(mask.Height())) {}

void RasterCoverage::Move(RasterPoint to) {
  Close();
  start_ = at_ = to;
}

void RasterCoverage::Line(RasterPoint to) {
  const RasterPoint from = {at_.x - mask_.Left(), at_.y - mask_.Top()};
  const RasterPoint end = {to.x - mask_.Left(), to.y - mask_.Top()};
  at_ = to;
  if (from.y < end.y) AddDownwards(from, end, 1);
  if (from.y > end.y) AddDownwards(end, from, -1);
}

void RasterCoverage::Fill(bool isEvenOdd) {
  Close();
  const PixelRows pixels(mask_.Pixels());
  for (std::size_t y = 0; y < static_cast<std::size_t>(mask_.Height()); ++y) {
    const float* step = &steps_[y * width_];
    float winding = 0;
    for (std::uint8_t& pixel : pixels.Bytes(y)) {
      winding += *step++;
      pixel = static_cast<std::uint8_t>(std::lround(Covered(winding, isEvenOdd) * 255));
    }
  }
}

/// @param winding  1, or -1 for a line that goes upwards.
void RasterCoverage::AddDownwards(RasterPoint from, RasterPoint to, float winding) {
  const double slope = (to.x - from.x) / (to.y - from.y);
  const double first = std::max(from.y, 0.0);
  const double last = std::min<double>(to.y, mask_.Height());
  for (double top = first; top < last;) {
    const double row = std::floor(top);
    const double bottom = std::min(row + 1, last);
    AddToRow(static_cast<std::size_t>(row), from.x + (top - from.y) * slope,
             from.x + (bottom - from.y) * slope, winding * static_cast<float>(bottom - top));
    top = bottom;
  }
}

/// Adds a part of a line. What lies to the left of the mask counts as if it were at its edge; what
/// lies to the right does not count.
/// @param from, to  where it enters the row and leaves it. @param height  of the part, with the
///                  sign of its winding.
void RasterCoverage::AddToRow(std::size_t row, double from, double to, float height) {
  float* const steps = &steps_[row * width_];
  const double left = std::min(from, to);
  const double right = std::max(from, to);
  const double end = mask_.Width();
  const double inverse = right > left ? 1 / (right - left) : 0;
  const auto add = [&](std::size_t pixel, double start, double stop) {
    const auto before = static_cast<float>((start + stop) / 2 - static_cast<double>(pixel));
    const float part = inverse > 0 ? height * static_cast<float>((stop - start) * inverse) : height;
    steps[pixel] += part * (1 - before);
    steps[pixel + 1] += part * before;
  };
  if (left >= end) return;
  if (right <= 0) {
    steps[0] += height;
    return;
  }
  if (left < 0) steps[0] += height * static_cast<float>(-left * inverse);
  double start = std::max(left, 0.0);
  const double stop = std::min(right, end);
  do {
    const double pixel = std::floor(start);
    const double next = std::min(pixel + 1, stop);
    add(static_cast<std::size_t>(pixel), start, next);
    start = next;
  } while (start < stop);
}

}  // namespace kelvane
