#include "players/emf/emf_handler.h"

#include <array>

namespace kelvane {
namespace {

using HandlersByType = std::array<PlayEmfRecord, kEmfRecordTypes>;

HandlersByType MakeHandlers() {
  HandlersByType handlers{};
  for (const auto& table :
       {EmfLineHandlers(), EmfShapeHandlers(), EmfPathHandlers(), EmfClipHandlers(),
        EmfStateHandlers(), EmfObjectHandlers(), EmfBitmapHandlers(), EmfTextHandlers(),
        EmfCommentHandlers(), EmfUnplayedHandlers()}) {
    for (const EmfHandler& row : table)
      handlers[row.type] = row.play;
  }
  return handlers;
}

}  // namespace

PlayEmfRecord FindEmfHandler(std::uint32_t type) {
  static const HandlersByType kHandlers = MakeHandlers();
  return type < kHandlers.size() ? kHandlers[type] : nullptr;
}

}  // namespace kelvane
