#include "gdiplus/strings.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "gdi/text_frame.h"
#include "gdiplus/clips.h"
#include "gdiplus/string_font.h"
#include "gdiplus/string_layout.h"
#include "gdiplus/text_painter.h"

namespace kelvane::gdiplus {
namespace {

/// @return what holds a rectangle on the device.
RectangleD BoundsOnDevice(const TransformD& toDevice, const RectangleD& box) {
  const PointD corners[] = {toDevice.Map({box.left, box.top}), toDevice.Map({box.right, box.top}),
                            toDevice.Map({box.right, box.bottom}),
                            toDevice.Map({box.left, box.bottom})};
  const auto [left, right] = std::ranges::minmax(corners, {}, &PointD::x);
  const auto [top, bottom] = std::ranges::minmax(corners, {}, &PointD::y);
  return {left.x, top.y, right.x, bottom.y};
}

bool Meet(const RectangleD& one, const RectangleD& other) {
  return one.left <= other.right && other.left <= one.right && one.top <= other.bottom &&
         other.top <= one.bottom;
}

/// Lies a string along the axes of its box.
TextFrame FrameIn(const TransformD& toDevice, const TextFont& font) {
  const PointD along = toDevice.MapVector({1, 0});
  const PointD up = toDevice.MapVector({0, -1});
  return {
      along, up, {along.x * font.em, along.y * font.em}, {up.x * font.em, up.y * font.em}, font.em};
}

/// A line on its way to the page, a stretch between tabs at a time.
class StringLineWriter {
 public:
  StringLineWriter(const StringLayout& layout, std::size_t line, const TextFrame& frame,
                   PointD origin, TextPainter& painter)
      : layout_(layout),
        line_(layout.Lines()[line]),
        frame_(frame),
        origin_(origin),
        painter_(painter) {}

  void Write() {
    AddUnits(line_.begin, line_.end);
    if (line_.isTrimmed) {
      Add(kStringEllipsis, layout_.EllipsisAdvance());
      AddUnits(line_.tailBegin, line_.tailEnd);
    }
    EndStretch();
  }

 private:
  void AddUnits(std::size_t begin, std::size_t end) {
    const StringText& text = layout_.Text();
    const MeasuredString measured = layout_.Measured();
    auto hotkey = std::ranges::lower_bound(text.hotkeys, begin);
    for (std::size_t at = begin; at < end; ++at) {
      const double advance = measured.AdvanceAt(at, pen_);
      if (hotkey != text.hotkeys.end() && *hotkey == at) {
        ++hotkey;
        const double from = Along(pen_, advance);
        painter_.Underline(from, from + advance, frame_, origin_);
      }
      if (measured.units[at] == u'\t') {
        EndStretch();
        pen_ += advance;
        stretchStart_ = pen_;
      } else {
        Add(measured.units[at], advance);
      }
    }
  }

  void Add(char16_t unit, double advance) {
    stretch_.units += unit;
    stretch_.advances.push_back({advance, 0});
    pen_ += advance;
  }

  void EndStretch() {
    if (!stretch_.units.empty()) {
      const PointD start = frame_.ToDevice({Along(stretchStart_, pen_ - stretchStart_), 0});
      painter_.Write(stretch_, layout_.LineReading(), frame_,
                     {origin_.x + start.x, origin_.y + start.y});
    }
    stretch_.units.clear();
    stretch_.advances.clear();
    stretchStart_ = pen_;
  }

  /// @return where a part of the line lies whose place is known in the order of its reading.
  [[nodiscard]] double Along(double from, double width) const {
    return layout_.LineReading().isLeftwards ? line_.width - from - width : from;
  }

  const StringLayout& layout_;
  const StringLine& line_;
  const TextFrame& frame_;
  PointD origin_;
  TextPainter& painter_;
  WrittenText stretch_;
  double pen_ = 0;
  double stretchStart_ = 0;
};

/// Writes the lines that can be seen on the page.
void WriteLines(Graphics& graphics, const StringLayout& layout, const TextFont& font,
                std::int32_t style, const EmfPlusBrush& brush) {
  const TransformD toDevice = layout.Box().toWorld.Then(WorldToDevice(graphics));
  TextPainter painter(graphics, font, brush, BoundsOnDevice(toDevice, layout.Reach()));
  if (!painter.Shows()) return;
  if (layout.Text().written.hasUnknownSymbols)
    graphics.shortfalls.Add(Shortfall::kMissingCharacters);
  const TextFrame frame = FrameIn(toDevice, font);
  for (std::size_t i = 0; i < layout.Lines().size(); ++i) {
    const RectangleD reach = BoundsOnDevice(toDevice, layout.ReachOf(i));
    if (!Meet(reach, graphics.canvas->Whole())) continue;
    const PlacedStringLine place = layout.PlaceOf(i);
    const PointD origin = toDevice.Map({place.start, place.baseline});
    StringLineWriter(layout, i, frame, origin, painter).Write();
    const double width = layout.Lines()[i].width;
    if ((style & kEmfPlusFontUnderline) != 0) painter.Underline(0, width, frame, origin);
    if ((style & kEmfPlusFontStrikeout) != 0) painter.StrikeOut(0, width, frame, origin);
  }
  painter.Finish();
}

}  // namespace

void DrawString(Graphics& graphics, std::u16string_view text, const EmfPlusFont& font,
                const EmfPlusBrush& brush, const RectF& layout, const EmfPlusStringFormat* format) {
  static const EmfPlusStringFormat kDefault;
  if (graphics.canvas == nullptr || graphics.fonts == nullptr) return;
  const EmfPlusStringFormat& used = format != nullptr ? *format : kDefault;
  auto resolved = ResolveFont(graphics, font);
  if (!resolved || !std::isfinite(layout.x) || !std::isfinite(layout.y)) return;
  resolved->isVertical = (used.flags & kEmfPlusVertical) != 0;

  // A record of a few bytes may name a format with as many tab stops as there can be.
  if (!graphics.canvas->Afford(used.tabs.size())) {
    return graphics.shortfalls.Add(Shortfall::kDrawnTooOften);
  }
  const StringLayout set(text, *resolved, layout, used);
  if (set.Lines().empty()) return;
  const ClipState clip = graphics.state.clip;
  const bool hasBox = set.Box().length > 0 && set.Box().depth > 0;
  if (hasBox && (used.flags & kEmfPlusNoClip) == 0 && set.Overflows())
    SetClip(graphics, layout, EmfPlusCombineMode::kIntersect);
  WriteLines(graphics, set, *resolved, font.style, brush);
  graphics.state.clip = clip;
}

}  // namespace kelvane::gdiplus
