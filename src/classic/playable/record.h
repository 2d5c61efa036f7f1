#pragma once

#include <cstdint>

namespace kelvane {

class AbstractContext;
class Reader;

/// Base of every record after the header: read once, then played back any number of times without
/// changing.
class Record {
 public:
  Record() = default;
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  /// Plays the record back: draws with, or changes, the context.
  virtual void drawToPDF(AbstractContext& context) const = 0;

  virtual ~Record() = default;

  /// Reads the body, which is everything after the type and size. May read more or less than there
  /// is: the caller moves the reader to the record's end afterwards. Nothing of the reader is kept.
  virtual void read(Reader& reader) = 0;

  /// Reads size and body, the type having been read, then moves the reader to the record's declared
  /// end if that lies inside the data. A record that was read too far is moved back.
  void ReadItem(Reader& reader);

  std::uint32_t size = 0;  // bytes, type and size fields included, as declared
};

}  // namespace kelvane
