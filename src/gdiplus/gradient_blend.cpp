#include "gdiplus/gradient_blend.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "gdiplus/page_colors.h"

namespace kelvane::gdiplus {
namespace {

constexpr double kLightGamma = 2.2;

/// In thousandths, as all colours on a page.
CGFloat RoundedChannel(double channel) {
  constexpr double kParts = 1000;
  return static_cast<CGFloat>(std::rint(channel * kParts) / kParts);
}

CGFloat MixedEvenly(CGFloat a, CGFloat b, double part) {
  return RoundedChannel(a + (double{b} - a) * part);
}

CGFloat MixedAsLight(CGFloat a, CGFloat b, double part) {
  const double from = std::pow(a, kLightGamma);
  return RoundedChannel(std::pow(from + (std::pow(b, kLightGamma) - from) * part, 1 / kLightGamma));
}

CGColor MixedColor(const CGColor& a, const CGColor& b, double part, bool asLight) {
  const auto mix = asLight ? MixedAsLight : MixedEvenly;
  return {mix(a.red, b.red, part), mix(a.green, b.green, part), mix(a.blue, b.blue, part),
          MixedEvenly(a.alpha, b.alpha, part)};
}

bool MakesSense(const EmfPlusBlend& blend) {
  const auto& positions = blend.positions;
  const auto isFinite = [](float number) { return std::isfinite(number); };
  return positions.size() >= 2 && std::ranges::all_of(positions, isFinite) &&
         std::ranges::is_sorted(positions) && std::ranges::all_of(blend.factors, isFinite) &&
         (blend.factors.size() == positions.size() || blend.colors.size() == positions.size());
}

}  // namespace

GradientBlend::GradientBlend(const EmfPlusBlend& blend, bool isGammaCorrected)
    : isGammaCorrected_(isGammaCorrected) {
  if (!MakesSense(blend)) {
    AddLevelsUpTo({0, 0, std::nullopt});
    AddLevelsUpTo({1, 1, std::nullopt});
    return;
  }
  const bool hasColors = blend.colors.size() == blend.positions.size();
  for (std::size_t i = 0; i < blend.positions.size(); ++i) {
    Level level = {std::clamp<double>(blend.positions[i], 0, 1), 0, std::nullopt};
    if (hasColors) {
      level.color = ColorOnPage(blend.colors[i]);
    } else {
      level.factor = std::clamp<double>(blend.factors[i], 0, 1);
    }
    if (i == 0 && level.position > 0) levels_.push_back({0, level.factor, level.color});
    AddLevelsUpTo(level);
  }
  const Level last = levels_.back();
  if (last.position < 1) levels_.push_back({1, last.factor, last.color});
}

// Between colours that are mixed as light is, what is even bends.
void GradientBlend::AddLevelsUpTo(const Level& level) {
  constexpr int kPieces = 16;
  const bool isBent =
      isGammaCorrected_ && !levels_.empty() && levels_.back().position < level.position;
  if (isBent) {
    const Level from = levels_.back();
    for (int i = 1; i < kPieces; ++i) {
      const double part = static_cast<double>(i) / kPieces;
      Level between = {from.position + (level.position - from.position) * part,
                       from.factor + (level.factor - from.factor) * part, std::nullopt};
      if (level.color) between.color = MixedColor(*from.color, *level.color, part, true);
      levels_.push_back(between);
    }
  }
  levels_.push_back(level);
}

CGColor GradientBlend::ColorAt(std::size_t level, const Argb& start, const Argb& end) const {
  const Level& at = levels_[level];
  if (at.color) return *at.color;
  return MixedColor(ColorOnPage(start), ColorOnPage(end), at.factor, isGammaCorrected_);
}

}  // namespace kelvane::gdiplus
