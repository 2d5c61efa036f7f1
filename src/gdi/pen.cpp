#include "gdi/pen.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>

namespace kelvane {
namespace {

constexpr std::size_t kMostUserEntries = 16;
constexpr double kStyleUnit = 3;  // pixels of 1/96 inch, the unit of a cosmetic pen's own dashes

PenStyle Masked(PenStyle style, PenStyle mask) {
  return static_cast<PenStyle>(style & mask);
}

/// @return the brush of the lines; nullopt when there can be none.
std::optional<Brush> BrushOf(const LogPenEx& pen, const DibBytes& pattern) {
  switch (pen.brushStyle) {
    case BS_PATTERN:
    case BS_MONOPATTERN:
      return CreatePatternBrush(pattern);
    case BS_DIBPATTERN:
    case BS_DIBPATTERNPT:
      return CreateDIBPatternBrushPt(pattern);
    default:
      return CreateBrushIndirect({pen.brushStyle, pen.color, static_cast<HatchStyle>(pen.hatch)});
  }
}

/// Pixels of 1/96 inch.
std::vector<double> ThinDashes(PenStyle style) {
  switch (style) {
    case PS_DASH:
      return {18, 6};
    case PS_DOT:
      return {3, 3};
    case PS_DASHDOT:
      return {9, 6, 3, 6};
    case PS_DASHDOTDOT:
      return {9, 3, 3, 3, 3, 3};
    case PS_ALTERNATE:
      return {1, 1};
    default:
      return {};
  }
}

/// Times the width of the pen.
std::vector<double> GeometricDashes(PenStyle style) {
  switch (style) {
    case PS_DASH:
      return {3, 1};
    case PS_DOT:
      return {1, 1};
    case PS_DASHDOT:
      return {3, 1, 1, 1};
    case PS_DASHDOTDOT:
      return {3, 1, 1, 1, 1, 1};
    default:
      return {};
  }
}

std::vector<double> Times(std::vector<double> lengths, double factor) {
  for (double& length : lengths)
    length *= factor;
  return lengths;
}

/// The entries as lengths: an odd number of them twice, for dashes and gaps swap roles each round.
/// None when they have no length at all.
std::vector<double> UserDashes(const Pen& pen) {
  std::vector<double> dashes(pen.userEntries.begin(), pen.userEntries.end());
  if (std::ranges::all_of(dashes, [](double length) { return length == 0; })) return {};
  if (dashes.size() % 2 != 0) {
    const std::vector<double> again = dashes;
    dashes.insert(dashes.end(), again.begin(), again.end());
  }
  return dashes;
}

/// Round and square caps belong to the length of a dash: what is left between them is shorter. Of a
/// dot nothing is left, and a line of no length has no direction: some viewers draw no square then.
void TakeCapsFromDashes(std::vector<double>& dashes, const Pen& pen) {
  constexpr double kSmallestBody = 1.0 / 64;  // of the width
  const double least = pen.endCap == PS_ENDCAP_SQUARE ? pen.width * kSmallestBody : 0;
  for (std::size_t i = 0; i < dashes.size(); i += 2) {
    const double body = std::max(std::min(least, dashes[i]), dashes[i] - pen.width);
    dashes[i + 1] += dashes[i] - body;
    dashes[i] = body;
  }
}

PenStroke ResolveGeometric(const Pen& pen) {
  PenStroke stroke = {.width = pen.width, .endCap = pen.endCap, .join = pen.join};
  stroke.dashes =
      pen.style == PS_USERSTYLE ? UserDashes(pen) : Times(GeometricDashes(pen.style), pen.width);
  if (pen.width == 0 && pen.style != PS_USERSTYLE) stroke.dashes.clear();
  if (pen.endCap != PS_ENDCAP_FLAT) TakeCapsFromDashes(stroke.dashes, pen);
  stroke.staysInsideFrame = pen.style == PS_INSIDEFRAME;
  return stroke;
}

/// A line as wide as a pixel has no caps to speak of, and dashes with round ones would meet.
PenStroke ResolveThin(const Pen& pen, double width) {
  PenStroke stroke = {.width = width, .endCap = PS_ENDCAP_FLAT, .dashesAreOnPage = true};
  stroke.dashes =
      pen.style == PS_USERSTYLE ? Times(UserDashes(pen), kStyleUnit) : ThinDashes(pen.style);
  return stroke;
}

}  // namespace

Pen CreatePenIndirect(const LogPen& pen) {
  Pen created;
  created.style = pen.style <= PS_INSIDEFRAME ? pen.style : PS_SOLID;
  created.width = std::abs(static_cast<double>(pen.width.x));
  created.brush = CreateSolidBrush(pen.color);
  return created;
}

std::optional<Pen> ExtCreatePen(const LogPenEx& pen, ArrayView<std::uint32_t> entries,
                                const DibBytes& pattern) {
  std::optional<Brush> brush = BrushOf(pen, pattern);
  if (!brush) return std::nullopt;
  Pen created;
  created.isExtended = true;
  created.isGeometric = Masked(pen.style, PS_TYPE_MASK) == PS_GEOMETRIC;
  const PenStyle style = Masked(pen.style, PS_STYLE_MASK);
  created.style = style <= PS_ALTERNATE ? style : PS_SOLID;
  const PenStyle endCap = Masked(pen.style, PS_ENDCAP_MASK);
  if (endCap == PS_ENDCAP_SQUARE || endCap == PS_ENDCAP_FLAT) created.endCap = endCap;
  const PenStyle join = Masked(pen.style, PS_JOIN_MASK);
  if (join == PS_JOIN_BEVEL || join == PS_JOIN_MITER) created.join = join;
  created.width = created.isGeometric ? pen.width : 0;
  created.brush = *std::move(brush);
  if (created.style == PS_USERSTYLE) {
    const auto used = entries.Part(0, std::min(entries.size(), kMostUserEntries));
    created.userEntries.assign(used.begin(), used.end());
  }
  return created;
}

PenStroke ResolvePen(const Pen& pen, double scale, BackgroundMode mode) {
  if (pen.style == PS_NULL || pen.brush.kind == Brush::Kind::kNull) return {.isNull = true};
  if (pen.isExtended) return pen.isGeometric ? ResolveGeometric(pen) : ResolveThin(pen, 0);
  constexpr double kWidestPixel = 1.5;  // device units that still come out as one pixel
  if (pen.width * scale < kWidestPixel) {
    PenStroke stroke = ResolveThin(pen, pen.width);
    stroke.paintsGaps = mode == OPAQUE && !stroke.dashes.empty();
    return stroke;
  }
  return {.width = pen.width, .staysInsideFrame = pen.style == PS_INSIDEFRAME};
}

}  // namespace kelvane
