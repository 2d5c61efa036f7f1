#include <string>
#include <string_view>
#include <utility>

#include "metafile/emfplus/emfplus_image_effect.h"
#include "metafile/emfplus/emfplus_state_records.h"
#include "players/emfplus/emfplus_handler.h"

namespace kelvane {
namespace {

/// The corners of a rectangle where those of an image go.
std::array<PointF, 3> CornersOf(const RectF& box) {
  return {PointF{box.x, box.y}, PointF{box.x + box.width, box.y},
          PointF{box.x, box.y + box.height}};
}

void DrawImage(EmfPlusPlayback& p, EmfPlusSlot image, EmfPlusSlot attributes, const RectF& source,
               const std::array<PointF, 3>& corners) {
  WithEmfPlusObject<EmfPlusImage>(p, image, [&](const EmfPlusImage& found) {
    gdiplus::DrawImage(p.graphics, found, source, corners,
                       p.Find<EmfPlusImageAttributes>(attributes), p.playMetafile);
  });
}

std::string WhyWithoutEffect(const EmfPlusGuid& effect) {
  const std::string_view name = EmfPlusEffectName(effect);
  return "its effect " + std::string(name.empty() ? "of an unknown kind" : name) +
         " is not applied";
}

constexpr EmfPlusHandler kImageRows[] = {
    {kEmfPlusDrawImage,
     PlayingEmfPlus<DecodeEmfPlusDrawImage>([](EmfPlusPlayback& p, const auto& r) {
       DrawImage(p, r.image, r.attributes, r.source, CornersOf(r.destination));
     })},
    {kEmfPlusDrawImagePoints,
     PlayingEmfPlus<DecodeEmfPlusDrawImagePoints>([](EmfPlusPlayback& p, const auto& r) {
       const auto effect = std::exchange(p.effect, std::nullopt);
       if (effect && r.hasEffect) p.OnlyNearly(WhyWithoutEffect(*effect));
       DrawImage(p, r.image, r.attributes, r.source, r.corners);
     })},
    {kEmfPlusSerializableObject,
     PlayingEmfPlus<DecodeEmfPlusSerializableObject>(
         [](EmfPlusPlayback& p, const auto& r) { p.effect = r.effect; })},
};

}  // namespace

std::span<const EmfPlusHandler> EmfPlusImageHandlers() {
  return kImageRows;
}

}  // namespace kelvane
