#include "platform/quartz/cg_ground.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kelvane {
namespace {

/// Edges that lie so close together are one. Points.
constexpr double kClose = 1.0 / 128;

/// How far the thinnest line of any output reaches. Points.
constexpr double kHair = 1;

bool Holds(const CGBox& outer, const CGBox& inner) {
  return inner.left >= outer.left - kClose && inner.bottom >= outer.bottom - kClose &&
         inner.right <= outer.right + kClose && inner.top <= outer.top + kClose;
}

double SizeOf(const CGBox& box) {
  return (box.right - box.left) * (box.top - box.bottom);
}

bool AreApart(const CGBox& a, const CGBox& b) {
  return Grown(Intersection(a, b), -kClose / 2).IsEmpty();
}

/// Whether four points, in this order, are the corners of an upright rectangle.
bool AreUpright(const std::array<CGPoint, 5>& p) {
  const bool beginsAcross =
      p[0].y == p[1].y && p[1].x == p[2].x && p[2].y == p[3].y && p[3].x == p[0].x;
  const bool beginsUpwards =
      p[0].x == p[1].x && p[1].y == p[2].y && p[2].x == p[3].x && p[3].y == p[0].y;
  return beginsAcross || beginsUpwards;
}

/// @return whether a path is one upright rectangle, so that its box is all of it.
bool IsRectangle(const CGPath& path) {
  const CGPath::Progress size = path.Reached();
  constexpr std::size_t kMostElements = 6;  // a move, four lines, the closing
  if (size.elements == 0 || size.elements > kMostElements) return false;
  std::array<CGPoint, 5> corners;
  std::size_t count = 0;
  bool isPlain = true;
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    if (element == CGPath::Element::kClose) return;
    isPlain = isPlain && element != CGPath::Element::kCurve && count < corners.size();
    if (!isPlain) return;
    if (element == CGPath::Element::kMove) isPlain = count == 0;
    corners[count++] = points[0];
  });
  if (!isPlain) return false;
  if (size.elements == 1) return size.points == 2;  // a whole one
  const bool isBack = count == 5 && corners[4] == corners[0];
  return (count == 4 || isBack) && AreUpright(corners);
}

/// @return what all clips leave, when that is one rectangle.
std::optional<CGBox> RectangleOf(std::span<const CGClip> clips) {
  constexpr std::size_t kMostClips = 8;
  const auto isRectangle = [](const CGClip& clip) { return IsRectangle(clip.area); };
  if (clips.size() > kMostClips || !std::ranges::all_of(clips, isRectangle)) return std::nullopt;
  return BoxOf(clips);
}

bool Covers(const CGGraphicsState& state, CGPathDrawingMode mode) {
  return Fills(mode) && state.fillPattern == nullptr && state.fillColor.alpha == 1 &&
         state.alpha == 1 && state.blendMode == kCGBlendModeNormal;
}

}  // namespace

void CGGround::PathPainted(const CGGraphicsState& state, std::span<const CGClip> clips,
                           const CGPath& path, CGPathDrawingMode mode) {
  CGBox box = BoxOf(path);
  const bool isRectangle = IsRectangle(path);
  if (Strokes(mode)) {
    // The miters of an upright rectangle reach no farther than its sides.
    box = Grown(box, kHair + (isRectangle ? StrokeMargin(state) : StrokeReach(state)));
  }
  Disturb(box);
  if (!isRectangle || !Covers(state, mode)) return;
  box = BoxOf(path);
  if (Strokes(mode)) box = Grown(box, -StrokeMargin(state) - kHair);
  if (!clips.empty()) {
    const auto clip = RectangleOf(clips);
    if (!clip) return;
    box = Intersection(box, *clip);
  }
  if (!box.IsEmpty()) Add(box, state.fillColor);
}

void CGGround::Disturb(const CGBox& box) {
  constexpr double kMostWaste = 1.25;
  if (!areas_.empty() && !areas_.back().color) {
    const CGBox both = Hull(areas_.back().box, box);
    if (SizeOf(both) <= kMostWaste * (SizeOf(areas_.back().box) + SizeOf(box))) {
      areas_.back().box = both;
      return;
    }
  }
  Add(box, std::nullopt);
}

void CGGround::Add(const CGBox& box, const std::optional<CGColor>& color) {
  constexpr std::size_t kMostAreas = 32;
  std::erase_if(areas_, [&](const Area& area) { return Holds(box, area.box); });
  areas_.push_back({box, color});
  if (areas_.size() > kMostAreas) ForgetOlderHalf();
}

void CGGround::ForgetOlderHalf() {
  const auto middle = areas_.begin() + static_cast<std::ptrdiff_t>(areas_.size() / 2);
  CGBox hull = areas_.front().box;
  for (auto area = areas_.begin(); area != middle; ++area)
    hull = Hull(hull, area->box);
  *areas_.begin() = {hull, std::nullopt};
  areas_.erase(areas_.begin() + 1, middle);
}

std::optional<CGColor> CGGround::ColorOf(const CGBox& box) const {
  const auto newest = std::find_if(areas_.rbegin(), areas_.rend(), [&](const Area& area) {
    return Holds(area.box, box) || !AreApart(area.box, box);
  });
  if (newest == areas_.rend()) return paper_;
  return Holds(newest->box, box) ? newest->color : std::nullopt;
}

}  // namespace kelvane
