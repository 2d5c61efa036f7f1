#pragma once

#include <optional>
#include <vector>

#include <kelvane/kelvane.h>

#include "frontends/kelvane/work_list.h"

namespace kelvane {

/// How a batch is done.
struct BatchOrders {
  const kelvane_options* options = nullptr;
  unsigned jobs = 1;                  // at once
  std::optional<std::string> report;  // a path, or "-"
};

/// Converts files, says on standard error what went wrong, and for several how many went well. What
/// is said and reported follows the order of the files, however many are converted at once.
/// @return the exit status: the highest of all files. Throws std::system_error when the report
///         cannot be written; the files have been converted none the less, unless it could not even
///         be begun.
int Convert(const std::vector<WorkItem>& items, const BatchOrders& orders);

}  // namespace kelvane
