#include "metafile/wmf/wmf_escape_records.h"
#include "players/wmf/wmf_handler.h"

namespace kelvane {
namespace {

/// Most escapes speak to a printer's driver, and a screen does not listen. Pieces of an enhanced
/// metafile are read when the file is opened.
void PlayEscape(WmfPlayback& p, const WmfEscapeRecord& r) {
  if (r.escape == MFCOMMENT && !ReadWmfEmfPiece(r)) ++p.privateComments;
}

constexpr WmfHandler kWmfEscapeRows[] = {
    {META_ESCAPE,
     PlayingWmf<DecodeWmfEscape>([](WmfPlayback& p, const auto& r) { PlayEscape(p, r); })},
};

}  // namespace

std::span<const WmfHandler> WmfEscapeHandlers() {
  return kWmfEscapeRows;
}

}  // namespace kelvane
