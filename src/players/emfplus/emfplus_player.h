#pragma once

#include "metafile/byte_view.h"
#include "players/emfplus/emfplus_playback.h"

namespace kelvane {

/// Plays the records of one comment.
/// @param data  the comment's, behind its identifier. @return how many records there were.
std::size_t PlayEmfPlus(EmfPlusPlayback& playback, ByteView data);

/// @return whether a player can show a record; others are left out.
bool IsPlayable(const EmfPlusRecord& record);

}  // namespace kelvane
