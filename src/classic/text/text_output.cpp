#include "classic/text/text_output.h"

#include <array>
#include <cstdlib>
#include <memory>

#include "classic/context/colors.h"
#include "classic/context/coordinates.h"
#include "classic/context/path_primitives.h"
#include "classic/reader/geometry_types.h"
#include "classic/reader/integer_arithmetic.h"
#include "classic/text/font_selection.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {
namespace {

constexpr std::int32_t kOpaque = 2;  // SetBkMode

// SetTextAlign ([MS-WMF] 2.1.2.3): TA_UPDATECP 1, TA_RIGHT 2, TA_CENTER 6, TA_BOTTOM 8,
// TA_BASELINE 24.
constexpr std::uint32_t kUpdateCurrentPoint = 1;
constexpr std::uint32_t kHorizontal = 7;
constexpr std::uint32_t kRightMost = 3;
constexpr std::uint32_t kBottom = 8;
constexpr std::uint32_t kBaseline = 24;

struct Disposer {
  void operator()(ATSUStyle style) const { ATSUDisposeStyle(style); }
  void operator()(ATSUTextLayout layout) const { ATSUDisposeTextLayout(layout); }
};

void DrawBackground(AbstractContext& context, const RectangleL& bounds) {
  ContextSetCTM(context, kIdentityTransform);
  CGContextDrawPath(context.context, kCGPathStroke);
  SetSurfaceFillColor(context, context.bkColor);
  AddRectangle(context, bounds);
  CGContextDrawPath(context.context, kCGPathFill);
  ContextSetCTM(context, context.worldTransform);
  SetSurfaceFillColor(context, context.fillColor);
}

std::int64_t FontHeight(const AbstractContext& context) {
  return std::abs(static_cast<std::int64_t>(context.font.lfHeight));
}

/// The height in the direction in which the window's y grows.
std::int64_t SignedFontHeight(const AbstractContext& context) {
  return context.windowExtYPositive != 0 ? FontHeight(context) : -FontHeight(context);
}

// One coordinate of a reference point from window to viewport. Unlike a path's it is a distance in
// double precision, which does not wrap, and rounds after the product and after the sum: text may
// stand a unit beside a line that goes to the same point, and far from it where the line's wraps.
std::int32_t MapTextCoordinate(std::int32_t coordinate, std::int32_t windowOrigin,
                               std::int32_t windowExtent, std::int32_t viewportOrigin,
                               std::int32_t viewportExtent) {
  if (windowExtent == 0) return coordinate;
  const double ratio = static_cast<double>(viewportExtent) / static_cast<double>(windowExtent);
  const double distance = static_cast<double>(coordinate) - static_cast<double>(windowOrigin);
  return Truncate(distance * ratio + static_cast<double>(viewportOrigin));
}

/// Outside MM_TEXT the alignment decides no more than whether the point lies on the baseline.
void PlaceAtReference(const AbstractContext& context, std::int32_t& x, std::int32_t& y) {
  if (context.textAlign < kBaseline) {
    y = WrappingAdd(y, static_cast<std::int32_t>(SignedFontHeight(context)));
  }
  if (context.mapMode == kMapModeAnisotropic) {
    x = MapTextCoordinate(x, context.windowOrg.x, context.windowExt.cx, context.viewportOrg.x,
                          context.viewportExt.cx);
    y = MapTextCoordinate(y, context.windowOrg.y, context.windowExt.cy, context.viewportOrg.y,
                          context.viewportExt.cy);
  }
  y = WrappingNegate(y);
}

/// Under MM_TEXT the text is aligned to its bounds; centred text keeps its x.
void PlaceInBounds(const AbstractContext& context, std::int32_t& x, std::int32_t& y,
                   const RectangleL& bounds) {
  const CGRect box = RectangleToCGRect(context, bounds);
  const CGPoint topLeft = CGContextConvertPointToUserSpace(
      context.context, {box.origin.x, box.origin.y + box.size.height});
  const CGPoint bottomRight = CGContextConvertPointToUserSpace(
      context.context, {box.origin.x + box.size.width, box.origin.y});

  const std::uint32_t horizontal = context.textAlign & kHorizontal;
  if (horizontal <= 1) {
    x = Truncate(topLeft.x);
  } else if (horizontal <= kRightMost) {
    x = Truncate(bottomRight.x);
  }
  if (context.textAlign < kBottom) {
    const std::int64_t ascent = FontHeight(context) * 23 / 30;  // an estimate, in whole units
    y = Truncate(topLeft.y - static_cast<CGFloat>(ascent));
  } else if (context.textAlign < kBaseline) {
    y = Truncate(bottomRight.y);
  } else {
    const auto height = static_cast<CGFloat>(SignedFontHeight(context));
    y = Truncate((bottomRight.y + topLeft.y - height) * 0.5F);
  }
}

ATSUTextMeasurement ToFixed(std::int32_t coordinate) {
  return static_cast<ATSUTextMeasurement>(coordinate) * 65536;
}

}  // namespace

