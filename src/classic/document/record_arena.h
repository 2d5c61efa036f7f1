#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "classic/playable/record.h"

namespace kelvane {

struct RecordDestroyer {
  void operator()(Record* record) const { std::destroy_at(record); }
};

/// Sole owner of a record, whose memory is its arena's. To be gone before the arena.
using OwnedRecord = std::unique_ptr<Record, RecordDestroyer>;

/// Room for the records of a metafile, which is given back all at once: most records are smaller
/// than what it costs to allocate them one by one. It grows by blocks of one size, so that no more
/// than one of them is ever unused.
class RecordArena {
 public:
  RecordArena() = default;
  RecordArena(const RecordArena&) = delete;
  RecordArena& operator=(const RecordArena&) = delete;

  /// @return a new record of class R. Throws std::bad_alloc.
  template <class R, class... Arguments>
  OwnedRecord Make(Arguments&&... arguments) {
    constexpr std::size_t kSize = (sizeof(R) + kAlignment - 1) / kAlignment * kAlignment;
    static_assert(kSize <= kBlockSize && alignof(R) <= kAlignment);
    if (left_ < kSize) AddBlock();
    R* const record = ::new (next_) R(std::forward<Arguments>(arguments)...);
    next_ += kSize;
    left_ -= kSize;
    return OwnedRecord(record);
  }

 private:
  static constexpr std::size_t kBlockSize = 16384;
  static constexpr std::size_t kAlignment = alignof(std::max_align_t);

  void AddBlock() {
    blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(kBlockSize));
    next_ = blocks_.back().get();
    left_ = kBlockSize;
  }

  std::vector<std::unique_ptr<std::byte[]>> blocks_;
  std::byte* next_ = nullptr;
  std::size_t left_ = 0;  // bytes from `next_` to the end of the last block
};

}  // namespace kelvane
