#include "gdiplus/string_layout.h"

#include <algorithm>
#include <cmath>

namespace kelvane::gdiplus {
namespace {

bool HasFlag(const EmfPlusStringFormat& format, std::uint32_t flag) {
  return (format.flags & flag) != 0;
}

/// @return a side of a rectangle, or 0 for one that sets no limit.
double SideOf(float side) {
  return std::isfinite(side) && side > 0 ? side : 0;
}

/// Lines that run downwards begin at the upper right corner.
StringBox BoxOf(const RectF& rectangle, bool isVertical) {
  const double width = SideOf(rectangle.width);
  const double height = SideOf(rectangle.height);
  if (!isVertical) return {{1, 0, 0, 1, rectangle.x, rectangle.y}, width, height};
  return {{0, 1, -1, 0, rectangle.x + width, rectangle.y}, height, width};
}

/// A frame for measuring, in which nothing is drawn.
TextFrame MeasuringFrame(const TextFont& font) {
  TextFrame frame;
  frame.em = font.em;
  return frame;
}

/// Margins are ems; a file may store any number.
double MarginOf(float margin, const TextFont& font) {
  return std::isfinite(margin) ? margin * font.em : 0;
}

TabStops TabsOf(const EmfPlusStringFormat& format, const TextFont& font) {
  constexpr double kUsualEms = 4;
  return {format.firstTab, format.tabs, kUsualEms * font.em};
}

}  // namespace

StringLayout::StringLayout(std::u16string_view text, const TextFont& font, const RectF& rectangle,
                           const EmfPlusStringFormat& format)
    : font_(font),
      format_(format),
      box_(BoxOf(rectangle, HasFlag(format, kEmfPlusVertical))),
      isVertical_(HasFlag(format, kEmfPlusVertical)),
      reading_{isVertical_, !isVertical_ && HasFlag(format, kEmfPlusRightToLeft)},
      text_(ReadString(text, font, format)),
      advances_(MeasureText(text_.written, font, MeasuringFrame(font), reading_)),
      tabs_(TabsOf(format, font)),
      ellipsis_(MeasureText({{kStringEllipsis}, {}}, font, MeasuringFrame(font), reading_).front()),
      lines_(BreakLines(Measured(), Rules())) {
  for (const StringLine& line : lines_)
    widest_ = std::max(widest_, line.width);
}

LineRules StringLayout::Rules() const {
  LineRules rules;
  rules.keepsSpaces = HasFlag(format_, kEmfPlusMeasureTrailingSpaces);
  rules.trimming = format_.trimming;
  rules.ellipsis = ellipsis_;
  rules.wraps = !HasFlag(format_, kEmfPlusNoWrap);
  if (box_.length > 0) {
    rules.available = box_.length - MarginOf(format_.leadingMargin, font_) -
                      MarginOf(format_.trailingMargin, font_);
  }
  // What may reach out of the box, and is not trimmed to it, goes on below it.
  const bool endsInBox = HasFlag(format_, kEmfPlusLineLimit) || !HasFlag(format_, kEmfPlusNoClip) ||
                         format_.trimming != EmfPlusStringTrimming::kNone;
  if (box_.depth > 0 && endsInBox) {
    constexpr double kHair = 1e-6;
    const bool areWhole = HasFlag(format_, kEmfPlusLineLimit);
    const double lines = areWhole ? std::floor((box_.depth + font_.leading) / Pitch() + kHair)
                                  : std::ceil(box_.depth / Pitch() - kHair);
    if (lines < static_cast<double>(text_.written.units.size()))
      rules.mostLines = static_cast<std::size_t>(std::max(lines, 0.0));
  }
  return rules;
}

PlacedStringLine StringLayout::PlaceOf(std::size_t line) const {
  const auto share = [](EmfPlusStringAlignment alignment) {
    if (alignment == EmfPlusStringAlignment::kCenter) return 0.5;
    return alignment == EmfPlusStringAlignment::kFar ? 1.0 : 0.0;
  };
  const double leading = MarginOf(format_.leadingMargin, font_);
  const double trailing = MarginOf(format_.trailingMargin, font_);
  const double width = lines_[line].width;
  const double slack = box_.length - leading - trailing - width;
  const double start = leading + share(format_.alignment) * slack;
  const double top =
      share(format_.lineAlignment) * (box_.depth - Depth()) + static_cast<double>(line) * Pitch();
  // From right to left both are counted from the other side.
  const bool isFromLeft = isVertical_ && HasFlag(format_, kEmfPlusRightToLeft);
  return {reading_.isLeftwards ? box_.length - start - width : start,
          isFromLeft ? box_.depth - top - font_.descent : top + font_.ascent};
}

RectangleD StringLayout::ReachOf(std::size_t line) const {
  const PlacedStringLine place = PlaceOf(line);
  const double em = font_.em;
  return {place.start - em, place.baseline - font_.ascent - em,
          place.start + lines_[line].width + em, place.baseline + font_.descent + em};
}

RectangleD StringLayout::Reach() const {
  RectangleD all = ReachOf(0);
  for (std::size_t line = 1; line < lines_.size(); ++line) {
    const RectangleD reach = ReachOf(line);
    all = {std::min(all.left, reach.left), std::min(all.top, reach.top),
           std::max(all.right, reach.right), std::max(all.bottom, reach.bottom)};
  }
  return all;
}

bool StringLayout::Overflows() const {
  constexpr double kHair = 1e-6;
  return widest_ > Rules().available + kHair * font_.em || Depth() > box_.depth + kHair * font_.em;
}

}  // namespace kelvane::gdiplus