void DrawText(AbstractContext& context, std::u16string_view text, PointL reference,
              const RectangleL& bounds, const std::vector<std::uint32_t>& dx) {
  if (context.bkMode == kOpaque) DrawBackground(context, bounds);
  SetSurfaceFillColor(context, context.textColor);
  PointL position = reference;
  ChangeTextXY(context, position.x, position.y, bounds);
  DrawStringWithSpacing(context, text, position, dx);
  SetSurfaceFillColor(context, context.fillColor);
}

void ChangeTextXY(const AbstractContext& context, std::int32_t& x, std::int32_t& y,
                  const RectangleL& bounds) {
  if ((context.textAlign & kUpdateCurrentPoint) != 0) {
    const CGPoint current = CGContextGetPathCurrentPoint(context.context);
    x = Truncate(current.x);
    y = Truncate(current.y);
  } else if (context.mapMode != kMapModeText) {
    PlaceAtReference(context, x, y);
  } else {
    PlaceInBounds(context, x, y, bounds);
  }
}

void DrawStringWithSpacing(const AbstractContext& context, std::u16string_view text,
                           PointL position, const std::vector<std::uint32_t>& dx) {
  const std::unique_ptr<ATSUStyleObject, Disposer> style(CreateFontStyle(context.font));
  const std::unique_ptr<ATSUTextLayoutObject, Disposer> layout(
      CreateTextLayout(context, text, style.get()));
  const auto draw = [&] {
    ATSUDrawText(layout.get(), kATSUFromTextBeginning, kATSUToTextEnd, ToFixed(position.x),
                 ToFixed(position.y));
  };
  if (context.textAngle != 0) {
    draw();
  } else {
    for (std::size_t i = 0; i < text.size(); ++i) {
      ATSUSetTextPointerLocation(layout.get(), text.data() + i, kATSUFromTextBeginning,
                                 kATSUToTextEnd, 1);
      draw();
      if (i < dx.size()) {
        position.x = WrappingAdd(position.x, static_cast<std::int32_t>(dx[i]));
      }
    }
  }
  CGContextMoveToPoint(context.context, static_cast<CGFloat>(position.x),
                       static_cast<CGFloat>(position.y));
}

ATSUTextLayout CreateTextLayout(const AbstractContext& context, std::u16string_view text,
                                ATSUStyle style) {
  constexpr UniCharCount kRunLengths[] = {kATSUToTextEnd};
  ATSUTextLayout layout = nullptr;
  ATSUCreateTextLayoutWithTextPtr(text.data(), kATSUFromTextBeginning, kATSUToTextEnd,
                                  static_cast<UniCharCount>(text.size()), 1, kRunLengths, &style,
                                  &layout);
  ATSUSetTransientFontMatching(layout, true);
  const Fixed rotation = Truncate(static_cast<double>(context.textAngle) * 65536);
  constexpr std::array kTags = {kATSUCGContextTag, kATSULineRotationTag};
  constexpr std::array<ByteCount, 2> kSizes = {sizeof context.context, sizeof rotation};
  const std::array<const void*, 2> values = {&context.context, &rotation};
  ATSUSetLayoutControls(layout, kTags.size(), kTags.data(), kSizes.data(), values.data());
  return layout;
}

}  // namespace kelvane
