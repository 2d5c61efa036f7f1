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
struct EmfRecord {
  std::uint32_t type = 0;  // EmfRecordType, or anything
  std::size_t offset = 0;  // of the record in the file
  ByteView bytes;          // all of the record; its type and size have been read
};

/// What ended the records of a file.
enum class EmfEnd : std::uint8_t {
  kEndRecord,         // an EMR_EOF, as it is meant to be
  kFileEnds,          // behind a record
  kFileEndsInHead,    // within type and size of a record
  kSizeTooSmall,      // less than type and size take
  kSizePastEnd,       // more than the file has
  kSizeNotWholeWords  // no multiple of four
};

/// @return what is wrong, to follow "the records end at byte 1234: "; nothing for kEndRecord.
[[nodiscard]] std::string_view Description(EmfEnd end);

/// Walks the records of a file by their sizes, the header first and EMR_EOF last. The first size
/// that leads nowhere ends the file: behind it nothing could be told to be a record.
class EmfRecordIterator {
 public:
  /// @param file  borrowed; must outlive the records.
  constexpr explicit EmfRecordIterator(std::span<const unsigned char> file) : file_(file) {}

  /// @return the next record; nothing once they have ended.
  std::optional<EmfRecord> Next();

  /// @return what ended them; nothing as long as Next() gives records.
  [[nodiscard]] std::optional<EmfEnd> End() const { return end_; }

  /// @return where the next record begins, or where the records ended and other bytes may follow.
  [[nodiscard]] std::size_t Offset() const { return offset_; }

 private:
  std::optional<EmfRecord> EndWith(EmfEnd end);

  std::span<const unsigned char> file_;
  std::size_t offset_ = 0;
  bool isLast_ = false;  // whether the last record given was EMR_EOF
  std::optional<EmfEnd> end_;
};

}  // namespace metafile
}  // namespace kelvane
