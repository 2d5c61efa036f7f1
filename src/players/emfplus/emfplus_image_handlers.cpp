#include <utility>

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

constexpr EmfPlusHandler kImageRows[] = {
    {kEmfPlusDrawImage,
     PlayingEmfPlus<DecodeEmfPlusDrawImage>([](EmfPlusPlayback& p, const auto& r) {
       DrawImage(p, r.image, r.attributes, r.source, CornersOf(r.destination));
     })},
    {kEmfPlusDrawImagePoints,
     PlayingEmfPlus<DecodeEmfPlusDrawImagePoints>([](EmfPlusPlayback& p, const auto& r) {
       if (std::exchange(p.hasEffect, false) && r.hasEffect) {
         p.OnlyNearly("its effect is not applied");
       }
       DrawImage(p, r.image, r.attributes, r.source, r.corners);
     })},
    {kEmfPlusSerializableObject, PlayingEmfPlus<DecodeEmfPlusSerializableObject>(
                                     [](EmfPlusPlayback& p, const auto&) { p.hasEffect = true; })},
};

}  // namespace

std::span<const EmfPlusHandler> EmfPlusImageHandlers() {
  return kImageRows;
}

}  // namespace kelvane
