#include "gdi/lines.h"

#include <algorithm>
#include <cstddef>

#include "gdi/drawing.h"
#include "gdi/exactly.h"
#include "gdi/objects.h"

namespace kelvane {
namespace {

template <class Point>
void AddLines(FigurePath& figures, ArrayView<Point> points) {
  for (const Point point : points)
    figures.LineTo(Exactly(point));
}

template <class Point>
void AddLine(FigurePath& figures, ArrayView<Point> points) {
  if (points.empty()) return;
  figures.MoveTo(Exactly(points[0]));
  AddLines(figures, points.Part(1, points.size() - 1));
}

template <class Point>
void AddPolygon(FigurePath& figures, ArrayView<Point> points) {
  AddLine(figures, points);
  figures.Close();
}

template <class Point>
void AddCurves(FigurePath& figures, ArrayView<Point> points) {
  for (std::size_t i = 0; i + 2 < points.size(); i += 3) {
    figures.CurveTo(Exactly(points[i]), Exactly(points[i + 1]), Exactly(points[i + 2]));
  }
}

/// Calls `visit(points)` for each figure. @return whether each has all its points.
template <class Count, class Point, class Visitor>
bool ForEachFigure(ArrayView<Count> counts, ArrayView<Point> points, Visitor visit) {
  bool areWhole = true;
  std::size_t start = 0;
  for (const Count count : counts) {
    const std::size_t size = std::min<std::size_t>(count, points.size() - start);
    visit(points.Part(start, size));
    start += size;
    areWhole = areWhole && size == count;
  }
  return areWhole;
}

/// Whether a line that goes on where another ends looks as both of them do: corners as round as
/// ends, and nothing that counts twice where they meet.
bool CanRunOn(const DeviceState& state) {
  const Pen& pen = *state.pen;
  const bool isRound = pen.endCap == PS_ENDCAP_ROUND && pen.join == PS_JOIN_ROUND;
  return state.rop2 == R2_COPYPEN && (isRound || !pen.isGeometric);
}

/// The state of PolyDraw on its way through the points.
class PolyDrawing {
 public:
  PolyDrawing(DeviceState& state, FigurePath& figures) : state_(state), figures_(figures) {}

  void MoveTo(PointD point) {
    figures_.MoveTo(point);
    state_.figureStart = state_.currentPosition = point;
  }

  void LineTo(PointD point) {
    figures_.LineTo(point);
    state_.currentPosition = point;
  }

  void CurveTo(PointD control1, PointD control2, PointD end) {
    figures_.CurveTo(control1, control2, end);
    state_.currentPosition = end;
  }

  void CloseIf(PointType type) {
    if ((type & PT_CLOSEFIGURE) == 0) return;
    figures_.Close();
    state_.currentPosition = state_.figureStart;
  }

