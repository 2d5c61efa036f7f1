#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "metafile/emf/emf_record_type.h"
#include "players/record_playback.h"

namespace kelvane {

struct EmfPlusPlayback;
class EmfOtherForms;

/// An EMF file being played.
struct EmfPlayback : RecordPlayback {
  /// Null when the records of EMF make the picture. Otherwise those of EMF+ do, with those of EMF
  /// to which they hand over; the device has this canvas only for them.
  EmfPlusPlayback* emfPlus = nullptr;
  Canvas* canvas = device.canvas;

  EmfOtherForms* otherForms = nullptr;  // null when the records make the picture

  [[nodiscard]] bool IsShown() const { return emfPlus == nullptr || device.canvas != nullptr; }

  void LeftOut(std::string_view why) {
    if (IsShown()) report.LeftOut(Id(), why);
  }
  void OnlyNearly(std::string_view why) {
    if (IsShown()) report.OnlyNearly(Id(), why);
  }
  void Damaged(std::string_view why) { report.Damaged(Id(), why); }
};

using PlayEmfRecord = PlayRecord<EmfPlayback>;

/// A row of the table of records: what is not in it is reported.
struct EmfHandler {
  EmfRecordType type;
  PlayEmfRecord play;
};

/// @return what PlayingRecord does.
template <auto decode, class Call>
constexpr PlayEmfRecord Playing(Call call) {
  return PlayingRecord<EmfPlayback, decode>(call);
}

/// @param call  takes the device context.
/// @return a handler of a record that has no fields.
template <class Call>
constexpr PlayEmfRecord Calling(Call /*call*/) {
  return [](EmfPlayback& playback, ByteView&) { Call{}(playback.device); };
}

// The tables, by family.
std::span<const EmfHandler> EmfLineHandlers();
std::span<const EmfHandler> EmfShapeHandlers();
std::span<const EmfHandler> EmfPathHandlers();
std::span<const EmfHandler> EmfClipHandlers();
std::span<const EmfHandler> EmfStateHandlers();
std::span<const EmfHandler> EmfObjectHandlers();
std::span<const EmfHandler> EmfBitmapHandlers();
std::span<const EmfHandler> EmfGradientHandlers();
std::span<const EmfHandler> EmfTextHandlers();
std::span<const EmfHandler> EmfCommentHandlers();

/// Records that leave no mark, or none yet.
std::span<const EmfHandler> EmfUnplayedHandlers();

RecordFamily FamilyOf(std::uint32_t type);

/// Whether a record makes a mark.
bool MakesEmfMark(std::uint32_t type);

/// @param type  as stored. @return null for a record that is in no table.
PlayEmfRecord FindEmfHandler(std::uint32_t type);

}  // namespace kelvane
