#include "classic/context/colors.h"

#include <array>

#include "platform/quartz/cg_context_calls.h"

namespace kelvane {
namespace {

std::array<CGFloat, 4> Components(const ContextColor& color) {
  return {static_cast<CGFloat>(color.red), static_cast<CGFloat>(color.green),
          static_cast<CGFloat>(color.blue), 1};
}

}  // namespace

ContextColor FromColorRef(std::uint32_t colorRef) {
  const auto channel = [colorRef](int shift) { return ((colorRef >> shift) & 0xFF) / 256.0; };
  return {channel(0), channel(8), channel(16)};
}

void SetSurfaceFillColor(const AbstractContext& context, const ContextColor& color) {
  CGContextSetFillColor(context.context, Components(color).data());
}

void SetSurfaceStrokeColor(const AbstractContext& context, const ContextColor& color) {
  CGContextSetStrokeColor(context.context, Components(color).data());
}

}  // namespace kelvane
