#pragma once

#include <cstddef>
#include <optional>

#include "platform/quartz/cg_context.h"
#include "players/page_placement.h"
#include "players/picture/metafile.h"
#include "players/play_setting.h"
#include "players/report.h"

namespace kelvane {

/// @return what the records draw, in device units; nullopt when they draw nothing. For files whose
///         header does not say. Throws std::bad_alloc.
std::optional<StoredRectangle> DrawnArea(const Metafile& metafile, const PlaySetting& setting);

/// Plays all records onto the surface's page. Whatever is in the file, the surface's state is
/// afterwards what it was.
/// @param page    where the picture lies on it.
/// @param setting  how it is played.
/// @param report  gets what is missing or only nearly there.
/// @return how many records there were. Throws what the surface throws.
std::size_t PlayMetafile(const Metafile& metafile, const PagePlacement& page,
                         const PlaySetting& setting, CGContext& surface, Report& report);

}  // namespace kelvane
