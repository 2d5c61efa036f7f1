#include "gdiplus/strings.h"
#include "players/emfplus/emfplus_handler.h"

namespace kelvane {
namespace {

void PlayString(EmfPlusPlayback& p, const EmfPlusDrawString& r) {
  WithEmfPlusObject<EmfPlusFont>(p, r.font, [&](const EmfPlusFont& font) {
    WithEmfPlusBrush(p, r.brush, [&](const EmfPlusBrush& brush) {
      gdiplus::DrawString(p.graphics, r.text, font, brush, r.layout,
                          p.Find<EmfPlusStringFormat>(r.format));
    });
  });
}

void PlayDriverString(EmfPlusPlayback& p, const EmfPlusDrawDriverString& r) {
  WithEmfPlusObject<EmfPlusFont>(p, r.font, [&](const EmfPlusFont& font) {
    WithEmfPlusBrush(p, r.brush, [&](const EmfPlusBrush& brush) {
      gdiplus::DrawDriverString(p.graphics, r.values, r.places, font, brush, r.options,
                                r.matrix ? &*r.matrix : nullptr);
    });
  });
}

constexpr EmfPlusHandler kTextRows[] = {
    {kEmfPlusDrawString, PlayingEmfPlus<DecodeEmfPlusDrawString>(
                             [](EmfPlusPlayback& p, const auto& r) { PlayString(p, r); })},
    {kEmfPlusDrawDriverString,
     PlayingEmfPlus<DecodeEmfPlusDrawDriverString>(
         [](EmfPlusPlayback& p, const auto& r) { PlayDriverString(p, r); })},
};

}  // namespace

std::span<const EmfPlusHandler> EmfPlusTextHandlers() {
  return kTextRows;
}

}  // namespace kelvane
