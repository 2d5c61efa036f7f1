#include "gdiplus/graphics.h"

namespace kelvane::gdiplus {
namespace {

/// Device units in a unit of the page, at so many dots per inch.
double PixelsIn(EmfPlusUnit unit, double dotsPerInch) {
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

TransformD PageToDevice(const Graphics& graphics) {
  const GraphicsState& state = graphics.state;
  const double x = state.pageScale * PixelsIn(state.pageUnit, graphics.resolution.x);
  const double y = state.pageScale * PixelsIn(state.pageUnit, graphics.resolution.y);
  return TransformD{x, 0, 0, y, 0, 0}.Then(state.container);
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
