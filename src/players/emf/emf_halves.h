#pragma once

#include <cstdint>
#include <span>

#include "players/play_setting.h"
#include "players/report.h"

namespace kelvane {

/// A file may have its picture twice: in records of EMF and, in comments between them, of EMF+.
enum class EmfHalf : std::uint8_t { kEmf, kEmfPlus };

/// @param report  is told which half it is, and why, for files that have EMF+.
/// @return the half that is to be played.
EmfHalf ChooseHalf(std::span<const unsigned char> file, EmfPlusChoice choice, Report& report);

}  // namespace kelvane
