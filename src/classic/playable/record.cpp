#include "classic/playable/record.h"

#include "classic/reader/reader.h"

namespace kelvane {

void Record::ReadItem(Reader& reader) {
  constexpr std::uint32_t kTypeSize = 4;
  reader.StartChecking();
  reader.read(size);
  read(reader);
  if (reader.FinishChecking(size - kTypeSize)) return;

  const std::int64_t position = reader.getPosition();
  const std::int64_t target = position + reader.GetSizeDifference();
  const std::int64_t end = reader.bufferReaderSize();
  if (position < end && target > 0 && target < end) reader.setToPosition(target);
}

}  // namespace kelvane
