#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "players/page_placement.h"
#include "players/play_setting.h"

namespace kelvane::test {

/// What came of a file that was played onto a traced page of 100 by 100 points, where a device unit
/// is a point and y grows downwards.
struct PlayedMetafile {
  std::string trace;
  std::string report;  // a line for each kind of records: "left out EMR_BITBLT 2: why"
  std::vector<std::string> remarks;
  bool isWhole = false;
  std::size_t records = 0;
};

PlayedMetafile Played(const std::vector<unsigned char>& file,
                      EmfPlusChoice emfPlus = EmfPlusChoice::kAuto);

std::optional<StoredRectangle> DrawnAreaOf(const std::vector<unsigned char>& file);

/// @return points; nullopt for a file that does not say.
std::optional<CGSize> PageSizeOf(const std::vector<unsigned char>& file);

/// @return whether the bytes begin with a header that can be read.
bool HasEmfHeader(const std::vector<unsigned char>& file);

}  // namespace kelvane::test
