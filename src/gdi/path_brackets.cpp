#include "gdi/path_brackets.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include "gdi/objects.h"
#include "gdi/painting.h"
#include "gdi/surface_stroke.h"
#include "gdi/widening.h"

namespace kelvane {
namespace {

std::shared_ptr<const CGPath> TakePath(DeviceContext& device) {
  return std::exchange(device.state.path, nullptr);
}

/// A path that a saved state has, too, may come back again and again.
bool MayPaint(DeviceContext& device, const std::shared_ptr<const CGPath>& path) {
  const bool isShared = path.use_count() > 1;
  if (!isShared || device.canvas == nullptr) return true;
  if (device.canvas->Afford(path->Reached().elements)) return true;
  device.shortfalls.Add(Shortfall::kDrawnTooOften);
  return false;
}

/// A path may cross itself as often as the square of its points, and the records that widen it are
/// a few bytes each: what widening takes is counted, and what it would have taken.
bool MayWiden(DeviceContext& device, const CGPath& path, double width) {
  constexpr std::uint64_t kWorkOfAPart = 8;
  constexpr std::uint64_t kWorkInVain = 64;  // that is only counted
  if (device.canvas == nullptr) return true;
  Canvas& canvas = *device.canvas;
  if (canvas.MostInVain() == 0) return false;
  const std::uint64_t work = WorkOfWidening(path, width);
  if (work <= kMostWorkOfWidening && canvas.Afford(work / kWorkOfAPart)) return true;
  canvas.CountInVain(std::min(work, kMostWorkOfWidening) / kWorkInVain);
  return false;
}

/// Paints the finished path; a state that was saved may share it.
bool PaintFinished(DeviceContext& device, PaintKind kind) {
  const auto path = TakePath(device);
  if (path == nullptr || !MayPaint(device, path)) return false;
  device.scratch = *path;
  PaintPath(device, device.scratch, kind);
  return true;
}

CGPath WithClosedFigures(const CGPath& path) {
  CGPath closed;
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    switch (element) {
      case CGPath::Element::kMove:
        closed.Close();
        return closed.MoveTo(points[0]);
      case CGPath::Element::kLine:
        return closed.LineTo(points[0]);
      case CGPath::Element::kCurve:
        return closed.CurveTo(points[0], points[1], points[2]);
      case CGPath::Element::kRectangle:
        closed.Close();
        return closed.AddRectangle(points[0], {points[1].x, points[1].y});
      case CGPath::Element::kClose:
        return closed.Close();
    }
  });
  closed.Close();
  return closed;
}

}  // namespace

void BeginPath(DeviceContext& device) {
  device.state.path = nullptr;
  device.state.figureIsOpen = false;
  device.state.bracket = OpenBracket{.serial = ++device.bracketsBegun};
  device.bracketSerial = device.bracketsBegun;
  device.bracketPath.Clear();
}

bool EndPath(DeviceContext& device) {
  if (!device.state.bracket) return false;
  device.state.bracket.reset();
  device.state.figureIsOpen = false;
  device.state.path = std::make_shared<const CGPath>(std::exchange(device.bracketPath, {}));
  device.bracketSerial = 0;
  return true;
}

void AbortPath(DeviceContext& device) {
  device.state.path = nullptr;
  device.state.bracket.reset();
  device.state.figureIsOpen = false;
}

bool CloseFigure(DeviceContext& device) {
  if (!device.state.bracket) return false;
  device.bracketPath.Close();
  device.state.figureIsOpen = false;
  return true;
}

bool FlattenPath(const DeviceContext& device) {
  return device.state.path != nullptr;
}

bool WidenPath(DeviceContext& device) {
  DeviceState& state = device.state;
  if (state.path == nullptr) return false;
  const PenStroke stroke = ResolvePen(device);
  if (stroke.isNull || stroke.width == 0 || stroke.dashesAreOnPage) return false;
  const TransformD& toDevice = state.mapping.ToDevice();
  const double width = stroke.width * StretchOf(toDevice).most;
  const bool mayWiden = MayWiden(device, *state.path, width);
  auto outline = mayWiden ? Widened(*state.path, stroke, state.miterLimit, toDevice) : std::nullopt;
  if (!outline) {
    device.shortfalls.Add(Shortfall::kPathTooComplex);
    return false;
  }
  state.path = std::make_shared<const CGPath>(*std::move(outline));
  return true;
}

bool FillPath(DeviceContext& device) {
  return PaintFinished(device, PaintKind::kFill);
}

bool StrokePath(DeviceContext& device) {
  return PaintFinished(device, PaintKind::kStroke);
}

bool StrokeAndFillPath(DeviceContext& device) {
  const auto path = TakePath(device);
  if (path == nullptr || !MayPaint(device, path)) return false;
  device.scratch = WithClosedFigures(*path);
  PaintPath(device, device.scratch, PaintKind::kFillAndStroke);
  return true;
}

}  // namespace kelvane
