#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {

/// A record as it is framed in the file.
struct WmfRecord {
  std::uint16_t type = 0;  // WmfRecordType, or anything
  std::size_t offset = 0;  // of the record in the file
  ByteView bytes;          // all of the record; its size and type have been read
};

/// What ended the records of a file.
enum class WmfEnd : std::uint8_t {
  kEndRecord,       // a META_EOF, as it is meant to be
  kFileEnds,        // behind a record
  kFileEndsInHead,  // within size and type of a record
  kSizeTooSmall,    // less than size and type take
  kSizePastEnd      // more than the file has
};

/// @return what is wrong, to follow "the records end at byte 1234: "; nothing for kEndRecord.
[[nodiscard]] std::string_view Description(WmfEnd end);

/// Walks the records of a file by their sizes, META_EOF last. The first size that leads nowhere
/// ends the file: behind it nothing could be told to be a record.
class WmfRecordIterator {
 public:
  /// @param file     borrowed; must outlive the records.
  /// @param records  where the first record begins; at most the file's size.
  constexpr WmfRecordIterator(std::span<const unsigned char> file, std::size_t records)
      : file_(file), offset_(records) {}

  /// @return the next record; nothing once they have ended.
  std::optional<WmfRecord> Next();

  /// @return what ended them; nothing as long as Next() gives records.
  [[nodiscard]] std::optional<WmfEnd> End() const { return end_; }

  /// @return where the next record begins, or where the records ended and other bytes may follow.
  [[nodiscard]] std::size_t Offset() const { return offset_; }

 private:
  std::optional<WmfRecord> EndWith(WmfEnd end);

  std::span<const unsigned char> file_;
  std::size_t offset_;
  bool isLast_ = false;  // whether the last record given was META_EOF
  std::optional<WmfEnd> end_;
};

}  // namespace metafile
}  // namespace kelvane
