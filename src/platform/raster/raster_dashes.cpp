#include "platform/raster/raster_dashes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

#include "platform/raster/raster_geometry.h"

namespace kelvane {
namespace {

/// A part of a line, 0 to 1.
struct Part {
  double from = 0;
  double to = 1;

  /// Leaves what lies beyond an edge out. @param start  how far within the edge the line starts.
  void Cut(double start, double end) {
    if (start < 0 && end < 0) {
      to = from;
    } else if (start < 0) {
      from = std::max(from, start / (start - end));
    } else if (end < 0) {
      to = std::min(to, start / (start - end));
    }
  }
};

Part PartWithin(const RasterBox& box, RasterPoint a, RasterPoint b) {
  Part part;
  part.Cut(a.x - box.left, b.x - box.left);
  part.Cut(box.right - a.x, box.right - b.x);
  part.Cut(a.y - box.top, b.y - box.top);
  part.Cut(box.bottom - a.y, box.bottom - b.y);
  return part;
}

/// Where one is in a row of dashes.
class DashPlace {
 public:
  explicit DashPlace(const RasterDashes& dashes)
      : lengths_(dashes.lengths),
        period_(std::accumulate(lengths_.begin(), lengths_.end(), 0.0)),
        left_(lengths_.front()) {
    const double phase = std::fmod(dashes.phase, period_);
    Go(phase < 0 ? phase + period_ : phase);
  }

  [[nodiscard]] bool IsDash() const { return at_ % 2 == 0; }
  [[nodiscard]] double Left() const { return left_; }

  void GoToNext() {
    at_ = (at_ + 1) % lengths_.size();
    left_ = lengths_[at_];
  }

  /// Any distance in no more steps than there are lengths.
  void Go(double distance) {
    double rest = distance < left_ ? distance : std::fmod(distance, period_);
    for (std::size_t i = 0; i <= lengths_.size() && rest >= left_; ++i) {
      rest -= left_;
      GoToNext();
    }
    left_ -= std::min(rest, left_);
  }

 private:
  std::span<const double> lengths_;
  double period_;
  std::size_t at_ = 0;
  double left_;
};

/// Draws a line's dashes, as far as they can be seen.
class Dasher {
 public:
  /// @param left  how many dashes and gaps there may still be.
  Dasher(const RasterDashes& dashes, const RasterBox& seen, std::size_t& left, RasterFigures& drawn)
      : drawn_(drawn),
        dashes_(dashes),
        seen_(seen),
        left_(left),
        inverse_(CGAffineTransformInvert(dashes.toPixels)),
        place_(dashes) {}

  void Move(RasterPoint to) {
    EndFigure();
    start_ = at_ = to;
    place_ = DashPlace(dashes_);
    isFirst_ = place_.IsDash();
  }

  void Line(RasterPoint to) {
    const double length = Length(to);
    if (length == 0) return AddPoint();
    const Part seen = PartWithin(seen_, at_, to);
    if (seen.from >= seen.to) {
      Skip(length);
    } else {
      if (seen.from > 0) Skip(seen.from * length);
      DrawSeen(to, length, seen);
      if (seen.to < 1) Skip((1 - seen.to) * length);
    }
    at_ = to;
  }

  /// The line's end meets its start: of dashes there, one goes on in the other.
  void Close() {
    Line(start_);
    if (!piece_.empty() && !first_.empty() && first_.front() == piece_.back()) {
      piece_.insert(piece_.end(), first_.begin() + 1, first_.end());
      first_.clear();
    }
    EndFigure();
  }

  void EndFigure() {
    EndPiece();
    Draw(first_);
  }

 private:
  [[nodiscard]] double Length(RasterPoint to) const {
    const double x = to.x - at_.x;
    const double y = to.y - at_.y;
    return std::hypot(inverse_.a * x + inverse_.c * y, inverse_.b * x + inverse_.d * y);
  }

