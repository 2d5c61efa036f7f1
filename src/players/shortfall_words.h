#pragma once

#include <cstdint>

#include "gdi/shortfall.h"
#include "players/report.h"

namespace kelvane {

/// Reports what a record fell short of, in words for a user.
/// @param shortfalls  empty afterwards.
void ReportShortfalls(Shortfalls& shortfalls, std::uint32_t type, Report& report);

}  // namespace kelvane
