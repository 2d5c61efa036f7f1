#pragma once

#include "gdi/shortfall.h"
#include "players/report.h"

namespace kelvane {

/// Reports what a record fell short of, in words for a user.
/// @param shortfalls  empty afterwards.
void ReportShortfalls(Shortfalls& shortfalls, RecordId record, Report& report);

}  // namespace kelvane
