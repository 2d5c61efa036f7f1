#include "gdi/text_frame.h"

#include <cmath>
#include <numbers>

namespace kelvane {
namespace {

constexpr PointD Scaled(PointD vector, double factor) {
  return {vector.x * factor, vector.y * factor};
}

double Length(PointD vector) {
  return std::hypot(vector.x, vector.y);
}

/// A quarter to the left, as seen with y downwards.
constexpr PointD TurnedLeft(PointD vector) {
  return {vector.y, -vector.x};
}

/// The unit vector of an angle as fonts have it: tenths of a degree, counter-clockwise with y
/// downwards. Quarters are exact.
PointD Direction(std::int32_t angle) {
  constexpr std::int32_t kQuarter = 900;
  constexpr std::int32_t kFullTurn = 4 * kQuarter;
  const std::int32_t turn = (angle % kFullTurn + kFullTurn) % kFullTurn;
  if (turn % kQuarter == 0) {
    constexpr PointD kQuarters[] = {{1, 0}, {0, -1}, {-1, 0}, {0, 1}};
    return kQuarters[turn / kQuarter];
  }
  const double radians = turn / 1800.0 * std::numbers::pi;
  return {std::cos(radians), -std::sin(radians)};
}

TextFrame AdvancedFrame(const LogFont& font, const TextFont& face, const TransformD& toDevice) {
  const PointD baseline = Direction(font.escapement);
  const PointD glyph = Direction(font.orientation);
  const double width = face.em * face.xScale;
  return {toDevice.MapVector(baseline), toDevice.MapVector(TurnedLeft(baseline)),
          toDevice.MapVector(Scaled(glyph, width)),
          toDevice.MapVector(Scaled(TurnedLeft(glyph), face.em)), width};
}

TextFrame CompatibleFrame(const LogFont& font, const TextFont& face, const TransformD& toDevice) {
  const PointD logical = Direction(font.escapement);
  const double yScale = Length(toDevice.MapVector({0, 1}));
  const double xScale = font.width == 0 ? yScale : Length(toDevice.MapVector({1, 0}));
  // With y upwards the angle runs the other way, and the glyphs still stand upright.
  const bool isUpsideDown = toDevice.m22 < 0;
  const PointD baseline = {logical.x, isUpsideDown ? -logical.y : logical.y};
  const double alongScale = Length(toDevice.MapVector(logical));
  const double width = face.em * face.xScale * xScale;
  const PointD upright = TurnedLeft(baseline);
  return {Scaled(baseline, alongScale), Scaled(upright, yScale), Scaled(baseline, width),
          Scaled(upright, face.em * yScale), alongScale > 0 ? width / alongScale : 0};
}

/// A layout from right to left mirrors the page, but what is written on it stays readable.
TransformD WithoutLayout(const Mapping& mapping) {
  const bool isMirrored = (mapping.LayoutFlags() & LAYOUT_RTL) != 0;
  return isMirrored ? mapping.ToDevice().Then({-1, 0, 0, 1}) : mapping.ToDevice();
}

}  // namespace

TextFrame FrameOf(const LogFont& font, const TextFont& face, const Mapping& mapping,
                  GraphicsMode mode) {
  const TransformD toDevice = WithoutLayout(mapping);
  return mode == GM_ADVANCED ? AdvancedFrame(font, face, toDevice)
                             : CompatibleFrame(font, face, toDevice);
}

}  // namespace kelvane
