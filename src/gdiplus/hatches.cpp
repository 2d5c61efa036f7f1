#include "gdiplus/hatches.h"

#include <array>
#include <cstdint>
#include <memory>
#include <numbers>
#include <utility>

#include "gdi/brush_pattern.h"
#include "gdiplus/page_colors.h"

namespace kelvane::gdiplus {
namespace {

constexpr int kSide = 8;  // pixels of a cell, either way
constexpr std::uint8_t kOpaqueColor = 255;

// A byte a row from the top, its high bit the leftmost pixel.
constexpr std::array<std::uint64_t, kEmfPlusHatchStyles> kHatchBits = {
    0xFF00000000000000,  // Horizontal
    0x8080808080808080,  // Vertical
    0x8040201008040201,  // ForwardDiagonal
    0x0102040810204080,  // BackwardDiagonal
    0xFF80808080808080,  // LargeGrid
    0x8142241818244281,  // DiagonalCross
    0x8000000008000000,  // 05Percent
    0x8000080080000800,  // 10Percent
    0x8800220088002200,  // 20Percent
    0x8822882288228822,  // 25Percent
    0xAA44AA11AA44AA11,  // 30Percent
    0xAA55AA51AA55AA15,  // 40Percent
    0xAA55AA55AA55AA55,  // 50Percent
    0xEE55BB55EE55BB55,  // 60Percent
    0x77DD77DD77DD77DD,  // 70Percent
    0x77FFDDFF77FFDDFF,  // 75Percent
    0xEFFFFEFFEFFFFEFF,  // 80Percent
    0xFFFFFFF7FFFFFF7F,  // 90Percent
    0x8844221188442211,  // LightDownwardDiagonal
    0x1122448811224488,  // LightUpwardDiagonal
    0xCC663399CC663399,  // DarkDownwardDiagonal
    0x3366CC993366CC99,  // DarkUpwardDiagonal
    0xC1E070381C0E0783,  // WideDownwardDiagonal
    0x83070E1C3870E0C1,  // WideUpwardDiagonal
    0x8888888888888888,  // LightVertical
    0xFF000000FF000000,  // LightHorizontal
    0x5555555555555555,  // NarrowVertical
    0xFF00FF00FF00FF00,  // NarrowHorizontal
    0xCCCCCCCCCCCCCCCC,  // DarkVertical
    0xFFFF0000FFFF0000,  // DarkHorizontal
    0x0000884422110000,  // DashedDownwardDiagonal
    0x0000112244880000,  // DashedUpwardDiagonal
    0xF00000000F000000,  // DashedHorizontal
    0x8080808008080808,  // DashedVertical
    0x8008400210012004,  // SmallConfetti
    0xB130031BD8C00C8D,  // LargeConfetti
    0x8142241881422418,  // ZigZag
    0x001825C0001825C0,  // Wave
    0x0102040818244281,  // DiagonalBrick
    0xFF808080FF080808,  // HorizontalBrick
    0x8854224588142251,  // Weave
    0xAA55AA55F0F0F0F0,  // Plaid
    0x0010081000800180,  // Divot
    0xAA00800080008000,  // DottedGrid
    0x8000220008002200,  // DottedDiamond
    0x038448300C020101,  // Shingle
    0xFF66FF99FF66FF99,  // Trellis
    0x77898F8F7798F8F8,  // Sphere
    0xFF888888FF888888,  // SmallGrid
    0x9966669999666699,  // SmallCheckerBoard
    0xF0F0F0F00F0F0F0F,  // LargeCheckerBoard
    0x8244281028448201,  // OutlinedDiamond
    0x10387CFE7C381000   // SolidDiamond
};

/// Adds a rectangle for each run of set bits.
/// @param top  rows from the top of the cell, where y is greatest. @param rows  that are all alike.
void AddRuns(CGPath& path, std::uint8_t bits, int top, int rows) {
  for (int from = 0; from < kSide; ++from) {
    int to = from;
    while (to < kSide && (bits & 0x80 >> to) != 0)
      ++to;
    if (to == from) continue;
    path.AddRectangle({static_cast<CGFloat>(from), static_cast<CGFloat>(kSide - top - rows)},
                      {static_cast<CGFloat>(to - from), static_cast<CGFloat>(rows)});
    from = to;
  }
}

CGPath PixelsOf(std::uint64_t bits) {
  const auto rowAt = [bits](int y) {
    return static_cast<std::uint8_t>(bits >> (kSide * (kSide - 1 - y)));
  };
  CGPath path;
  for (int top = 0; top < kSide;) {
    int rows = 1;
    while (top + rows < kSide && rowAt(top + rows) == rowAt(top))
      ++rows;
    AddRuns(path, rowAt(top), top, rows);
    top += rows;
  }
  return path;
}

/// Lines from corner to corner are smooth, and as wide as a pixel across.
CGPath LinesOf(std::uint32_t style) {
  constexpr std::uint32_t kForwardDiagonal = 2;
  constexpr std::uint32_t kBackwardDiagonal = 3;
  constexpr std::uint32_t kDiagonalCross = 5;
  constexpr auto kHalfBand = std::numbers::sqrt2_v<CGFloat> / 2;
  if (style == kForwardDiagonal) return HatchLines(HS_FDIAGONAL, kHalfBand);
  if (style == kBackwardDiagonal) return HatchLines(HS_BDIAGONAL, kHalfBand);
  if (style == kDiagonalCross) return HatchLines(HS_DIAGCROSS, kHalfBand);
  return PixelsOf(kHatchBits[style]);
}

// What lies below the lines would show through translucent ones.
CGPattern CellOf(const EmfPlusHatchBrush& brush) {
  const bool hidesBackground = brush.foreground.alpha == kOpaqueColor;
  const std::uint64_t bits = kHatchBits[brush.style];
  CGPattern pattern;
  pattern.cell = {kSide, kSide};
  if (brush.background.alpha != 0) {
    pattern.shapes.push_back(
        {PixelsOf(hidesBackground ? ~std::uint64_t{0} : ~bits), ColorOnPage(brush.background)});
  }
  if (brush.foreground.alpha != 0) {
    pattern.shapes.push_back(
        {hidesBackground ? LinesOf(brush.style) : PixelsOf(bits), ColorOnPage(brush.foreground)});
  }
  return pattern;
}

std::uint32_t NumberOf(Argb color) {
  return static_cast<std::uint32_t>(color.alpha << 24 | color.red << 16 | color.green << 8 |
                                    color.blue);
}

}  // namespace

std::optional<Paint> HatchPaint(Graphics& graphics, const EmfPlusHatchBrush& brush) {
  if (brush.style >= kEmfPlusHatchStyles) return std::nullopt;
  if (brush.foreground.alpha == 0 && brush.background.alpha == 0) return std::nullopt;
  // Where all is equally translucent, all is opaque, and brought onto the page with that alpha.
  EmfPlusHatchBrush drawn = brush;
  CGColor color = {0, 0, 0, 1};
  if (brush.foreground.alpha == brush.background.alpha) {
    color.alpha = ChannelOnPage(brush.foreground.alpha);
    drawn.foreground.alpha = drawn.background.alpha = kOpaqueColor;
  }
  CGSharedPattern& cell =
      graphics.hatches[{drawn.style, NumberOf(drawn.foreground), NumberOf(drawn.background)}];
  if (cell == nullptr) {
    if (!graphics.canvas->AffordPattern()) {
      graphics.shortfalls.Add(Shortfall::kDrawnTooOften);
      return std::nullopt;
    }
    cell = std::make_shared<const CGPattern>(CellOf(drawn));
  }
  return Paint{color, graphics.canvas->Placed(cell, graphics.state.renderingOrigin)};
}

}  // namespace kelvane::gdiplus
