#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/quartz/cg_blend_mode.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_path.h"
#include "platform/quartz/cg_pattern.h"
#include "platform/quartz/cg_stroke_style.h"

namespace kelvane {

/// The numbers are part of the platform's interface.
enum CGPathDrawingMode : std::uint8_t {
  kCGPathFill = 0,    // non-zero winding
  kCGPathEOFill = 1,  // even-odd
  kCGPathStroke = 2,
  kCGPathFillStroke = 3,    // non-zero winding
  kCGPathEOFillStroke = 4,  // even-odd
};

/// How the bits of a mark's channels are combined with those below it: for each three bits of the
/// fill colour or pattern, of the mark itself and of what is there, from the high ones on, the
/// result's. Nullopt, as usual, for marks that are mixed.
using CGBitOperation = std::optional<std::uint8_t>;

/// The numbers are PDF's text rendering modes, too (ISO 32000-1, table 106).
enum CGTextDrawingMode : std::uint8_t {
  kCGTextFill = 0,
  kCGTextStroke = 1,
  kCGTextFillStroke = 2,
  kCGTextInvisible = 3,
};

/// What SaveGState keeps and RestoreGState brings back. The path and the text matrix are not part
/// of it.
struct CGGraphicsState {
  CGAffineTransform ctm;
  CGColor fillColor;
  CGColor strokeColor;
  CGSharedPattern fillPattern;        // in the place of the fill colour
  CGSharedPattern strokePattern;      // in the place of the stroke colour
  std::uint8_t fillComponents = 1;    // of the fill colour space, alpha not counted
  std::uint8_t strokeComponents = 1;  // of the stroke colour space
  CGTextDrawingMode textMode = kCGTextFill;
  bool hidesAll = false;  // clipped to nothing
  CGFloat lineWidth = 1;  // user space
  CGFloat miterLimit = 10;
  CGLineCap lineCap = kCGLineCapButt;
  CGLineJoin lineJoin = kCGLineJoinMiter;
  CGBlendMode blendMode = kCGBlendModeNormal;
  CGFloat alpha = 1;            // of whatever is marked, colours and images alike
  CGBitOperation bitOperation;  // in place of both, where the output has it
  CGLineDash dash;              // user space
  std::size_t clipCount = 0;    // how many of the page's clips are in effect, oldest first

  friend bool operator==(const CGGraphicsState&, const CGGraphicsState&) = default;
};

/// One clip in effect: the area all later marks are cut to, together with the clips before it.
struct CGClip {
  CGPath area;            // page space
  bool isEvenOdd;         // else non-zero winding
  std::uint64_t serial;   // never used twice on a surface
  std::size_t saveDepth;  // how many states were saved when it was set
};

/// How a stroke is written for the CTM in force. Under an even scale only the width changes; under
/// an uneven one the pen itself is deformed, so the stroke is drawn in user space through
/// `transform`.
struct CGStrokeGeometry {
  CGFloat width;                     // in the space the stroke is drawn in
  CGFloat scale;                     // user space to that space, for lengths along the line
  bool throughTransform;             // draw under `transform`, points mapped back by `inverse`
  CGAffineTransform transform = {};  // user space to page
  CGAffineTransform inverse = {};    // page to user space
};

/// @return the geometry of a stroke in `state`. Under a singular transform the stroke is of width
///         0.
CGStrokeGeometry StrokeGeometry(const CGGraphicsState& state);

/// @return the width of strokes along the outlines of glyphs, which are drawn in page space
///         whatever the CTM: scaled as areas are.
CGFloat TextStrokeWidth(const CGGraphicsState& state);

/// @return `state` as text that is made bold is drawn under: a stroke in the fill colour goes along
///         the outlines. Only filled text is thickened.
/// @param size  of the text, user space.
CGGraphicsState Emboldened(const CGGraphicsState& state, CGFloat size);

constexpr bool Fills(CGPathDrawingMode mode) {
  return mode != kCGPathStroke;
}
constexpr bool Strokes(CGPathDrawingMode mode) {
  return mode >= kCGPathStroke;
}

constexpr bool Fills(CGTextDrawingMode mode) {
  return mode == kCGTextFill || mode == kCGTextFillStroke;
}
constexpr bool Strokes(CGTextDrawingMode mode) {
  return mode == kCGTextStroke || mode == kCGTextFillStroke;
}

}  // namespace kelvane
