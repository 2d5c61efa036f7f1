#include "gdi/brush.h"

namespace kelvane {
namespace {

BrushPaint Solid(ColorRef color, const Palette& palette) {
  return {.kind = Brush::Kind::kSolid, .color = ResolveColor(color, palette)};
}

BrushPaint ResolveHatch(const Brush& brush, const BrushColors& colors) {
  switch (brush.hatch) {
    case HS_SOLIDCLR:
    case HS_DITHEREDCLR:
      return Solid(brush.color, colors.palette);
    case HS_SOLIDTEXTCLR:
    case HS_DITHEREDTEXTCLR:
      return Solid(colors.text, colors.palette);
    case HS_SOLIDBKCLR:
    case HS_DITHEREDBKCLR:
      return Solid(colors.background, colors.palette);
    default:
      break;
  }
  BrushPaint paint = {.kind = Brush::Kind::kHatched,
                      .color = ResolveColor(brush.color, colors.palette),
                      .hatch = brush.hatch};
  if (colors.mode == OPAQUE) paint.background = ResolveColor(colors.background, colors.palette);
  return paint;
}

BrushPaint ResolvePattern(const Brush& brush, const Palette& palette) {
  BrushPaint paint = {.kind = Brush::Kind::kPattern, .pattern = brush.pattern};
  if (brush.pattern.usage != DIB_RGB_COLORS) paint.palette = ColorsOf(palette);
  return paint;
}

}  // namespace

Brush CreateSolidBrush(ColorRef color) {
  return {.kind = Brush::Kind::kSolid, .color = color};
}

std::optional<Brush> CreateBrushIndirect(const LogBrush& brush) {
  switch (brush.style) {
    case BS_SOLID:
      return CreateSolidBrush(brush.color);
    case BS_NULL:
      return Brush();
    case BS_HATCHED:
      if (brush.hatch > HS_DITHEREDBKCLR) return std::nullopt;
      return Brush{.kind = Brush::Kind::kHatched, .color = brush.color, .hatch = brush.hatch};
    default:
      return std::nullopt;
  }
}

Brush CreatePatternBrush(const DibBytes& pattern) {
  return {.kind = Brush::Kind::kMonoPattern, .pattern = pattern};
}

Brush CreateDIBPatternBrushPt(const DibBytes& pattern) {
  return {.kind = Brush::Kind::kPattern, .pattern = pattern};
}

BrushPaint ResolveBrush(const Brush& brush, const BrushColors& colors) {
  switch (brush.kind) {
    case Brush::Kind::kNull:
      break;
    case Brush::Kind::kSolid:
      return Solid(brush.color, colors.palette);
    case Brush::Kind::kHatched:
      return ResolveHatch(brush, colors);
    case Brush::Kind::kMonoPattern:  // in both background modes
      return {.kind = brush.kind,
              .color = ResolveColor(colors.text, colors.palette),
              .background = ResolveColor(colors.background, colors.palette),
              .pattern = brush.pattern};
    case Brush::Kind::kPattern:
      return ResolvePattern(brush, colors.palette);
  }
  return {};
}

}  // namespace kelvane
