#pragma once

#include <cstdint>
#include <memory>

#include "document/record.h"

namespace kelvane {

/// @return a new record of the class that plays back `type`, not yet read; UnrecognizedRecord for
/// every other type.
///         Throws std::bad_alloc.
std::unique_ptr<Record> MakeRecord(std::uint32_t type);

}  // namespace kelvane
