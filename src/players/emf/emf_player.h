#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "metafile/emf/emf_header.h"
#include "platform/quartz/cg_context.h"
#include "players/page_placement.h"
#include "players/play_setting.h"
#include "players/report.h"

namespace kelvane {

/// @param file  borrowed; the header's description views it.
/// @return the header of a metafile; nullopt when the bytes are none.
std::optional<EmfHeader> ReadEmfHeader(std::span<const unsigned char> file);

/// @return what a header says about where its picture lies.
PictureGeometry GeometryOf(const EmfHeader& header);

/// @return what the records draw, in device units; nullopt when they draw nothing. For files whose
///         header does not say. Throws std::bad_alloc.
std::optional<StoredRectangle> DrawnArea(std::span<const unsigned char> file,
                                         const PlaySetting& setting);

/// Plays all records onto the surface's page. Whatever is in the file, the surface's state is
/// afterwards what it was.
/// @param page    where the picture lies on it.
/// @param setting  how it is played.
/// @param report  gets what is missing or only nearly there.
/// @return how many records there were. Throws what the surface throws.
std::size_t PlayEmf(std::span<const unsigned char> file, const PagePlacement& page,
                    const PlaySetting& setting, CGContext& surface, Report& report);

}  // namespace kelvane
