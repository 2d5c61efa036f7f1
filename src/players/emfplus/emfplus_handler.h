#pragma once

#include <cstdint>
#include <span>
#include <variant>

#include "metafile/emfplus/emfplus_drawing_records.h"
#include "metafile/emfplus/emfplus_record.h"
#include "metafile/emfplus/emfplus_record_type.h"
#include "players/emfplus/emfplus_playback.h"

namespace kelvane {

using PlayEmfPlusRecord = void (*)(EmfPlusPlayback& playback, const EmfPlusRecord& record);

/// A row of the table of records: what is not in it is reported.
struct EmfPlusHandler {
  EmfPlusRecordType type;
  PlayEmfPlusRecord play;
};

/// @param decode  of the record. @param call  takes the playback and the decoded record.
/// @return a handler of both; a record that is too short for its fields is not played.
template <auto decode, class Call>
constexpr PlayEmfPlusRecord PlayingEmfPlus(Call /*call*/) {
  return [](EmfPlusPlayback& playback, const EmfPlusRecord& record) {
    const auto decoded = decode(record);
    if (!decoded) return playback.Damaged("it is too short for its fields");
    Call{}(playback, *decoded);
  };
}

/// @param call  takes the graphics. @return a handler of a record that has no fields.
template <class Call>
constexpr PlayEmfPlusRecord CallingEmfPlus(Call /*call*/) {
  return [](EmfPlusPlayback& playback, const EmfPlusRecord&) { Call{}(playback.graphics); };
}

/// @return a handler of a record that leaves no mark and changes none.
inline constexpr PlayEmfPlusRecord kPassEmfPlusOver = [](EmfPlusPlayback&, const EmfPlusRecord&) {};

/// Calls `use` with an object of a slot, or reports that there is none.
template <class Object, class Use>
void WithEmfPlusObject(EmfPlusPlayback& playback, EmfPlusSlot slot, Use&& use) {
  const auto* const object = playback.Find<Object>(slot);
  object != nullptr ? use(*object) : playback.LacksObject();
}

/// Calls `use` with a record's brush, or reports that there is none.
template <class Use>
void WithEmfPlusBrush(EmfPlusPlayback& playback, const EmfPlusBrushUse& brush, Use&& use) {
  if (const auto* const color = std::get_if<Argb>(&brush)) return use(EmfPlusBrush(*color));
  WithEmfPlusObject<EmfPlusBrush>(playback, std::get<EmfPlusSlot>(brush), use);
}

// The tables, by family.
std::span<const EmfPlusHandler> EmfPlusShapeHandlers();
std::span<const EmfPlusHandler> EmfPlusTextHandlers();
std::span<const EmfPlusHandler> EmfPlusImageHandlers();
std::span<const EmfPlusHandler> EmfPlusStateHandlers();
std::span<const EmfPlusHandler> EmfPlusClipHandlers();
std::span<const EmfPlusHandler> EmfPlusControlHandlers();

/// @param type  as stored. @return null for a record that is in no table.
PlayEmfPlusRecord FindEmfPlusHandler(std::uint32_t type);

}  // namespace kelvane
