#include "gdi/clip_state.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kelvane {
namespace {

std::shared_ptr<const ClipCut> Cut(std::shared_ptr<const ClipCut> outer, Area area) {
  return std::make_shared<const ClipCut>(std::move(outer), std::move(area));
}

/// Two cuts become one where that costs no more than keeping them: many cuts in a row by one small
/// rectangle each must not copy all the bands there are each time.
bool ShouldBeOne(const Area& cut, const Area& area) {
  const auto* there = std::get_if<Region>(&cut);
  const auto* added = std::get_if<Region>(&area);
  return there != nullptr && added != nullptr && there->EdgeCount() <= 64 + 4 * added->EdgeCount();
}

}  // namespace

// A long chain would end in as many nested destructors.
ClipCut::~ClipCut() {
  std::shared_ptr<const ClipCut> next = std::move(outer_);
  while (next && next.use_count() == 1)
    next = std::exchange(next->outer_, nullptr);
}

bool ClipState::Join(const Area& area, RegionMode mode, Steps& steps) {
  switch (mode) {
    case RGN_COPY:
      clip_ = Cut(meta_, area);
      return true;
    case RGN_AND:
    case RGN_DIFF:
      return CutTo(area, mode, steps);
    case RGN_OR:
    case RGN_XOR:
      break;
    default:
      return false;
  }
  if (!HasClip()) return mode == RGN_OR || CutToOutside(area, steps);
  const std::optional<Area> whole = Whole(steps);
  if (!whole) return false;
  std::optional<Area> joined = Combine(*whole, area, mode, steps);
  if (!joined) return false;
  clip_ = Cut(meta_, *std::move(joined));
  return true;
}

bool ClipState::Offset(double x, double y, Steps& steps) {
  std::vector<const ClipCut*> cuts;
  for (const ClipCut* cut = clip_.get(); cut != meta_.get(); cut = cut->Outer().get()) {
    const auto* region = std::get_if<Region>(&cut->CutTo());
    if (!steps.Take(1 + (region != nullptr ? region->EdgeCount() : 0))) return false;
    cuts.push_back(cut);
  }
  const std::shared_ptr<const ClipCut> before = std::exchange(clip_, meta_);  // keeps the cuts
  std::ranges::reverse(cuts);
  for (const ClipCut* cut : cuts) {
    clip_ = Cut(clip_, Translated(cut->CutTo(), x, y));
  }
  return true;
}

/// @param mode  RGN_AND or RGN_DIFF.
bool ClipState::CutTo(const Area& area, RegionMode mode, Steps& steps) {
  if (HasClip() && ShouldBeOne(clip_->CutTo(), area)) {
    auto one = Combine(clip_->CutTo(), area, mode, steps);
    if (!one) return false;
    clip_ = Cut(clip_->Outer(), *std::move(one));
    return true;
  }
  if (mode == RGN_DIFF) return CutToOutside(area, steps);
  clip_ = Cut(clip_, area);
  return true;
}

bool ClipState::CutToOutside(const Area& area, Steps& steps) {
  std::optional<Area> outside = Complement(area, steps);
  if (!outside) return false;
  clip_ = Cut(clip_, *std::move(outside));
  return true;
}

/// @return the clip as one area; nullopt when the steps run out.
std::optional<Area> ClipState::Whole(Steps& steps) const {
  std::optional<Area> whole = clip_->CutTo();
  for (const ClipCut* cut = clip_->Outer().get(); cut != meta_.get() && whole;
       cut = cut->Outer().get()) {
    whole = Combine(*whole, cut->CutTo(), RGN_AND, steps);
  }
  return whole;
}

}  // namespace kelvane
