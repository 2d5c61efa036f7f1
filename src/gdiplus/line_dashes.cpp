#include "gdiplus/line_dashes.h"

#include <cmath>

namespace kelvane::gdiplus {
namespace {

/// Where one is in a row of dashes.
class Pattern {
 public:
  Pattern(std::span<const double> lengths, double offset) : lengths_(lengths) {
    while (offset >= lengths_[place_] && offset > 0) {
      offset -= lengths_[place_];
      Next();
    }
    left_ = lengths_[place_] - offset;
  }

  [[nodiscard]] bool IsDash() const { return place_ % 2 == 0; }
  [[nodiscard]] double Left() const { return left_; }
  void Go(double distance) { left_ -= distance; }
  void GoToNext() {
    Next();
    left_ = lengths_[place_];
  }

 private:
  void Next() { place_ = (place_ + 1) % lengths_.size(); }

  std::span<const double> lengths_;
  std::size_t place_ = 0;
  double left_ = 0;
};

}  // namespace

std::optional<std::vector<FlatLine>> DashesOf(const FlatLine& line, std::span<const double> dashes,
                                              double offset, std::size_t most) {
  std::vector<PointD> points = line.points;
  if (line.isClosed) points.push_back(points.front());
  std::vector<FlatLine> pieces;
  std::size_t changes = 0;
  Pattern pattern(dashes, offset);
  if (pattern.IsDash()) pieces.push_back({{points.front()}});
  for (std::size_t i = 1; i < points.size(); ++i) {
    const PointD from = points[i - 1];
    const PointD to = points[i];
    const double length = Distance(from, to);
    double done = 0;
    while (length - done > pattern.Left()) {
      if (++changes > 2 * most) return std::nullopt;
      done += pattern.Left();
      const double t = done / length;
      const PointD at = {from.x + t * (to.x - from.x), from.y + t * (to.y - from.y)};
      if (pattern.IsDash()) pieces.back().points.push_back(at);
      pattern.GoToNext();
      if (pattern.IsDash()) pieces.push_back({{at}});
    }
    pattern.Go(length - done);
    if (pattern.IsDash()) pieces.back().points.push_back(to);
  }
  return pieces;
}

}  // namespace kelvane::gdiplus
