#include "platform/svg/svg_path.h"

#include <cstdint>

namespace kelvane {
namespace {

struct GridPoint {
  std::int64_t x = 0;
  std::int64_t y = 0;
};

class PathDataWriter {
 public:
  PathDataWriter(std::string& text, const CGAffineTransform& transform, const SvgGrid& grid)
      : text_(text), transform_(transform), grid_(grid), numbers_(text, grid) {}

  void Write(CGPath::Element element, const CGPoint* points) {
    switch (element) {
      case CGPath::Element::kMove:
        return MoveTo(At(points[0]));
      case CGPath::Element::kLine:
        return LineTo(At(points[0]));
      case CGPath::Element::kCurve:
        return CurveTo(At(points[0]), At(points[1]), At(points[2]));
      case CGPath::Element::kRectangle:
        return Rectangle(points[0], {points[1].x, points[1].y});
      case CGPath::Element::kClose:
        return Close();
    }
  }

 private:
  [[nodiscard]] GridPoint At(CGPoint point) const {
    const CGPoint mapped = CGPointApplyAffineTransform(point, transform_);
    return {grid_.Steps(mapped.x), grid_.Steps(mapped.y)};
  }

  void MoveTo(GridPoint to) {
    Command('m');
    Difference(to);
    start_ = at_ = to;
    implied_ = 'l';  // what points behind a move are
  }

  void LineTo(GridPoint to) {
    if (to.y == at_.y) {
      Command('h');
      Number(to.x - at_.x);
    } else if (to.x == at_.x) {
      Command('v');
      Number(to.y - at_.y);
    } else {
      Command('l');
      Difference(to);
    }
    at_ = to;
  }

  void CurveTo(GridPoint control1, GridPoint control2, GridPoint to) {
    Command('c');
    Difference(control1);
    Difference(control2);
    Difference(to);
    at_ = to;
  }

  void Rectangle(CGPoint corner, CGSize size) {
    MoveTo(At(corner));
    LineTo(At({corner.x + size.width, corner.y}));
    LineTo(At({corner.x + size.width, corner.y + size.height}));
    LineTo(At({corner.x, corner.y + size.height}));
    Close();
  }

  void Close() {
    Command('z');
    at_ = start_;
  }

  /// The first point of all is written as if from the origin.
  void Command(char command) {
    if (command != implied_) {
      text_ += command;
      numbers_.StartOver();
    }
    implied_ = command == 'z' ? '\0' : command;
  }

  void Difference(GridPoint to) {
    Number(to.x - at_.x);
    Number(to.y - at_.y);
  }

  void Number(std::int64_t steps) { numbers_.Append(steps); }

  std::string& text_;
  const CGAffineTransform transform_;
  const SvgGrid& grid_;
  SvgNumberList numbers_;
  GridPoint at_;
  GridPoint start_;
  char implied_ = '\0';  // the command that numbers alone repeat
};

}  // namespace

void AppendSvgPath(std::string& text, const CGPath& path, const CGAffineTransform& transform,
                   const SvgGrid& grid) {
  PathDataWriter writer(text, transform, grid);
  path.ForEach(
      [&writer](CGPath::Element element, const CGPoint* points) { writer.Write(element, points); });
}

std::string SvgPathData(const CGPath& path, const CGAffineTransform& transform,
                        const SvgGrid& grid) {
  std::string text;
  AppendSvgPath(text, path, transform, grid);
  return text;
}

}  // namespace kelvane
