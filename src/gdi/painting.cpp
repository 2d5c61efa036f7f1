#include "gdi/painting.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "gdi/marks.h"
#include "gdi/objects.h"
#include "gdi/stroking.h"
#include "platform/quartz/cg_extent.h"

namespace kelvane {
namespace {

constexpr bool Fills(PaintKind kind) {
  return kind != PaintKind::kStroke;
}
constexpr bool Strokes(PaintKind kind) {
  return kind != PaintKind::kFill;
}

CGPathDrawingMode FillingMode(PolyFillMode fillMode) {
  return fillMode == WINDING ? kCGPathFill : kCGPathEOFill;
}

/// Marks of one path: the last of them takes it, the others copy it.
class PathPainter {
 public:
  PathPainter(DeviceContext& device, CGPath& path, std::size_t marks)
      : device_(device), surface_(device.canvas->Surface()), path_(path), left_(marks) {}
  ~PathPainter() { path_.Clear(); }
  PathPainter(const PathPainter&) = delete;
  PathPainter& operator=(const PathPainter&) = delete;

  void Fill(const Marks& marks, PolyFillMode fillMode) {
    for (const Mark& mark : marks.All()) {
      SetFill(surface_, mark);
      Load();
      surface_.DrawPath(FillingMode(fillMode));
    }
  }

  void Stroke(const Marks& marks, const PenStroke& stroke) {
    for (const Mark& mark : marks.All()) {
      SetStroke(surface_, mark);
      Load();
      DrawStroked(device_, stroke, kCGPathStroke);
    }
  }

  void FillAndStroke(const Marks& fill, PolyFillMode fillMode, const Marks& marks,
                     const PenStroke& stroke) {
    SetFill(surface_, fill.marks[0]);
    SetStroke(surface_, marks.marks[0]);
    Load();
    DrawStroked(device_, stroke, fillMode == WINDING ? kCGPathFillStroke : kCGPathEOFillStroke);
  }

 private:
  void Load() {
    if (--left_ == 0) return device_.canvas->Load(path_);
    CGPath copy = path_;
    device_.canvas->Load(copy);
  }

  DeviceContext& device_;
  CGContext& surface_;
  CGPath& path_;
  std::size_t left_;
};

/// @param margin  how far the marks reach beyond the path, device units.
/// @return what lies below them; not looked up for operations that ask for nothing below.
std::optional<RgbColor> GroundUnder(const DeviceContext& device, const CGPath& path,
                                    BinaryRasterOperation operation, double margin) {
  if (operation == R2_COPYPEN) return std::nullopt;
  const CGBox box = Grown(BoxOf(path), margin);
  return device.canvas->GroundUnder({PointD{box.left, box.bottom},
                                     {box.right, box.bottom},
                                     {box.right, box.top},
                                     {box.left, box.top}});
}

/// How far a stroke reaches beyond its path, device units; its miters may go farther.
double MarginOf(const PenStroke& stroke, const Mapping& mapping) {
  const TransformD& t = mapping.ToDevice();
  const double scale = std::max(std::hypot(t.m11, t.m12), std::hypot(t.m21, t.m22));
  return 1 + stroke.width * scale;
}

bool CanPaint(DeviceContext& device, const CGPath& path) {
  return path.HasSegments() && BringClip(device);
}

void Fill(DeviceContext& device, CGPath& path, PolyFillMode fillMode, const Marks& marks) {
  PathPainter(device, path, marks.count).Fill(marks, fillMode);
}

/// The gaps of thin dashed pens have the background's colour: they lie below the dashes.
PenStroke WithoutDashes(PenStroke stroke) {
  stroke.dashes.clear();
  return stroke;
}

}  // namespace

bool BringClip(DeviceContext& device) {
  return BringClip(device, device.state.clip);
}

bool BringClip(DeviceContext& device, const ClipState& clip) {
  if (device.canvas == nullptr) return false;
  const bool shows = device.canvas->BringClip(clip);
  if (!shows && device.canvas->HasRunOut()) device.shortfalls.Add(Shortfall::kDrawnTooOften);
  return shows;
}

void PaintPath(DeviceContext& device, CGPath& path, PaintKind kind) {
  if (!CanPaint(device, path)) return path.Clear();
  const DeviceState& state = device.state;
  const PenStroke stroke = Strokes(kind) ? ResolvePen(device) : PenStroke{.isNull = true};
  const auto ground =
      GroundUnder(device, path, state.rop2, stroke.isNull ? 0 : MarginOf(stroke, state.mapping));
  const Marks fill = Fills(kind)
                         ? MarksOf(device, ResolveBrush(device, *state.brush), state.rop2, ground)
                         : Marks();
  const Marks lines =
      stroke.isNull ? Marks()
                    : MarksOf(device, ResolveBrush(device, state.pen->brush), state.rop2, ground);
  const Marks gaps =
      stroke.paintsGaps
          ? MarksOf(device, ResolveColor(device, state.backgroundColor), state.rop2, ground)
          : Marks();
  if (fill.IsOneOpaque() && lines.IsOneOpaque() && gaps.count == 0) {
    PathPainter(device, path, 1).FillAndStroke(fill, state.polyFillMode, lines, stroke);
    return;
  }
  PathPainter painter(device, path, fill.count + gaps.count + lines.count);
  painter.Fill(fill, state.polyFillMode);
  if (gaps.count > 0) painter.Stroke(gaps, WithoutDashes(stroke));
  painter.Stroke(lines, stroke);
}

void FillWith(DeviceContext& device, CGPath& path, PolyFillMode fillMode, const Brush& brush,
              BinaryRasterOperation operation) {
  if (!CanPaint(device, path)) return path.Clear();
  const auto ground = GroundUnder(device, path, operation, 0);
  Fill(device, path, fillMode, MarksOf(device, ResolveBrush(device, brush), operation, ground));
}

void FillWith(DeviceContext& device, CGPath& path, PolyFillMode fillMode, RgbColor color,
              BinaryRasterOperation operation) {
  if (!CanPaint(device, path)) return path.Clear();
  const auto ground = GroundUnder(device, path, operation, 0);
  Fill(device, path, fillMode, MarksOf(device, color, operation, ground));
}

void DrawPendingMarks(DeviceContext& device) {
  PendingMarks& pending = device.pending;
  switch (std::exchange(pending.kind, PendingMarks::Kind::kNone)) {
    case PendingMarks::Kind::kNone:
      return;
    case PendingMarks::Kind::kLines:
      device.state.figureIsOpen = false;
      return PaintPath(device, pending.path, PaintKind::kStroke);
    case PendingMarks::Kind::kPixels:
      return FillWith(device, pending.path, WINDING, pending.color, R2_COPYPEN);
  }
}

}  // namespace kelvane