  /// A line without length has caps, if nothing else.
  void AddPoint() {
    if (place_.IsDash() && piece_.empty()) piece_ = {at_, at_};
  }

  void Skip(double length) {
    EndPiece();
    isFirst_ = false;
    place_.Go(length);
  }

  void DrawSeen(RasterPoint to, double length, const Part& seen) {
    const auto at = [&](double part) {
      return RasterPoint{at_.x + part * (to.x - at_.x), at_.y + part * (to.y - at_.y)};
    };
    const double end = seen.to * length;
    double done = seen.from * length;
    const bool isSolid = left_ == 0 || AreTooShort(to, length);
    const bool isDrawn = isSolid || place_.IsDash();
    if (!isDrawn) EndPiece();  // of a solid line
    if (isDrawn && piece_.empty()) piece_.push_back(at(seen.from));
    for (; !isSolid && left_ > 0 && end - done > place_.Left(); --left_) {
      done += place_.Left();
      Change(at(done / length));
    }
    place_.Go(end - done);
    if (!piece_.empty()) piece_.push_back(at(seen.to));
  }

  /// From a dash to a gap, or back.
  void Change(RasterPoint at) {
    if (place_.IsDash()) {
      piece_.push_back(at);
      EndPiece();
    }
    isFirst_ = false;
    place_.GoToNext();
    if (place_.IsDash()) piece_.push_back(at);
  }

  /// Where a pen is squeezed so much that no dash can be seen, a line is solid.
  [[nodiscard]] bool AreTooShort(RasterPoint to, double length) const {
    constexpr double kShortest = 1.0 / 16;  // pixels
    const double pixels = std::hypot(to.x - at_.x, to.y - at_.y);
    const double mean = std::accumulate(dashes_.lengths.begin(), dashes_.lengths.end(), 0.0) /
                        static_cast<double>(dashes_.lengths.size());
    return mean * pixels < kShortest * length;
  }

  void EndPiece() {
    if (isFirst_) {
      first_ = std::exchange(piece_, {});
      isFirst_ = false;
    } else {
      Draw(piece_);
    }
  }

  void Draw(std::vector<RasterPoint>& piece) {
    if (!piece.empty()) drawn_.Add(piece);
    piece.clear();
  }

  RasterFigures& drawn_;
  const RasterDashes& dashes_;
  RasterBox seen_;
  std::size_t& left_;
  CGAffineTransform inverse_;
  DashPlace place_;
  RasterPoint start_ = {0, 0};
  RasterPoint at_ = {0, 0};
  std::vector<RasterPoint> piece_;  // of the dash at hand
  std::vector<RasterPoint>
      first_;             // of the dash that a figure begins with, which may go on at its end
  bool isFirst_ = false;  // whether the dash at hand is that one
};

}  // namespace

RasterFigures CutIntoDashes(const CGPath& path, const CGAffineTransform& toPixels,
                            const RasterDashes& dashes, const RasterBox& seen, std::size_t& left) {
  constexpr double kShortestMean = 0.5;  // pixels
  const double mean = std::accumulate(dashes.lengths.begin(), dashes.lengths.end(), 0.0) /
                      static_cast<double>(dashes.lengths.size());
  const double larger = std::max(1.0, kShortestMean / (mean * LengthScale(dashes.toPixels)));
  RasterDashes drawn = dashes;
  for (double& length : drawn.lengths)
    length *= larger;
  drawn.phase *= larger;
  if (drawn.lengths.size() % 2 != 0) {  // dashes and gaps swap roles each round
    const std::vector<double> again = drawn.lengths;
    drawn.lengths.insert(drawn.lengths.end(), again.begin(), again.end());
  }
  RasterFigures cut;
  Dasher dasher(drawn, seen, left, cut);
  GiveLines(path, toPixels, dasher);
  dasher.EndFigure();
  return cut;
}

}  // namespace kelvane
