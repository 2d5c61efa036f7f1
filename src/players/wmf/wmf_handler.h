#pragma once

#include <cstdint>
#include <span>

#include "metafile/wmf/wmf_record_type.h"
#include "players/wmf/wmf_playback.h"

namespace kelvane {

using PlayWmfRecord = PlayRecord<WmfPlayback>;

/// A row of the table of records: what is not in it is reported.
struct WmfHandler {
  WmfRecordType type;
  PlayWmfRecord play;
};

/// @return what PlayingRecord does.
template <auto decode, class Call>
constexpr PlayWmfRecord PlayingWmf(Call call) {
  return PlayingRecord<WmfPlayback, decode>(call);
}

// The tables, by family.
std::span<const WmfHandler> WmfShapeHandlers();
std::span<const WmfHandler> WmfTextHandlers();
std::span<const WmfHandler> WmfBitmapHandlers();
std::span<const WmfHandler> WmfStateHandlers();
std::span<const WmfHandler> WmfObjectHandlers();
std::span<const WmfHandler> WmfClipHandlers();
std::span<const WmfHandler> WmfEscapeHandlers();

/// Records that leave no mark, or none yet.
std::span<const WmfHandler> WmfUnplayedHandlers();

RecordFamily WmfFamilyOf(std::uint16_t type);

/// Whether a record makes a mark: the page is what the window is at the first of them.
bool MakesWmfMark(std::uint16_t type);

/// @param type  as stored. @return null for a record that is in no table.
PlayWmfRecord FindWmfHandler(std::uint16_t type);

}  // namespace kelvane
