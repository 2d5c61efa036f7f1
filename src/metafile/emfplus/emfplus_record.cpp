#include "metafile/emfplus/emfplus_record.h"

namespace kelvane {
inline namespace metafile {

std::optional<EmfPlusRecord> NextEmfPlusRecord(ByteView& data) {
  constexpr std::uint32_t kHeadSize = 12;
  EmfPlusRecord record = {data.Read<std::uint16_t>(), data.Read<std::uint16_t>(), {}};
  const auto size = data.Read<std::uint32_t>();
  const auto dataSize = data.Read<std::uint32_t>();
  if (data.IsShort() || size < kHeadSize || dataSize > size - kHeadSize) return std::nullopt;
  record.data = data.Split(dataSize);
  data.Skip(size - kHeadSize - dataSize);
  if (data.IsShort()) return std::nullopt;
  return record;
}

}  // namespace metafile
}  // namespace kelvane
