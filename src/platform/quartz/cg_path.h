#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// A path in page space. Points are mapped by the caller before they are added.
///
/// A finished path is regular: every subpath opens with one move or is one whole rectangle, and a
/// move that nothing follows has no effect. So whoever writes a path out needs no rules of its own.
class CGPath {
 public:
  enum class Element : std::uint8_t {
    kMove,       // 1 point
    kLine,       // 1 point
    kCurve,      // 3 points: control, control, end
    kClose,      // no point
    kRectangle,  // 2 points: corner, then width and height, either of which may be negative
  };

  /// Starts a subpath; a move directly after a move replaces it.
  void MoveTo(CGPoint point);

  /// Adds a line from the current point; without one it is a move.
  void LineTo(CGPoint point);

  /// Adds a Bezier curve; without a current point it only moves to the end.
  void CurveTo(CGPoint control1, CGPoint control2, CGPoint end);

  /// Closes the open subpath, if there is one; the current point goes back to its start.
  void Close();

  /// Adds a closed rectangle; afterwards the current point is its corner.
  void AddRectangle(CGPoint corner, CGSize size);

  /// Makes the rectangle that ends the path larger.
  void GrowLastRectangle(CGSize by) {
    points_.back().x += by.width;
    points_.back().y += by.height;
  }

  /// Adds a rectangle as `transform` leaves it: whole, or four lines where it turns or shears.
  void AddMappedRectangle(const CGRect& rect, const CGAffineTransform& transform);

  /// Adds the subpaths of another path as `transform` leaves them.
  void AddPath(const CGPath& other, const CGAffineTransform& transform);

  /// @return the path with every point mapped.
  [[nodiscard]] CGPath Mapped(const CGAffineTransform& transform) const;

  /// Maps every point where it lies.
  void Map(const CGAffineTransform& transform);

  /// Rounds every coordinate to a multiple of 1 / `parts`.
  void Round(CGFloat parts);

  /// How far a path has come.
  struct Progress {
    std::size_t elements = 0;
    std::size_t points = 0;
    CGPoint currentPoint;
    CGPoint subpathStart;
    bool hasSegments = false;
    bool finite = true;

    friend bool operator==(const Progress&, const Progress&) = default;
  };
  [[nodiscard]] Progress Reached() const {
    return {elements_.size(), points_.size(), currentPoint_, subpathStart_, hasSegments_, finite_};
  }

  /// Takes off what was added since; the path has only been added to since then.
  void GoBackTo(const Progress& progress);

  /// Empties the path and keeps its memory for the next one.
  void Clear();

  /// No current point: nothing was added since the last Clear.
  [[nodiscard]] bool IsEmpty() const { return elements_.empty(); }

  /// False for an empty path and for one of moves alone: painting either marks nothing.
  [[nodiscard]] bool HasSegments() const { return hasSegments_; }

  /// False once any coordinate that was added is infinite or not a number.
  [[nodiscard]] bool IsFinite() const { return finite_; }

  /// @return the current point in page space; (0, 0) for an empty path.
  [[nodiscard]] CGPoint CurrentPoint() const { return currentPoint_; }

  /// Calls `visit(element, points)` for each element in order; `points` holds as many as the
  /// element needs. A move that ends the path is left out.
  template <class Visitor>
  void ForEach(Visitor&& visit) const {
    const CGPoint* points = points_.data();
    const std::size_t count = elements_.size() - (OpenMoveAtEnd() ? 1 : 0);
    for (std::size_t i = 0; i < count; ++i) {
      visit(elements_[i], points);
      points += PointCount(elements_[i]);
    }
  }

  static constexpr std::size_t PointCount(Element element) {
    switch (element) {
      case Element::kMove:
      case Element::kLine:
        return 1;
      case Element::kCurve:
        return 3;
      case Element::kRectangle:
        return 2;
      case Element::kClose:
        break;
    }
    return 0;
  }

 private:
  template <class... Points>
  void Append(Element element, Points... points);
  void ReopenSubpath();
  void CheckPoints();
  [[nodiscard]] bool OpenMoveAtEnd() const {
    return !elements_.empty() && elements_.back() == Element::kMove;
  }

  std::vector<Element> elements_;
  std::vector<CGPoint> points_;
  CGPoint currentPoint_;
  CGPoint subpathStart_;
  bool hasSegments_ = false;
  bool finite_ = true;
};

}  // namespace kelvane
