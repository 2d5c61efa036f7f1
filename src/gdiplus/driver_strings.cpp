#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

#include "gdi/text_frame.h"
#include "gdi/text_reading.h"
#include "gdiplus/string_font.h"
#include "gdiplus/strings.h"
#include "gdiplus/text_painter.h"
#include "metafile/emfplus/emfplus_drawing_records.h"

namespace kelvane::gdiplus {
namespace {

/// The axes of a line in world units, each a unit long.
struct LineAxes {
  PointD along;
  PointD up;
};

constexpr LineAxes kRightwards = {{1, 0}, {0, -1}};
constexpr LineAxes kDownwards = {{0, 1}, {1, 0}};

TextFrame GlyphFrame(const LineAxes& axes, const TextFont& font, const XForm* matrix,
                     const TransformD& toDevice) {
  const TransformD ofGlyphs = (matrix != nullptr ? Exactly(*matrix) : TransformD{}).Then(toDevice);
  const double em = font.em;
  return {toDevice.MapVector(axes.along), toDevice.MapVector(axes.up),
          ofGlyphs.MapVector({em * axes.along.x, em * axes.along.y}),
          ofGlyphs.MapVector({em * axes.up.x, em * axes.up.y}), em};
}

/// @return how the pen gets from each place to the next.
std::vector<PointD> AdvancesBetween(std::span<const PointF> places, const LineAxes& axes) {
  std::vector<PointD> advances(places.size());
  for (std::size_t i = 0; i + 1 < places.size(); ++i) {
    const PointD step = {double{places[i + 1].x} - places[i].x,
                         double{places[i + 1].y} - places[i].y};
    advances[i] = {step.x * axes.along.x + step.y * axes.along.y,
                   step.x * axes.up.x + step.y * axes.up.y};
  }
  return advances;
}

/// @return what holds the glyphs on the device, two ems around each place.
/// @param end  where the pen is left, from the first of them; in the line's own axes.
RectangleD BoundsOfGlyphs(std::span<const PointF> places, PointD end, const TextFrame& frame,
                          const TransformD& toDevice) {
  const auto mapped = [&](PointF place) { return toDevice.Map({place.x, place.y}); };
  const PointD first = mapped(places[0]);
  const PointD way = frame.ToDevice(end);
  const PointD last = {first.x + way.x, first.y + way.y};
  RectangleD bounds = {std::min(first.x, last.x), std::min(first.y, last.y),
                       std::max(first.x, last.x), std::max(first.y, last.y)};
  for (const PointF place : places) {
    const PointD point = mapped(place);
    bounds = {std::min(bounds.left, point.x), std::min(bounds.top, point.y),
              std::max(bounds.right, point.x), std::max(bounds.bottom, point.y)};
  }
  const double x = 2 * (std::abs(frame.glyphAlong.x) + std::abs(frame.glyphUp.x));
  const double y = 2 * (std::abs(frame.glyphAlong.y) + std::abs(frame.glyphUp.y));
  return {bounds.left - x, bounds.top - y, bounds.right + x, bounds.bottom + y};
}

/// Numbers beyond these have no room in the distances between them.
bool IsFinitePlace(PointF place) {
  constexpr float kFarthest = 1e30F;
  return std::abs(place.x) <= kFarthest && std::abs(place.y) <= kFarthest;
}

}  // namespace

void DrawDriverString(Graphics& graphics, std::u16string_view values,
                      std::span<const PointF> places, const EmfPlusFont& font,
                      const EmfPlusBrush& brush, std::uint32_t options, const XForm* matrix) {
  if (graphics.canvas == nullptr || graphics.fonts == nullptr) return;
  const bool advancesByFace = (options & kEmfPlusRealizedAdvance) != 0;
  if (!advancesByFace) values = values.substr(0, places.size());
  places = places.first(std::min(advancesByFace ? 1 : values.size(), places.size()));
  auto resolved = ResolveFont(graphics, font);
  if (!resolved || values.empty() || places.empty()) return;
  if (!std::ranges::all_of(places, IsFinitePlace)) return;
  const bool isVertical = (options & kEmfPlusVerticalGlyphs) != 0;
  resolved->isVertical = isVertical;

  const LineAxes& axes = isVertical ? kDownwards : kRightwards;
  WrittenText text{std::u16string(values), {}};
  if (!advancesByFace) text.advances = AdvancesBetween(places, axes);
  InterpretText((options & kEmfPlusCmapLookup) == 0, *resolved, text);

  const TransformD toDevice = WorldToDevice(graphics);
  const TextFrame frame = GlyphFrame(axes, *resolved, matrix, toDevice);
  const Reading reading = {.isOrdered = true, .isLeftwards = false};
  PointD end;
  if (advancesByFace) {
    const auto advances = MeasureText(text, *resolved, frame, reading);
    end.x = std::accumulate(advances.begin(), advances.end(), 0.0);
  }
  const RectangleD bounds = BoundsOfGlyphs(places, end, frame, toDevice);
  const PointD origin = toDevice.Map({places[0].x, places[0].y});
  TextPainter painter(graphics, *resolved, brush, bounds);
  if (!painter.Shows()) return;
  painter.Write(text, reading, frame, origin);
  painter.Finish();
}

}  // namespace kelvane::gdiplus
