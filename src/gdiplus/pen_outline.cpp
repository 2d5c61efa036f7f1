#include "gdiplus/pen_outline.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "gdi/flat_lines.h"
#include "gdiplus/line_caps.h"
#include "gdiplus/line_dashes.h"
#include "gdiplus/outline_builder.h"

namespace kelvane::gdiplus {
namespace {

constexpr std::size_t kMostDashes = std::size_t{1} << 15;

/// Takes a length off the end of a line.
/// @return what was its end, and where it pointed; the line is empty when it was not long enough.
LineEnd CutBack(std::vector<PointD>& points, double cut) {
  const PointD at = points.back();
  PointD inner = points[points.size() - 2];
  double left = cut;
  while (left > 0 && points.size() > 1) {
    inner = points[points.size() - 2];
    const double length = Distance(inner, points.back());
    if (length > left) {
      const double t = left / length;
      PointD& end = points.back();
      end = {end.x + t * (inner.x - end.x), end.y + t * (inner.y - end.y)};
      inner = end;
      left = 0;
    } else {
      left -= length;
      points.pop_back();
    }
  }
  if (points.size() < 2) points.clear();
  const double length = Distance(inner, at);
  if (length == 0) return {at, {0, 1}};
  return {at, {(at.x - inner.x) / length, (at.y - inner.y) / length}};
}

/// Across a line from left to right, as its pen has them.
std::vector<Band> BandsOf(const EmfPlusPen& pen, double width) {
  std::vector<Band> bands;
  for (std::size_t i = 0; i + 1 < pen.compound.size(); i += 2) {
    const double from = std::clamp(double{pen.compound[i]}, 0.0, 1.0);
    const double to = std::clamp(double{pen.compound[i + 1]}, 0.0, 1.0);
    if (from < to) bands.push_back({(0.5 - from) * width, (0.5 - to) * width});
  }
  if (bands.empty()) bands.push_back({width / 2, -width / 2});
  return bands;
}

/// A dash with its caps has the length that it says: they lie inside.
struct DashCap {
  EmfPlusLineCap kind = EmfPlusLineCap::kFlat;
  double length = 0;
};

DashCap DashCapOf(const EmfPlusPen& pen, double width) {
  switch (pen.dashCap) {
    case EmfPlusDashCap::kRound:
      return {EmfPlusLineCap::kRound, width / 2};
    case EmfPlusDashCap::kTriangle:
      return {EmfPlusLineCap::kTriangle, width / 2};
    case EmfPlusDashCap::kFlat:
      break;
  }
  return {};
}

/// The outline of the lines of a path, one after the other.
class Outliner {
 public:
  Outliner(const PenShape& shape, const EmfPlusPen& pen, std::size_t mostPoints)
      : shape_(shape),
        pen_(pen),
        join_{pen.join, MiterLimitOf(pen)},
        bands_(BandsOf(pen, shape.width)),
        outline_(shape.toDevice, mostPoints) {}

  /// @return false when there is too much of it.
  bool Add(FlatLine line) {
    if (line.points.size() < 2) return true;
    if (!line.isClosed) AddCaps(line.points);
    if (line.points.size() < 2) return !outline_.IsFull();
    if (shape_.dashes.empty()) {
      AddBands(line);
      return !outline_.IsFull();
    }
    return AddDashes(line) && !outline_.IsFull();
  }

  CGPath Take() { return outline_.Take(); }

 private:
  void AddCaps(std::vector<PointD>& points) {
    const LineCap startCap = StartCapOf(pen_);
    const LineCap endCap = EndCapOf(pen_);
    const std::vector<PointD> whole = points;
    const LineEnd end = CutBack(points, CutBackOf(endCap, shape_.width));
    // A line without anything left still points somewhere.
    std::vector<PointD> backwards = points.empty() ? whole : points;
    std::ranges::reverse(backwards);
    const LineEnd start = CutBack(backwards, CutBackOf(startCap, shape_.width));
    if (!points.empty()) points.assign(backwards.rbegin(), backwards.rend());
    AddCap(outline_, startCap, start, shape_.width);
    AddCap(outline_, endCap, end, shape_.width);
  }

  void AddBands(const FlatLine& line) {
    for (const Band& band : bands_)
      outline_.AddBand(line, band, join_);
  }

  bool AddDashes(const FlatLine& line) {
    const DashCap cap = DashCapOf(pen_, shape_.width);
    std::vector<double> lengths = shape_.dashes;
    double offset = shape_.dashOffset;
    if (cap.kind != EmfPlusLineCap::kFlat) Shorten(lengths, offset, 2 * cap.length);
    const auto dashes = DashesOf(line, lengths, offset, kMostDashes);
    if (!dashes) return false;
    for (const FlatLine& dash : *dashes) {
      if (outline_.IsFull()) break;
      AddBands(dash);
      if (cap.kind != EmfPlusLineCap::kFlat) AddDashCaps(dash, cap);
    }
    return true;
  }

  /// Dashes lose a length, of which one half goes to the gap before and the other to that behind.
  static void Shorten(std::vector<double>& lengths, double& offset, double by) {
    constexpr double kShortest = 1.0 / 64;  // of what is lost; a point has no direction
    double period = 0;
    for (std::size_t i = 0; i < lengths.size(); i += 2) {
      const double shorter = std::max(lengths[i] - by, kShortest * by);
      lengths[i + 1] = std::max(0.0, lengths[i + 1] + lengths[i] - shorter);
      lengths[i] = shorter;
      period += lengths[i] + lengths[i + 1];
    }
    offset = std::fmod(offset - by / 2 + period, period);
    if (offset < 0) offset += period;
  }

  void AddDashCaps(const FlatLine& dash, const DashCap& cap) {
    const FlatLine clean = WithoutRepeats(dash);
    if (clean.points.size() < 2) return;
    std::vector<PointD> points = clean.points;
    AddCap(outline_, {cap.kind}, CutBack(points, 0), shape_.width);
    std::ranges::reverse(points);
    AddCap(outline_, {cap.kind}, CutBack(points, 0), shape_.width);
  }

  const PenShape& shape_;
  const EmfPlusPen& pen_;
  LineJoin join_;
  std::vector<Band> bands_;
  OutlineBuilder outline_;
};

}  // namespace

std::optional<CGPath> OutlineOf(const CGPath& path, const PenShape& shape, const EmfPlusPen& pen,
                                std::size_t mostPoints) {
  constexpr double kTolerance = 1.0 / 64;  // device units
  const auto toPen = shape.toDevice.Inverse();
  if (!toPen) return std::nullopt;
  Outliner outliner(shape, pen, mostPoints);
  for (FlatLine& line : FlatLinesOf(path, kTolerance)) {
    FlatLine clean = WithoutRepeats(line);
    for (PointD& point : clean.points)
      point = toPen->Map(point);
    if (!outliner.Add(std::move(clean))) return std::nullopt;
  }
  return outliner.Take();
}

}  // namespace kelvane::gdiplus
