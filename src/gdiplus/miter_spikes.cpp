#include "gdiplus/miter_spikes.h"

#include <initializer_list>

#include "gdi/exactly.h"

namespace kelvane::gdiplus {
namespace {

/// Goes along figures and looks at each corner.
class CornerWatch {
 public:
  CornerWatch(const TransformD& toPen, double limit)
      : toPen_(toPen), leastDot_(2 / (limit * limit) - 1) {}

  void Start(CGPoint point) {
    first_ = at_ = toPen_.Map(Exactly(point));
    firstDirection_ = direction_ = kNone;
  }

  void GoTo(CGPoint point) { Turn(toPen_.Map(Exactly(point))); }

  void Close() {
    Turn(first_);
    if (firstDirection_ != kNone) Look(firstDirection_);
    firstDirection_ = direction_ = kNone;
  }

  [[nodiscard]] bool HasFound() const { return hasFound_; }

 private:
  static constexpr PointD kNone = {0, 0};

  void Turn(PointD to) {
    const double length = Distance(at_, to);
    if (length == 0) return;
    const PointD direction = {(to.x - at_.x) / length, (to.y - at_.y) / length};
    Look(direction);
    if (firstDirection_ == kNone) firstDirection_ = direction;
    direction_ = direction;
    at_ = to;
  }

  /// The cosine of half of the turn is what a miter's length is divided by.
  void Look(PointD out) {
    if (direction_ == kNone) return;
    if (direction_.x * out.x + direction_.y * out.y < leastDot_) hasFound_ = true;
  }

  const TransformD& toPen_;
  double leastDot_;
  PointD first_;
  PointD at_;
  PointD firstDirection_ = kNone;
  PointD direction_ = kNone;
  bool hasFound_ = false;
};

}  // namespace

bool HasSpikes(const CGPath& path, const TransformD& toPen, double limit) {
  CornerWatch watch(toPen, limit);
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    switch (element) {
      case CGPath::Element::kMove:
        return watch.Start(points[0]);
      case CGPath::Element::kLine:
        return watch.GoTo(points[0]);
      case CGPath::Element::kCurve:
        // Within it turns are gentle but for cusps, where its controls turn around, too.
        for (int i = 0; i < 3; ++i)
          watch.GoTo(points[i]);
        return;
      case CGPath::Element::kClose:
        return watch.Close();
      case CGPath::Element::kRectangle: {
        const CGPoint far = {points[0].x + points[1].x, points[0].y + points[1].y};
        watch.Start(points[0]);
        for (const CGPoint corner : {CGPoint{far.x, points[0].y}, far, {points[0].x, far.y}})
          watch.GoTo(corner);
        return watch.Close();
      }
    }
  });
  return watch.HasFound();
}

}  // namespace kelvane::gdiplus
