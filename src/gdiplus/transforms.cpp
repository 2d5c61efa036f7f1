#include "gdiplus/transforms.h"

#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace kelvane::gdiplus {
namespace {

void JoinWorld(Graphics& graphics, const TransformD& matrix, MatrixOrder order) {
  TransformD& world = graphics.state.world;
  const TransformD joined =
      order == MatrixOrder::kPrepend ? matrix.Then(world) : world.Then(matrix);
  if (joined.IsFinite()) world = joined;
}

/// @return what maps one upright rectangle to the other; nullopt when the source has no size.
std::optional<TransformD> Between(const RectF& source, const RectF& destination) {
  const double x = double{destination.width} / source.width;
  const double y = double{destination.height} / source.height;
  const TransformD map = {x, 0, 0, y, destination.x - source.x * x, destination.y - source.y * y};
  if (!map.IsFinite()) return std::nullopt;
  return map;
}

/// Starts anew, inside of what there is.
void Enter(Graphics& graphics, const TransformD& toDevice, std::uint32_t label) {
  graphics.saved.Save(label, graphics.state);
  GraphicsState inside;
  inside.container = toDevice;
  inside.clip = graphics.state.clip;
  inside.clip.MoveIntoMeta();
  graphics.state = std::move(inside);
}

}  // namespace

void SetWorldTransform(Graphics& graphics, const XForm& matrix) {
  const TransformD world = Exactly(matrix);
  if (world.IsFinite()) graphics.state.world = world;
}

void ResetWorldTransform(Graphics& graphics) {
  graphics.state.world = {};
}

void MultiplyWorldTransform(Graphics& graphics, const XForm& matrix, MatrixOrder order) {
  JoinWorld(graphics, Exactly(matrix), order);
}

void TranslateWorldTransform(Graphics& graphics, float x, float y, MatrixOrder order) {
  JoinWorld(graphics, {1, 0, 0, 1, x, y}, order);
}

void ScaleWorldTransform(Graphics& graphics, float x, float y, MatrixOrder order) {
  JoinWorld(graphics, {x, 0, 0, y, 0, 0}, order);
}

void RotateWorldTransform(Graphics& graphics, float degrees, MatrixOrder order) {
  // Right angles come out whole, so that rectangles stay rectangles.
  const double quarters = std::remainder(double{degrees}, 360) / 90;
  const double angle = quarters * std::numbers::pi / 2;
  const bool isRight = quarters == std::rint(quarters);
  const double cosine = isRight ? std::rint(std::cos(angle)) : std::cos(angle);
  const double sine = isRight ? std::rint(std::sin(angle)) : std::sin(angle);
  JoinWorld(graphics, {cosine, sine, -sine, cosine, 0, 0}, order);
}

void SetPageTransform(Graphics& graphics, EmfPlusUnit unit, float scale) {
  if (!std::isfinite(scale)) return;
  graphics.state.pageUnit = unit;
  graphics.state.pageScale = scale;
}

void Save(Graphics& graphics, std::uint32_t label) {
  graphics.saved.Save(label, graphics.state);
}

void Restore(Graphics& graphics, std::uint32_t label) {
  if (auto state = graphics.saved.Restore(label)) graphics.state = *std::move(state);
}

void BeginContainer(Graphics& graphics, const RectF& destination, const RectF& source,
                    EmfPlusUnit unit, std::uint32_t label) {
  const TransformD outside = WorldToDevice(graphics);
  const auto map = Between(source, destination);
  if (!map) return Enter(graphics, outside, label);
  const PointD pixels = PixelsIn(graphics, unit);  // the page's unit inside
  const TransformD toUnit = {1 / pixels.x, 0, 0, 1 / pixels.y, 0, 0};
  Enter(graphics, toUnit.Then(*map).Then(outside), label);
}

void BeginContainer(Graphics& graphics, std::uint32_t label) {
  Enter(graphics, WorldToDevice(graphics), label);
}

void EndContainer(Graphics& graphics, std::uint32_t label) {
  Restore(graphics, label);
}

}  // namespace kelvane::gdiplus
