#include <string>

#include "gdi/text_output.h"
#include "metafile/wmf/wmf_text_records.h"
#include "players/wmf/wmf_handler.h"

namespace kelvane {
namespace {

std::string Copied(ArrayView<char> text) {
  return {text.begin(), text.end()};
}

constexpr WmfHandler kWmfTextRows[] = {
    {META_TEXTOUT, PlayingWmf<DecodeWmfTextOut>([](WmfPlayback& p, const auto& r) {
       ExtTextOut(p.device, {r.reference, {}, {}, GM_COMPATIBLE, {}}, Copied(r.text));
     })},
    {META_EXTTEXTOUT, PlayingWmf<DecodeWmfExtTextOut>([](WmfPlayback& p, const auto& r) {
       ExtTextOut(p.device, {r.reference, r.options, r.rectangle, GM_COMPATIBLE, r.advances},
                  Copied(r.text));
     })},
};

}  // namespace

std::span<const WmfHandler> WmfTextHandlers() {
  return kWmfTextRows;
}

}  // namespace kelvane
