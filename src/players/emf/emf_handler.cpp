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

using FamiliesByType = std::array<RecordFamily, kEmfRecordTypes>;

FamiliesByType MakeFamilies() {
  FamiliesByType families{};
  for (const auto& table : {EmfStateHandlers(), EmfObjectHandlers()}) {
    for (const EmfHandler& row : table)
      families[row.type] = RecordFamily::kState;
  }
  for (const EmfHandler& row : EmfBitmapHandlers())
    families[row.type] = RecordFamily::kBitmap;
  return families;
}

using MarksByType = std::array<bool, kEmfRecordTypes>;

MarksByType MakeMarks() {
  MarksByType marks{};
  for (const auto& table : {EmfLineHandlers(), EmfShapeHandlers(), EmfBitmapHandlers(),
                            EmfGradientHandlers(), EmfTextHandlers()}) {
    for (const EmfHandler& row : table)
      marks[row.type] = true;
  }
  for (const EmfRecordType type : {EMR_MOVETOEX, EMR_SETTEXTJUSTIFICATION})
    marks[type] = false;
  for (const EmfRecordType type : {EMR_FILLPATH, EMR_STROKEPATH, EMR_STROKEANDFILLPATH})
    marks[type] = true;
  return marks;
}

}  // namespace

bool MakesEmfMark(std::uint32_t type) {
  static const MarksByType kMarks = MakeMarks();
  return type < kMarks.size() && kMarks[type];
}

RecordFamily FamilyOf(std::uint32_t type) {
  static const FamiliesByType kFamilies = MakeFamilies();
  return type < kFamilies.size() ? kFamilies[type] : RecordFamily::kOther;
}

PlayEmfRecord FindEmfHandler(std::uint32_t type) {
  static const HandlersByType kHandlers = MakeHandlers();
  return type < kHandlers.size() ? kHandlers[type] : nullptr;
}

}  // namespace kelvane
