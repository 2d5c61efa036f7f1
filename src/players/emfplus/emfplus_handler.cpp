#include "players/emfplus/emfplus_handler.h"

#include <array>

namespace kelvane {
namespace {

using EmfPlusHandlersByType = std::array<PlayEmfPlusRecord, kEmfPlusRecordTypes>;

EmfPlusHandlersByType MakeEmfPlusHandlers() {
  EmfPlusHandlersByType handlers{};
  for (const auto& table :
       {EmfPlusShapeHandlers(), EmfPlusTextHandlers(), EmfPlusImageHandlers(),
        EmfPlusStateHandlers(), EmfPlusClipHandlers(), EmfPlusControlHandlers()}) {
    for (const EmfPlusHandler& row : table)
      handlers[row.type - kEmfPlusHeader] = row.play;
  }
  return handlers;
}

}  // namespace

PlayEmfPlusRecord FindEmfPlusHandler(std::uint32_t type) {
  static const EmfPlusHandlersByType kHandlers = MakeEmfPlusHandlers();
  const bool isKnown = type >= kEmfPlusHeader && type - kEmfPlusHeader < kHandlers.size();
  return isKnown ? kHandlers[type - kEmfPlusHeader] : nullptr;
}

}  // namespace kelvane
