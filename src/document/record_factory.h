#pragma once

#include <cstdint>
#include <memory>
#include <memory_resource>

#include "document/record.h"

namespace kelvane {

/// Room for the records of a metafile, which is given back all at once: most records are smaller
/// than what it costs to allocate them one by one.
using RecordArena = std::pmr::monotonic_buffer_resource;

struct RecordDestroyer {
  void operator()(Record* record) const { std::destroy_at(record); }
};

/// Sole owner of a record, whose memory is its arena's. To be gone before the arena.
using OwnedRecord = std::unique_ptr<Record, RecordDestroyer>;

/// @param arena  borrowed; must outlive the record.
/// @return a new record of the class that plays back `type`, not yet read; UnrecognizedRecord for
/// every other type. Throws std::bad_alloc.
OwnedRecord MakeRecord(std::uint32_t type, RecordArena& arena);

}  // namespace kelvane
