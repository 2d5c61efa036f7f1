#include "gdiplus/line_caps.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "gdi/flat_lines.h"
#include "gdiplus/figures.h"

namespace kelvane::gdiplus {
namespace {

constexpr double kArrowAnchorCut = 1.5;  // widths

/// A space whose origin is the end of a line, whose y points outwards.
TransformD SpaceOf(const LineEnd& end, double unit) {
  const PointD u = end.outward;
  return {unit * u.y, -unit * u.x, unit * u.x, unit * u.y, end.at.x, end.at.y};
}

void AddPolygon(OutlineBuilder& outline, const LineEnd& end, double width,
                std::vector<PointD> points) {
  const TransformD space = SpaceOf(end, width);
  for (PointD& point : points)
    point = space.Map(point);
  outline.AddFigure(std::move(points));
}

void AddPlainCap(OutlineBuilder& outline, EmfPlusLineCap kind, const LineEnd& end, double width) {
  constexpr double kOverlap = -1.0 / 64;  // with the line: no rounding must come between
  constexpr double kRoot2 = std::numbers::sqrt2;
  constexpr double kRoot3 = std::numbers::sqrt3;
  switch (kind) {
    case EmfPlusLineCap::kSquare:
      return AddPolygon(outline, end, width,
                        {{-0.5, kOverlap}, {0.5, kOverlap}, {0.5, 0.5}, {-0.5, 0.5}});
    case EmfPlusLineCap::kRound:
      return outline.AddDisc(end.at, width / 2);
    case EmfPlusLineCap::kTriangle:
      return AddPolygon(outline, end, width,
                        {{-0.5, kOverlap}, {0.5, kOverlap}, {0.5, 0}, {0, 0.5}, {-0.5, 0}});
    case EmfPlusLineCap::kSquareAnchor:
      return AddPolygon(outline, end, width / kRoot2, {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}});
    case EmfPlusLineCap::kRoundAnchor:
      return outline.AddDisc(end.at, width);
    case EmfPlusLineCap::kDiamondAnchor:
      return AddPolygon(outline, end, width, {{0, -1}, {1, 0}, {0, 1}, {-1, 0}});
    case EmfPlusLineCap::kArrowAnchor:
      return AddPolygon(outline, end, width, {{-1, -kRoot3}, {1, -kRoot3}, {0, 0}});
    case EmfPlusLineCap::kFlat:
    case EmfPlusLineCap::kNoAnchor:
    case EmfPlusLineCap::kCustom:
      break;
  }
}

/// Draws lines of a cap as wide as the line that it belongs to.
void AddLine(OutlineBuilder& outline, const FlatLine& line, const LineJoin& join,
             EmfPlusLineCap startCap, EmfPlusLineCap endCap, double width) {
  const FlatLine clean = WithoutRepeats(line);
  outline.AddBand(clean, {width / 2, -width / 2}, join);
  if (clean.isClosed || clean.points.size() < 2) return;
  const auto end = [](PointD inner, PointD outer) {
    const double length = Distance(inner, outer);
    return LineEnd{outer, {(outer.x - inner.x) / length, (outer.y - inner.y) / length}};
  };
  AddPlainCap(outline, startCap, end(clean.points[1], clean.points[0]), width);
  AddPlainCap(outline, endCap, end(clean.points.end()[-2], clean.points.back()), width);
}

std::vector<FlatLine> LinesOf(const EmfPlusPath& figures, const TransformD& space) {
  constexpr double kTolerance = 1.0 / 64;
  CGPath path;
  AddPath(path, space, figures);
  return FlatLinesOf(path, kTolerance);
}

void AddCustom(OutlineBuilder& outline, const EmfPlusPathCap& cap, const LineEnd& end,
               double width) {
  const TransformD space = SpaceOf(end, width * cap.widthScale);
  const double inset = cap.baseInset * cap.widthScale * width;
  const LineEnd base = {{end.at.x - inset * end.outward.x, end.at.y - inset * end.outward.y},
                        end.outward};
  AddPlainCap(outline, cap.baseCap, base, width);
  if (cap.fill) {
    std::vector<std::vector<PointD>> figures;
    for (FlatLine& line : LinesOf(*cap.fill, space))
      figures.push_back(std::move(line.points));
    outline.AddFigures(std::move(figures));
  }
  if (cap.stroke) {
    for (const FlatLine& line : LinesOf(*cap.stroke, space)) {
      AddLine(outline, line, {cap.strokeJoin, cap.miterLimit}, cap.strokeStartCap, cap.strokeEndCap,
              width);
    }
  }
}

void AddCustom(OutlineBuilder& outline, const EmfPlusArrowCap& cap, const LineEnd& end,
               double width) {
  const double half = double{cap.width} / 2;
  const double unit = width * cap.widthScale;
  if (cap.isFilled) {
    const double middle = double{cap.middleInset} - cap.height;
    return AddPolygon(outline, end, unit,
                      {{-half, -cap.height}, {0, middle}, {half, -cap.height}, {0, 0}});
  }
  const TransformD space = SpaceOf(end, unit);
  const FlatLine sides = {
      {space.Map({-half, -cap.height}), space.Map({0, 0}), space.Map({half, -cap.height})}};
  AddLine(outline, sides, {cap.lineJoin, cap.miterLimit}, cap.lineStartCap, cap.lineEndCap, width);
}

// In units of the cap.
double CutBackOf(const EmfPlusPathCap& cap) {
  return cap.baseInset;
}
double CutBackOf(const EmfPlusArrowCap& cap) {
  return cap.isFilled ? double{cap.height} - cap.middleInset : 0;
}

LineCap CapOf(EmfPlusLineCap kind, const std::optional<EmfPlusCustomLineCap>& custom) {
  const bool isCustom = kind == EmfPlusLineCap::kCustom && custom;
  return {kind, isCustom ? &*custom : nullptr};
}

}  // namespace

LineCap StartCapOf(const EmfPlusPen& pen) {
  return CapOf(pen.startCap, pen.customStartCap);
}

LineCap EndCapOf(const EmfPlusPen& pen) {
  return CapOf(pen.endCap, pen.customEndCap);
}

double CutBackOf(const LineCap& cap, double width) {
  if (cap.kind == EmfPlusLineCap::kArrowAnchor) return kArrowAnchorCut * width;
  if (cap.custom == nullptr) return 0;
  const double cut = std::visit(
      [&](const auto& custom) { return CutBackOf(custom) * custom.widthScale; }, *cap.custom);
  return std::isfinite(cut) ? std::max(0.0, cut * width) : 0;
}

void AddCap(OutlineBuilder& outline, const LineCap& cap, const LineEnd& end, double width) {
  if (cap.custom == nullptr) return AddPlainCap(outline, cap.kind, end, width);
  std::visit([&](const auto& custom) { AddCustom(outline, custom, end, width); }, *cap.custom);
}

}  // namespace kelvane::gdiplus
