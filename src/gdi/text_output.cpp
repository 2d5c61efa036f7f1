#include "gdi/text_output.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "gdi/clipping.h"
#include "gdi/exactly.h"
#include "gdi/figures.h"
#include "gdi/font_book.h"
#include "gdi/glyph_marks.h"
#include "gdi/objects.h"
#include "gdi/page_color.h"
#include "gdi/painting.h"
#include "gdi/text_frame.h"
#include "gdi/text_layout.h"
#include "gdi/text_reading.h"

namespace kelvane {
namespace {

/// A line of text that is set and knows where it goes.
struct SetLine {
  TextFrame frame;
  Spacing spacing;
  Reading reading;
  PlacedLine placed;    // its last piece; of a line that is not long, all of it
  bool isLong = false;  // so that its pieces are to be placed anew when they are wanted
  PointD origin;        // device units, of the line's own axes
};

enum class Side : std::uint8_t { kLeft, kRight, kCenter };

/// From right to left, left and right change places.
Side SideOf(const DeviceState& state) {
  const bool isMirrored = (state.mapping.LayoutFlags() & LAYOUT_RTL) != 0;
  switch (state.textAlign & TA_HORIZONTALMASK) {
    case TA_CENTER:
      return Side::kCenter;
    case TA_RIGHT:
      return isMirrored ? Side::kLeft : Side::kRight;
    default:
      return isMirrored ? Side::kRight : Side::kLeft;
  }
}

/// Fonts are measured in whole logical units, or in pixels of the device where those are smaller,
/// unless the height of their cell was asked for. Viewers put glyphs on whole rows, so the baseline
/// is kept on the lower side of the edge of one.
/// @return how far the baseline lies above the reference point, logical units.
double Lift(const DeviceState& state, const TextFont& font, const TextFrame& frame) {
  constexpr double kHair = 1.0 / 16;  // device units
  const auto alignment = static_cast<TextAlign>(state.textAlign & TA_VERTICALMASK);
  if (alignment == TA_BASELINE) return 0;
  const double lift = alignment == TA_BOTTOM ? font.descent : -font.ascent;
  const double pixels = frame.PixelsUp();
  if (state.font->height >= 0 || !(pixels > 0)) return lift;
  const double unit = std::min(1.0, 1 / pixels);
  return std::round(lift / unit) * unit - kHair / pixels;
}

Spacing SpacingOf(const DeviceContext& device, const TextFrame& frame) {
  const DeviceState& state = device.state;
  const double pixels = device.isForAnyDevice ? 1 : frame.PixelsAlong();
  return {pixels > 0 ? 1 / pixels : 0, static_cast<double>(state.extraOfCharacter),
          state.breaks > 0 ? static_cast<double>(state.extraOfBreaks) / state.breaks : 0};
}

Reading ReadingOf(const DeviceState& state, const TextPlacing& placing) {
  return {(placing.options & ETO_IGNORELANGUAGE) != 0,
          (placing.options & ETO_RTLREADING) != 0 || (state.textAlign & TA_RTLREADING) != 0};
}

/// Sets the line at its reference point, and moves the current position where it starts there.
SetLine Set(DeviceContext& device, const TextPlacing& placing, const TextFont& font) {
  DeviceState& state = device.state;
  SetLine line;
  line.frame = FrameOf(*state.font, font, state.mapping, placing.graphicsMode);
  line.spacing = SpacingOf(device, line.frame);
  line.reading = ReadingOf(state, placing);
  int pieces = 0;
  PlaceText(device.text, font, line.frame, line.spacing, line.reading, [&](PlacedLine& piece) {
    line.placed = std::move(piece);
    line.isLong = ++pieces > 1;
  });
  const bool isAtCurrent = (state.textAlign & TA_UPDATECP) != 0;
  const PointD logical = isAtCurrent ? state.currentPosition : Exactly(placing.reference);
  const PointD reference = state.mapping.ToDevice().Map(logical);

  const Side side = SideOf(state);
  const PointD end = line.placed.end;
  const double back = side == Side::kRight ? 1 : side == Side::kCenter ? 0.5 : 0;
  const PointD start = {-back * end.x, Lift(state, font, line.frame) - back * end.y};
  const PointD toStart = line.frame.ToDevice(start);
  line.origin = {reference.x + toStart.x, reference.y + toStart.y};
  if (isAtCurrent && side != Side::kCenter) {
    const PointD whole = line.frame.ToDevice(end);
    const double sign = side == Side::kRight ? -1 : 1;
    const auto toLogical = state.mapping.ToLogical();
    if (toLogical) {
      state.currentPosition =
          toLogical->Map({reference.x + sign * whole.x, reference.y + sign * whole.y});
    }
  }
  return line;
}

void AddCell(const SetLine& line, const TextFont& font, CGPath& path) {
  AddLineBox(line.frame, line.origin, {0, -font.descent, line.placed.end.x, font.ascent}, path);
}

/// Underline and strike-out run from the start of the line to its end.
void AddRules(const SetLine& line, const LogFont& asked, const TextFont& font, CGPath& path) {
  const auto add = [&](const TextRule& rule) {
    AddRule(rule, font, 0, line.placed.end.x, line.frame, line.origin, path);
  };
  if (asked.underline != 0) add(font.underline);
  if (asked.strikeOut != 0) add(font.strikeOut);
}

/// Recorders that have no rectangle store one with its corners at 0 and -1.
bool HasArea(const RectangleL& rectangle) {
  return rectangle.left != rectangle.right && rectangle.top != rectangle.bottom &&
         rectangle != RectangleL{0, 0, -1, -1};
}

void FillRectangle(DeviceContext& device, const RectangleL& rectangle) {
  if (!HasArea(rectangle)) return;
  FigurePath figures(device.scratch, device.state.mapping.ToDevice());
  figures.AddPlainRectangle(Exactly(rectangle));
  FillWith(device, device.scratch, ALTERNATE, ResolveColor(device, device.state.backgroundColor),
           R2_COPYPEN);
}

/// Calls `draw` with each piece of a line.
template <class Draw>
void ForEachPiece(DeviceContext& device, SetLine& line, const TextFont& font, Draw draw) {
  if (!line.isLong) return draw(line.placed);
  PlaceText(device.text, font, line.frame, line.spacing, line.reading, draw);
}

void AddOutlines(DeviceContext& device, SetLine& line, const TextFont& font, CGPath& path) {
  const OutlineUse use = device.state.bracket ? OutlineUse::kKept : OutlineUse::kPainted;
  ForEachPiece(device, line, font, [&](const PlacedLine& piece) {
    if (!AddOutlines(device.canvas, piece, line.frame, line.origin, use, path))
      device.shortfalls.Add(Shortfall::kDrawnTooOften);
  });
}

/// Within a bracket text is its outlines, without a background.
void AddToBracket(DeviceContext& device, SetLine& line, const TextFont& font) {
  CGPath& path = device.bracketPath;
  AddOutlines(device, line, font, path);
  AddRules(line, *device.state.font, font, path);
  device.state.figureIsOpen = false;
}

void DrawGlyphs(DeviceContext& device, SetLine& line, const TextFont& font, RgbColor color) {
  if (!BringClip(device)) return;
  CGContext& surface = device.canvas->Surface();
  surface.SetFillColor(ColorOnPage(color));
  surface.SetFillPattern(nullptr);
  surface.SetBlendMode(kCGBlendModeNormal);
  ForEachPiece(device, line, font, [&](PlacedLine& piece) {
    DrawGlyphs(*device.canvas, piece, line.frame, line.origin);
  });
}

void Draw(DeviceContext& device, SetLine& line, const TextFont& font) {
  const DeviceState& state = device.state;
  if (state.backgroundMode == OPAQUE) {
    AddCell(line, font, device.scratch);
    FillWith(device, device.scratch, WINDING, ResolveColor(device, state.backgroundColor),
             R2_COPYPEN);
  }
  const RgbColor color = ResolveColor(device, state.textColor);
  if (device.outlinesText) {
    AddOutlines(device, line, font, device.scratch);
  } else {
    DrawGlyphs(device, line, font, color);
  }
  AddRules(line, *state.font, font, device.scratch);
  FillWith(device, device.scratch, WINDING, color, R2_COPYPEN);
}

/// Writes what device.text holds.
void Write(DeviceContext& device, const TextPlacing& placing, const TextFont& font) {
  SetLine line = Set(device, placing, font);
  if (line.placed.lacksCharacters || device.text.hasUnknownSymbols)
    device.shortfalls.Add(Shortfall::kMissingCharacters);
  if (device.text.hasUnknownGlyphs) device.shortfalls.Add(Shortfall::kForeignGlyphs);
  if (!std::isfinite(line.origin.x) || !std::isfinite(line.origin.y)) return;
  if (device.state.bracket) return AddToBracket(device, line, font);
  const bool isClipped = (placing.options & ETO_CLIPPED) != 0;
  if (!isClipped || (placing.options & ETO_NO_RECT) != 0) return Draw(device, line, font);
  if (!HasArea(placing.rectangle)) return;
  const ClipState clip = device.state.clip;
  IntersectClipRect(device, placing.rectangle);
  Draw(device, line, font);
  device.state.clip = clip;
}

/// Logical units in 1/96 inch, from top to bottom.
double ScreenPixel(const DeviceContext& device) {
  const PointD down = device.state.mapping.ToDevice().MapVector({0, 1});
  const double pixels = std::hypot(down.x, down.y);
  const double pixel = device.canvas != nullptr ? device.canvas->ScreenPixel() : 1;
  return pixels > 0 ? pixel / pixels : pixel;
}

/// @param read  takes the font and reads the text into device.text.
template <class Text, class Read>
void WriteText(DeviceContext& device, const TextPlacing& placing, const Text& text, Read read) {
  const bool hasRectangle = (placing.options & ETO_NO_RECT) == 0;
  if (hasRectangle && (placing.options & ETO_OPAQUE) != 0 && !device.state.bracket)
    FillRectangle(device, placing.rectangle);
  if (text.empty() || device.fonts == nullptr) return;
  const TextFont& font = device.fonts->Resolve(*device.state.font, ScreenPixel(device));
  read(font);
  Write(device, placing, font);
}

}  // namespace

void ExtTextOut(DeviceContext& device, const TextPlacing& placing, std::u16string text) {
  WriteText(device, placing, text,
            [&](const TextFont& font) { ReadText(placing, std::move(text), font, device.text); });
}

void ExtTextOut(DeviceContext& device, const TextPlacing& placing, const std::string& text) {
  WriteText(device, placing, text, [&](const TextFont& font) {
    ReadText(placing, text, *device.state.font, font, device.text);
  });
}

void SetTextJustification(DeviceContext& device, std::int32_t extra, std::int32_t breaks) {
  device.state.extraOfBreaks = extra;
  device.state.breaks = breaks;
}

void SetTextCharacterExtra(DeviceContext& device, std::int32_t extra) {
  device.state.extraOfCharacter = extra;
}

}  // namespace kelvane
