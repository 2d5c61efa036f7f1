#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "gdi/device_context.h"
#include "metafile/byte_view.h"
#include "metafile/emf/emf_record_type.h"
#include "players/report.h"

namespace kelvane {

struct EmfPlusPlayback;

/// An EMF file being played.
struct EmfPlayback {
  DeviceContext& device;
  Report& report;
  std::uint32_t type = 0;      // of the record at hand
  std::uint32_t blitType = 0;  // of the last bitmap record

  /// Null when the records of EMF make the picture. Otherwise those of EMF+ do, with those of EMF
  /// to which they hand over; the device has this canvas only for them.
  EmfPlusPlayback* emfPlus = nullptr;
  Canvas* canvas = device.canvas;

  std::size_t privateComments = 0;

  [[nodiscard]] bool IsShown() const { return emfPlus == nullptr || device.canvas != nullptr; }

  void LeftOut(std::string_view why) {
    if (IsShown()) report.LeftOut(type, why);
  }
  void OnlyNearly(std::string_view why) {
    if (IsShown()) report.OnlyNearly(type, why);
  }
  void Damaged(std::string_view why) { report.Damaged(type, why); }
};

/// Plays a record, behind whose type and size `bytes` stands.
using PlayEmfRecord = void (*)(EmfPlayback& playback, ByteView& bytes);

/// A row of the table of records: what is not in it is reported.
struct EmfHandler {
  EmfRecordType type;
  PlayEmfRecord play;
};

/// @param decode  of the record. @param call  takes the playback and the decoded record.
/// @return a handler of both; a record that is too short for its fields is not played.
template <auto decode, class Call>
constexpr PlayEmfRecord Playing(Call /*call*/) {
  return [](EmfPlayback& playback, ByteView& bytes) {
    const auto record = decode(bytes);
    if (bytes.IsShort()) return playback.Damaged("it is too short for its fields");
    Call{}(playback, record);
  };
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

/// What a record may do to bitmaps that wait for others to be one picture with them.
enum class EmfFamily : std::uint8_t {
  kOther,   // ends the waiting
  kState,   // only changes what later records draw with
  kBitmap,  // may be one of the others
};

EmfFamily FamilyOf(std::uint32_t type);

/// @param type  as stored. @return null for a record that is in no table.
PlayEmfRecord FindEmfHandler(std::uint32_t type);

}  // namespace kelvane
