#include <cstddef>
#include <string>

#include "gdi/text_output.h"
#include "metafile/emf/emf_state_records.h"
#include "metafile/emf/emf_text_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

template <class Unit>
void Write(EmfPlayback& p, const TextItem<Unit>& item, const TextScale& scale) {
  ExtTextOut(p.device,
             {item.reference, item.options, item.rectangle, scale.graphicsMode, item.advances},
             std::basic_string<Unit>(item.text.begin(), item.text.end()));
}

// The same for units of either width.
constexpr auto kExtTextOut = [](EmfPlayback& p, const auto& r) { Write(p, r.text, r.scale); };
constexpr auto kPolyTextOut = [](EmfPlayback& p, const auto& r) {
  for (std::size_t i = 0; i < r.texts.size(); ++i)
    Write(p, r.Text(i), r.scale);
};

/// Small characters are the low halves of UTF-16.
void PlaySmallText(EmfPlayback& p, const SmallTextOutRecord& r) {
  const TextPlacing placing = {r.reference, r.options, r.bounds, r.scale.graphicsMode, {}};
  const bool isSmall = (r.options & ETO_SMALL_CHARS) != 0;
  ExtTextOut(p.device, placing,
             isSmall ? std::u16string(r.smallText.begin(), r.smallText.end())
                     : std::u16string(r.text.begin(), r.text.end()));
}

constexpr EmfHandler kTextHandlers[] = {
    {EMR_EXTTEXTOUTA, Playing<DecodeExtTextOut<char>>(kExtTextOut)},
    {EMR_EXTTEXTOUTW, Playing<DecodeExtTextOut<char16_t>>(kExtTextOut)},
    {EMR_POLYTEXTOUTA, Playing<DecodePolyTextOut<char>>(kPolyTextOut)},
    {EMR_POLYTEXTOUTW, Playing<DecodePolyTextOut<char16_t>>(kPolyTextOut)},
    {EMR_SMALLTEXTOUT,
     Playing<DecodeSmallTextOut>([](EmfPlayback& p, const auto& r) { PlaySmallText(p, r); })},
    {EMR_SETTEXTJUSTIFICATION,
     Playing<DecodeSetTextJustification>([](EmfPlayback& p, const auto& r) {
       SetTextJustification(p.device, r.breakExtra, r.breakCount);
     })},
};

}  // namespace

std::span<const EmfHandler> EmfTextHandlers() {
  return kTextHandlers;
}

}  // namespace kelvane
