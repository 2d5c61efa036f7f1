#include "gdiplus/graphics.h"

namespace kelvane::gdiplus {
namespace {

/// Device units in a unit of the page, at so many dots per inch.
double PixelsAt(EmfPlusUnit unit, double dotsPerInch) {
  switch (unit) {
    case EmfPlusUnit::kPoint:
      return dotsPerInch / 72;
    case EmfPlusUnit::kInch:
      return dotsPerInch;
    case EmfPlusUnit::kDocument:
      return dotsPerInch / 300;
    case EmfPlusUnit::kMillimeter:
      return dotsPerInch / 25.4;
    case EmfPlusUnit::kWorld:
    case EmfPlusUnit::kDisplay:
    case EmfPlusUnit::kPixel:
      break;
  }
  return 1;
}

}  // namespace

TransformD Exactly(const XForm& matrix) {
  return {matrix.eM11, matrix.eM12, matrix.eM21, matrix.eM22, matrix.eDx, matrix.eDy};
}

PointD PixelsIn(const Graphics& graphics, EmfPlusUnit unit) {
  return {PixelsAt(unit, graphics.resolution.x), PixelsAt(unit, graphics.resolution.y)};
}

TransformD UnitToDevice(const Graphics& graphics, EmfPlusUnit unit) {
  const GraphicsState& state = graphics.state;
  const PointD pixels = PixelsIn(graphics, unit);
  return TransformD{state.pageScale * pixels.x, 0, 0, state.pageScale * pixels.y, 0, 0}.Then(
      state.container);
}

TransformD PageToDevice(const Graphics& graphics) {
  return UnitToDevice(graphics, graphics.state.pageUnit);
}

TransformD WorldToDevice(const Graphics& graphics) {
  return graphics.state.world.Then(PageToDevice(graphics));
}

bool BringClip(Graphics& graphics) {
  if (graphics.canvas == nullptr) return false;
  const bool shows = graphics.canvas->BringClip(graphics.state.clip);
  if (!shows && graphics.canvas->HasRunOut()) graphics.shortfalls.Add(Shortfall::kDrawnTooOften);
  return shows;
}

}  // namespace kelvane::gdiplus
