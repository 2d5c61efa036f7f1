#include "gdiplus/clips.h"

#include <memory>
#include <optional>
#include <utility>

#include "gdi/area.h"
#include "gdiplus/areas.h"
#include "gdiplus/figures.h"

namespace kelvane::gdiplus {
namespace {

bool JoinTo(ClipState& clip, const Area& area, EmfPlusCombineMode mode, Steps& steps) {
  switch (mode) {
    case EmfPlusCombineMode::kReplace:
      return clip.Join(area, RGN_COPY, steps);
    case EmfPlusCombineMode::kIntersect:
      return clip.Join(area, RGN_AND, steps);
    case EmfPlusCombineMode::kUnion:
      return clip.Join(area, RGN_OR, steps);
    case EmfPlusCombineMode::kXor:
      return clip.Join(area, RGN_XOR, steps);
    case EmfPlusCombineMode::kExclude:
      return clip.Join(area, RGN_DIFF, steps);
    case EmfPlusCombineMode::kComplement:
      // What is in one of them, and in the new one, is in the new one alone.
      return clip.Join(area, RGN_XOR, steps) && clip.Join(area, RGN_AND, steps);
  }
  return true;
}

void JoinClip(Graphics& graphics, const std::optional<Area>& area, EmfPlusCombineMode mode) {
  ClipState joined = graphics.state.clip;
  if (!area || !JoinTo(joined, *area, mode, *graphics.clipSteps)) {
    return graphics.shortfalls.Add(Shortfall::kClipTooComplex);
  }
  graphics.state.clip = std::move(joined);
}

}  // namespace

void SetClip(Graphics& graphics, const RectF& box, EmfPlusCombineMode mode) {
  graphics.clipSteps->Add(kStepsOfACall);
  const auto area = AreaOf(graphics, box);
  if (area) JoinClip(graphics, area, mode);
}

void SetClip(Graphics& graphics, const EmfPlusPath& path, EmfPlusCombineMode mode) {
  graphics.clipSteps->Add(kStepsOfACall);
  JoinClip(graphics, AreaOf(graphics, path), mode);
}

void SetClip(Graphics& graphics, const EmfPlusRegion& region, EmfPlusCombineMode mode) {
  graphics.clipSteps->Add(kStepsOfACall);
  JoinClip(graphics, AreaOf(graphics, region), mode);
}

void OffsetClip(Graphics& graphics, float x, float y) {
  const PointD moved = WorldToDevice(graphics).MapVector({x, y});
  if (!IsFinite(moved)) return;
  graphics.clipSteps->Add(kStepsOfACall);
  if (!graphics.state.clip.Offset(moved.x, moved.y, *graphics.clipSteps)) {
    graphics.shortfalls.Add(Shortfall::kClipTooComplex);
  }
}

void ResetClip(Graphics& graphics) {
  graphics.state.clip.Drop();
}

}  // namespace kelvane::gdiplus
