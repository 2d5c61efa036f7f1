#include "players/record_playback.h"

#include <string>

#include "gdi/painting.h"
#include "players/shortfall_words.h"

namespace kelvane {

void RecordPlayback::ReportRecord() {
  ReportShortfalls(device.shortfalls, Id(), report);
}

void RecordPlayback::FinishMarks() {
  DrawPendingMarks(device);
  ReportRecord();
}

/// What a blit falls short of is told of its own record.
void RecordPlayback::FinishBlits() {
  if (device.pendingBlits.blits.empty()) return;
  type = blitType;
  DrawPendingBlits(device);
  ReportRecord();
}

void RecordPlayback::Begin(std::uint32_t next, RecordFamily family, bool addsToMarks) {
  if (!addsToMarks) FinishMarks();
  if (family == RecordFamily::kOther) FinishBlits();
  if (family == RecordFamily::kBitmap) blitType = next;
  type = next;
}

void RecordPlayback::Finish() {
  FinishMarks();
  FinishBlits();
}

void RecordPlayback::ReportComments() const {
  if (privateComments == 0) return;
  report.Remark(std::to_string(privateComments) + " comments of programs were passed over");
}

}  // namespace kelvane
