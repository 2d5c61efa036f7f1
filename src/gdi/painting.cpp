#include "gdi/painting.h"

#include <cstddef>
#include <utility>

#include "gdi/marks.h"
#include "gdi/objects.h"
#include "gdi/stroking.h"

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
  const Marks fill =
      Fills(kind) ? MarksOf(device, ResolveBrush(device, *state.brush), state.rop2) : Marks();
  const PenStroke stroke = Strokes(kind) ? ResolvePen(device) : PenStroke{.isNull = true};
  const Marks lines =
      stroke.isNull ? Marks() : MarksOf(device, ResolveBrush(device, state.pen->brush), state.rop2);
  const Marks gaps = stroke.paintsGaps
                         ? MarksOf(device, ResolveColor(device, state.backgroundColor), state.rop2)
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
  Fill(device, path, fillMode, MarksOf(device, ResolveBrush(device, brush), operation));
}

void FillWith(DeviceContext& device, CGPath& path, PolyFillMode fillMode, RgbColor color,
              BinaryRasterOperation operation) {
  if (!CanPaint(device, path)) return path.Clear();
  Fill(device, path, fillMode, MarksOf(device, color, operation));
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
