#include "players/emf/emf_handler.h"

#include <array>

namespace kelvane {
namespace {

using HandlersByType = std::array<PlayEmfRecord, kEmfRecordTypes>;

HandlersByType MakeHandlers() {
  HandlersByType handlers{};
  for (const auto& table :
       {EmfLineHandlers(), EmfShapeHandlers(), EmfPathHandlers(), EmfClipHandlers(),
        EmfStateHandlers(), EmfObjectHandlers(), EmfBitmapHandlers(), EmfGradientHandlers(),
        EmfTextHandlers(), EmfCommentHandlers(), EmfUnplayedHandlers()}) {
    for (const EmfHandler& row : table)
      handlers[row.type] = row.play;
  }
  return handlers;
}

using FamiliesByType = std::array<EmfFamily, kEmfRecordTypes>;

FamiliesByType MakeFamilies() {
  FamiliesByType families{};
  for (const auto& table : {EmfStateHandlers(), EmfObjectHandlers()}) {
    for (const EmfHandler& row : table)
      families[row.type] = EmfFamily::kState;
  }
  for (const EmfHandler& row : EmfBitmapHandlers())
    families[row.type] = EmfFamily::kBitmap;
  return families;
}

}  // namespace

EmfFamily FamilyOf(std::uint32_t type) {
  static const FamiliesByType kFamilies = MakeFamilies();
  return type < kFamilies.size() ? kFamilies[type] : EmfFamily::kOther;
}

PlayEmfRecord FindEmfHandler(std::uint32_t type) {
  static const HandlersByType kHandlers = MakeHandlers();
  return type < kHandlers.size() ? kHandlers[type] : nullptr;
}

}  // namespace kelvane
