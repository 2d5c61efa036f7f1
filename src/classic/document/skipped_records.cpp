#include "classic/document/skipped_records.h"

#include "classic/reader/reader.h"

namespace kelvane {

void UnrecognizedRecord::read(Reader& reader) {
  constexpr std::int64_t kTypeAndSize = 8;
  if (size == 0 || size > static_cast<std::uint32_t>(reader.bufferReaderSize())) return;
  reader.setToPosition(reader.getPosition() + size - kTypeAndSize);
}

}  // namespace kelvane