 private:
  DeviceState& state_;
  FigurePath& figures_;
};

constexpr PointType WithoutClose(PointType type) {
  return static_cast<PointType>(type & ~static_cast<unsigned>(PT_CLOSEFIGURE));
}

template <class Point>
bool AddDrawing(PolyDrawing& drawing, ArrayView<Point> points, ArrayView<PointType> types) {
  const std::size_t count = std::min(points.size(), types.size());
  for (std::size_t i = 0; i < count; ++i) {
    const PointType type = types[i];
    switch (WithoutClose(type)) {
      case PT_MOVETO:
        drawing.MoveTo(Exactly(points[i]));
        break;
      case PT_LINETO:
        drawing.LineTo(Exactly(points[i]));
        drawing.CloseIf(type);
        break;
      case PT_BEZIERTO:
        if (count - i < 3) return false;
        drawing.CurveTo(Exactly(points[i]), Exactly(points[i + 1]), Exactly(points[i + 2]));
        i += 2;
        drawing.CloseIf(types[i]);
        break;
      default:
        return false;
    }
  }
  return true;
}

}  // namespace

void MoveToEx(DeviceContext& device, PointL point) {
  device.state.currentPosition = Exactly(point);
  device.state.figureIsOpen = false;
}

void LineTo(DeviceContext& device, PointL end) {
  DeviceState& state = device.state;
  const auto addLine = [&](FigurePath& figures) { figures.LineTo(Exactly(end)); };
  if (state.bracket || !CanRunOn(state)) {
    DrawPendingMarks(device);
    ContinueFigure(device, addLine);
  } else {
    if (device.pending.kind != PendingMarks::Kind::kLines) DrawPendingMarks(device);
    device.pending.kind = PendingMarks::Kind::kLines;
    FigurePath figures(device.pending.path, state.mapping.ToDevice());
    if (!state.figureIsOpen) figures.MoveTo(state.currentPosition);
    state.figureIsOpen = true;
    addLine(figures);
  }
  state.currentPosition = Exactly(end);
}

template <class Point>
void Polyline(DeviceContext& device, ArrayView<Point> points) {
  DrawFigures(device, PaintKind::kStroke, [&](FigurePath& figures) { AddLine(figures, points); });
}

template <class Point>
void PolylineTo(DeviceContext& device, ArrayView<Point> points) {
  if (points.empty()) return;
  ContinueFigure(device, [&](FigurePath& figures) { AddLines(figures, points); });
  device.state.currentPosition = Exactly(points[points.size() - 1]);
}

template <class Point>
void PolyBezier(DeviceContext& device, ArrayView<Point> points) {
  if (points.empty()) return;
  DrawFigures(device, PaintKind::kStroke, [&](FigurePath& figures) {
    figures.MoveTo(Exactly(points[0]));
    AddCurves(figures, points.Part(1, points.size() - 1));
  });
}

template <class Point>
void PolyBezierTo(DeviceContext& device, ArrayView<Point> points) {
  const std::size_t used = points.size() / 3 * 3;
  if (used == 0) return;
  ContinueFigure(device, [&](FigurePath& figures) { AddCurves(figures, points); });
  device.state.currentPosition = Exactly(points[used - 1]);
}

template <class Point>
void Polygon(DeviceContext& device, ArrayView<Point> points) {
  DrawFigures(device, PaintKind::kFillAndStroke,
              [&](FigurePath& figures) { AddPolygon(figures, points); });
}

template <class Point>
bool PolyPolyline(DeviceContext& device, ArrayView<std::uint32_t> counts, ArrayView<Point> points) {
  bool areWhole = true;
  DrawFigures(device, PaintKind::kStroke, [&](FigurePath& figures) {
    areWhole =
        ForEachFigure(counts, points, [&](ArrayView<Point> line) { AddLine(figures, line); });
  });
  return areWhole;
}

template <class Count, class Point>
bool PolyPolygon(DeviceContext& device, ArrayView<Count> counts, ArrayView<Point> points) {
  bool areWhole = true;
  DrawFigures(device, PaintKind::kFillAndStroke, [&](FigurePath& figures) {
    areWhole = ForEachFigure(counts, points,
                             [&](ArrayView<Point> polygon) { AddPolygon(figures, polygon); });
  });
  return areWhole;
}

template <class Point>
bool PolyDraw(DeviceContext& device, ArrayView<Point> points, ArrayView<PointType> types) {
  bool isWhole = true;
  ContinueFigure(device, [&](FigurePath& figures) {
    PolyDrawing drawing(device.state, figures);
    isWhole = AddDrawing(drawing, points, types);
  });
  return isWhole;
}

// Files hold numbers in two widths.
template void Polyline(DeviceContext&, ArrayView<PointL>);
template void Polyline(DeviceContext&, ArrayView<Point16>);
template void PolylineTo(DeviceContext&, ArrayView<PointL>);
template void PolylineTo(DeviceContext&, ArrayView<Point16>);
template void PolyBezier(DeviceContext&, ArrayView<PointL>);
template void PolyBezier(DeviceContext&, ArrayView<Point16>);
template void PolyBezierTo(DeviceContext&, ArrayView<PointL>);
template void PolyBezierTo(DeviceContext&, ArrayView<Point16>);
template void Polygon(DeviceContext&, ArrayView<PointL>);
template void Polygon(DeviceContext&, ArrayView<Point16>);
template bool PolyPolyline(DeviceContext&, ArrayView<std::uint32_t>, ArrayView<PointL>);
template bool PolyPolyline(DeviceContext&, ArrayView<std::uint32_t>, ArrayView<Point16>);
template bool PolyPolygon(DeviceContext&, ArrayView<std::uint32_t>, ArrayView<PointL>);
template bool PolyPolygon(DeviceContext&, ArrayView<std::uint32_t>, ArrayView<Point16>);
template bool PolyPolygon(DeviceContext&, ArrayView<std::uint16_t>, ArrayView<Point16>);
template bool PolyDraw(DeviceContext&, ArrayView<PointL>, ArrayView<PointType>);
template bool PolyDraw(DeviceContext&, ArrayView<Point16>, ArrayView<PointType>);

}  // namespace kelvane
