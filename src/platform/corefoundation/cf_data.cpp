#include "platform/corefoundation/cf_data.h"

namespace kelvane {

CFMutableDataRef CFDataCreateMutable(CFAllocatorRef /*allocator*/, CFIndex capacity) {
  CFOwned<CFData> data(new CFData);
  if (capacity > 0) data->bytes.reserve(static_cast<std::size_t>(capacity));
  return data.release();
}

void CFDataAppendBytes(CFMutableDataRef data, const unsigned char* bytes, CFIndex length) {
  if (length > 0) data->bytes.insert(data->bytes.end(), bytes, bytes + length);
}

void CFDataSetLength(CFMutableDataRef data, CFIndex length) {
  data->bytes.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
}

CFIndex CFDataGetLength(CFDataRef data) noexcept {
  return static_cast<CFIndex>(data->bytes.size());
}

const unsigned char* CFDataGetBytePtr(CFDataRef data) noexcept {
  return data->bytes.data();
}

}  // namespace kelvane
