#include "gdi/blit_strips.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "gdi/blit_images.h"
#include "gdi/blit_painting.h"

namespace kelvane {
namespace {

constexpr double kMostGap = 1.0 / 256;  // device units
constexpr double kMostSlip = 0.5;       // device units that a row may lie off its place
constexpr std::size_t kMostStrips = 1U << 16;

RectangleD PlaceOf(const Blit& blit) {
  const TransformD unit = UnitToDevice(blit);
  return {unit.dx, unit.dy, unit.dx + unit.m11, unit.dy + unit.m22};
}

bool IsUpright(const Blit& blit) {
  const TransformD& t = blit.toDevice;
  return t.m12 == 0 && t.m21 == 0 && t.m11 > 0 && t.m22 > 0;
}

bool IsPlain(const Blit& blit) {
  const Dib::Content kind = blit.dib.Kind();
  return IsUpright(blit) && !blit.cut && !blit.shown && !blit.dib.IsRunLengthEncoded() &&
         (kind == Dib::Content::kIndexed || kind == Dib::Content::kDirect);
}

bool AreClose(double a, double b, double tolerance) {
  return std::abs(a - b) <= tolerance;
}

bool HaveOneWidth(const Blit& a, const Blit& b) {
  const RectangleD one = PlaceOf(a);
  const RectangleD other = PlaceOf(b);
  return a.part.width == b.part.width && AreClose(one.left, other.left, kMostGap) &&
         AreClose(one.right, other.right, kMostGap);
}

/// @return whether rows are so nearly as high in both that none slips off its place.
bool HaveOneScale(const Blit& a, const Blit& b) {
  const double slip = std::abs(a.toDevice.m22 - b.toDevice.m22) *
                      static_cast<double>(std::max(a.part.height, b.part.height));
  return slip <= kMostSlip;
}

bool GoesDownwards(const Blit& from, const Blit& to) {
  return AreClose(PlaceOf(from).bottom, PlaceOf(to).top, kMostGap);
}
bool GoesUpwards(const Blit& from, const Blit& to) {
  return AreClose(PlaceOf(from).top, PlaceOf(to).bottom, kMostGap);
}

}  // namespace

bool GoesOn(std::span<const PendingBlit> strips, const Blit& next) {
  const Blit& first = strips.front().blit;
  const Blit& last = strips.back().blit;
  if (strips.size() >= kMostStrips || first.isSmooth != next.isSmooth) return false;
  if (!IsPlain(first) || !IsPlain(next)) return false;
  if (!HaveOneWidth(first, next) || !HaveOneScale(first, next)) return false;
  const bool isDownwards =
      strips.size() == 1 ? GoesDownwards(last, next) : GoesDownwards(first, strips[1].blit);
  return isDownwards ? GoesDownwards(last, next) : GoesUpwards(last, next);
}

void PaintStrips(DeviceContext& device, std::span<const PendingBlit> strips) {
  std::vector<DibPart> parts;
  std::size_t rows = 0;
  for (const PendingBlit& strip : strips) {
    parts.push_back({strip.blit.dib, strip.blit.part});
    rows += strip.blit.part.height;
  }
  const bool isDownwards = GoesDownwards(strips[0].blit, strips[1].blit);
  if (!isDownwards) std::ranges::reverse(parts);
  const Blit& top = isDownwards ? strips.front().blit : strips.back().blit;
  const Blit& bottom = isDownwards ? strips.back().blit : strips.front().blit;

  Blit whole = top;
  whole.part = {0, 0, top.part.width, rows};
  const RectangleD from = PlaceOf(top);
  const double height = PlaceOf(bottom).bottom - from.top;
  whole.toDevice = {top.toDevice.m11, 0,       0, height / static_cast<double>(rows),
                    from.left,        from.top};
  PaintImage(device, whole, ImageOf(parts, {}, top.isSmooth));
}

}  // namespace kelvane
