#pragma once

#include <cstddef>
#include <string>

#include <kelvane/kelvane.h>

#include "frontends/kelvane/work_list.h"

namespace kelvane {

/// What came of a file.
struct FileOutcome {
  int status = 0;           // as the tool's exit status
  std::string message;      // why that is not 0
  std::string report;       // JSON on one line
  std::size_t missing = 0;  // records that are left out of the document, or damaged

  [[nodiscard]] bool HasDocument() const {
    return status == KELVANE_DONE || status == KELVANE_INCOMPLETE;
  }
};

/// Reads, converts and writes a file. Throws nothing but std::bad_alloc.
FileOutcome ConvertFile(const WorkItem& item, const kelvane_options* options);

}  // namespace kelvane
