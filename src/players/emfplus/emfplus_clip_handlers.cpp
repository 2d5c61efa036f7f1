#include "gdiplus/clips.h"
#include "metafile/emfplus/emfplus_state_records.h"
#include "players/emfplus/emfplus_handler.h"

namespace kelvane {
namespace {

constexpr EmfPlusHandler kClipRows[] = {
    {kEmfPlusResetClip, CallingEmfPlus([](gdiplus::Graphics& g) { gdiplus::ResetClip(g); })},
    {kEmfPlusSetClipRect,
     PlayingEmfPlus<DecodeEmfPlusSetClipRect>(
         [](EmfPlusPlayback& p, const auto& r) { gdiplus::SetClip(p.graphics, r.box, r.mode); })},
    {kEmfPlusSetClipPath,
     PlayingEmfPlus<DecodeEmfPlusSetClipPath>([](EmfPlusPlayback& p, const auto& r) {
       WithEmfPlusObject<EmfPlusPath>(
           p, r.path, [&](const EmfPlusPath& path) { gdiplus::SetClip(p.graphics, path, r.mode); });
     })},
    {kEmfPlusSetClipRegion,
     PlayingEmfPlus<DecodeEmfPlusSetClipRegion>([](EmfPlusPlayback& p, const auto& r) {
       WithEmfPlusObject<EmfPlusRegion>(p, r.region, [&](const EmfPlusRegion& region) {
         gdiplus::SetClip(p.graphics, region, r.mode);
       });
     })},
    {kEmfPlusOffsetClip,
     PlayingEmfPlus<DecodeEmfPlusOffsetClip>(
         [](EmfPlusPlayback& p, const auto& r) { gdiplus::OffsetClip(p.graphics, r.x, r.y); })},
};

}  // namespace

std::span<const EmfPlusHandler> EmfPlusClipHandlers() {
  return kClipRows;
}

}  // namespace kelvane
