#pragma once

#include <cstdint>

#include "classic/document/record_arena.h"

namespace kelvane {

/// @param arena  borrowed; must outlive the record.
/// @return a new record of the class that plays back `type`, not yet read; UnrecognizedRecord for
///         every other type. Throws std::bad_alloc.
OwnedRecord MakeRecord(std::uint32_t type, RecordArena& arena);

}  // namespace kelvane
