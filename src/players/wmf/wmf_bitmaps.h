#pragma once

#include <optional>

#include "metafile/dib.h"
#include "metafile/wmf/wmf_bitmap_records.h"
#include "players/wmf/wmf_playback.h"

namespace kelvane {

/// Makes a bitmap one that needs no device. Bits of one bit a pixel get the colours that text has
/// now.
/// @return its bytes, which stay as long as the playback; nullopt, and reports it, when its colours
///         are known to its device alone or its size does not fit its bits.
std::optional<DibBytes> BytesOf(WmfPlayback& playback, const Bitmap16& bitmap);

}  // namespace kelvane
