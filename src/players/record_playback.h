#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "gdi/device_context.h"
#include "metafile/byte_view.h"
#include "players/record_id.h"
#include "players/report.h"

namespace kelvane {

/// What a record may do to bitmaps that wait for others to be one picture with them.
enum class RecordFamily : std::uint8_t {
  kOther,   // ends the waiting
  kState,   // only changes what later records draw with
  kBitmap,  // may be one of the others
};

/// Records on their way to a device context, with what waits for the next ones.
struct RecordPlayback {
  DeviceContext& device;
  Report& report;
  RecordFormat format;
  std::uint32_t type = 0;      // of the record at hand
  std::uint32_t blitType = 0;  // of the last bitmap record
  std::size_t privateComments = 0;

  [[nodiscard]] RecordId Id() const { return {format, type}; }

  /// Takes the next record; what does not wait for it is drawn.
  /// @param addsToMarks  whether it may make the marks that wait longer.
  void Begin(std::uint32_t next, RecordFamily family, bool addsToMarks);

  /// Ends the record, or all of them.
  void ReportRecord();
  void Finish();

  /// Remarks on those of programs to themselves.
  void ReportComments() const;

 private:
  void FinishMarks();
  void FinishBlits();
};

/// Plays a record, behind whose size and type `bytes` stands.
template <class Playback>
using PlayRecord = void (*)(Playback& playback, ByteView& bytes);

/// @param decode  of the record. @param call  takes the playback and the decoded record.
/// @return a handler of both; a record that is too short for its fields is not played.
template <class Playback, auto decode, class Call>
constexpr PlayRecord<Playback> PlayingRecord(Call /*call*/) {
  return [](Playback& playback, ByteView& bytes) {
    const auto record = decode(bytes);
    if (bytes.IsShort()) return playback.Damaged("it is too short for its fields");
    Call{}(playback, record);
  };
}

}  // namespace kelvane
