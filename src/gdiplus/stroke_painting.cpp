#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "gdi/surface_stroke.h"
#include "gdiplus/dash_starts.h"
#include "gdiplus/miter_spikes.h"
#include "gdiplus/paint.h"
#include "gdiplus/painting.h"
#include "gdiplus/path_bounds.h"
#include "gdiplus/pen_outline.h"
#include "gdiplus/pen_shape.h"

namespace kelvane::gdiplus {
namespace {

CGLineCap CapOnSurface(EmfPlusLineCap cap) {
  switch (cap) {
    case EmfPlusLineCap::kSquare:
      return kCGLineCapSquare;
    case EmfPlusLineCap::kRound:
      return kCGLineCapRound;
    default:
      return kCGLineCapButt;
  }
}

CGLineJoin JoinOnSurface(EmfPlusLineJoin join) {
  switch (join) {
    case EmfPlusLineJoin::kBevel:
      return kCGLineJoinBevel;
    case EmfPlusLineJoin::kRound:
      return kCGLineJoinRound;
    default:
      return kCGLineJoinMiter;
  }
}

bool AreAllClosed(const CGPath& path) {
  std::size_t figures = 0;
  std::size_t closed = 0;
  path.ForEach([&](CGPath::Element element, const CGPoint*) {
    figures += element == CGPath::Element::kMove || element == CGPath::Element::kRectangle ? 1 : 0;
    closed += element == CGPath::Element::kClose || element == CGPath::Element::kRectangle ? 1 : 0;
  });
  return figures == closed;
}

bool IsPlain(EmfPlusLineCap cap) {
  return cap == EmfPlusLineCap::kFlat || cap == EmfPlusLineCap::kNoAnchor ||
         cap == EmfPlusLineCap::kSquare || cap == EmfPlusLineCap::kRound;
}

bool IsCompound(const EmfPlusPen& pen) {
  const std::vector<float>& c = pen.compound;
  return c.size() > 1 && !(c.size() == 2 && c[0] <= 0 && c[1] >= 1);
}

/// Whether a surface, which ends dashes and lines alike, draws it by itself.
bool IsPlain(const EmfPlusPen& pen, const PenShape& shape, bool isClosed) {
  if (IsCompound(pen)) return false;
  if (!shape.dashes.empty() && pen.dashCap != EmfPlusDashCap::kFlat) return false;
  if (isClosed) return true;
  if (!IsPlain(pen.startCap) || !IsPlain(pen.endCap)) return false;
  const CGLineCap cap = CapOnSurface(pen.startCap);
  return cap == CapOnSurface(pen.endCap) && (shape.dashes.empty() || cap == kCGLineCapButt);
}

/// A surface leaves a miter past the limit out, as a clipped one is; a plain one is cut there.
bool CutsSpikes(const EmfPlusPen& pen, const PenShape& shape, const CGPath& path) {
  if (pen.join != EmfPlusLineJoin::kMiter || shape.isHairline) return false;
  const auto toPen = shape.toDevice.Inverse();
  return toPen && HasSpikes(path, *toPen, MiterLimitOf(pen));
}

SurfaceStroke OnSurface(const EmfPlusPen& pen, const PenShape& shape) {
  SurfaceStroke stroke;
  stroke.cap = shape.dashes.empty() ? CapOnSurface(pen.startCap) : kCGLineCapButt;
  stroke.join = JoinOnSurface(pen.join);
  stroke.miterLimit = static_cast<CGFloat>(MiterLimitOf(pen));
  stroke.width = shape.isHairline ? 0 : shape.width;
  stroke.dashes = shape.dashes;
  stroke.dashPhase = shape.dashOffset;
  return stroke;
}

void DrawPlain(Graphics& graphics, CGPath& path, const EmfPlusPen& pen, const PenShape& shape) {
  graphics.canvas->Load(path);
  DrawThrough(*graphics.canvas, OnSurface(pen, shape), shape.toDevice, kCGPathStroke);
}

/// The inner half of a line twice as wide.
void DrawInset(Graphics& graphics, CGPath& path, const EmfPlusPen& pen, const PenShape& shape) {
  CGContext& surface = graphics.canvas->Surface();
  CGPath inside = path;
  surface.SaveGState();
  graphics.canvas->ClipTo(inside);
  PenShape doubled = shape;
  doubled.width *= 2;
  DrawPlain(graphics, path, pen, doubled);
  surface.RestoreGState();
}

bool Affords(Graphics& graphics, std::size_t elements) {
  const bool isAfforded = graphics.canvas->Afford(elements);
  if (!isAfforded) graphics.shortfalls.Add(Shortfall::kDrawnTooOften);
  return isAfforded;
}

/// What a record of a few bytes names with a pen.
std::size_t PartsOf(const EmfPlusPen& pen) {
  std::size_t parts = pen.dashes.size() + pen.compound.size();
  for (const auto* custom : {&pen.customStartCap, &pen.customEndCap}) {
    if (!*custom) continue;
    if (const auto* cap = std::get_if<EmfPlusPathCap>(&**custom)) {
      parts += cap->fill ? cap->fill->points.size() : 0;
      parts += cap->stroke ? cap->stroke->points.size() : 0;
    }
  }
  return parts;
}

/// A record of a few bytes may ask for as many dashes as there can be, again and again: what is
/// given up is counted, and in the end not begun.
/// @return whether it was drawn.
bool DrawOutlined(Graphics& graphics, const CGPath& path, const EmfPlusPen& pen,
                  const PenShape& shape) {
  constexpr std::uint64_t kMostPoints = 1U << 17;  // more than anyone could want
  Canvas& canvas = *graphics.canvas;
  const std::uint64_t most = std::min(kMostPoints, canvas.MostInVain());
  const bool mayEnd = path.Reached().elements < most;  // each has a point of the outline at least
  auto outline = mayEnd ? OutlineOf(path, shape, pen, most) : std::nullopt;
  if (!outline || !outline->IsFinite()) {
    if (mayEnd) canvas.CountInVain(outline ? outline->Reached().elements : most);
    graphics.shortfalls.Add(Shortfall::kPathTooComplex);
    return false;
  }
  const std::size_t elements = outline->Reached().elements;
  if (outline->HasSegments() && Affords(graphics, elements)) {
    PaintFill(graphics, *outline, WINDING, pen.brush);
  } else {
    canvas.CountInVain(elements);
  }
  return true;
}

}  // namespace

void PaintStroke(Graphics& graphics, CGPath& path, const EmfPlusPen& pen) {
  if (!path.HasSegments() || !path.IsFinite() || !BringClip(graphics)) return path.Clear();
  if (!Affords(graphics, PartsOf(pen))) return path.Clear();
  const PenShape shape = ShapeOf(graphics, pen);
  if (!shape.dashes.empty()) path = StartedWhereDashesDo(path);
  const bool isClosed = AreAllClosed(path);
  const bool isInset =
      pen.alignment == EmfPlusPenAlignment::kInset && isClosed && !shape.isHairline;
  const bool isOutlined =
      !IsPlain(pen, shape, isClosed) || (!isInset && CutsSpikes(pen, shape, path));
  if (isOutlined && DrawOutlined(graphics, path, pen, shape)) return path.Clear();
  const auto paint = PaintOf(graphics, pen.brush, BoundsOf(path));
  if (!paint) return path.Clear();
  SetStroke(graphics.canvas->Surface(), *paint);
  isInset ? DrawInset(graphics, path, pen, shape) : DrawPlain(graphics, path, pen, shape);
}

}  // namespace kelvane::gdiplus
