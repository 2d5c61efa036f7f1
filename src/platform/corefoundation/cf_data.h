#pragma once

#include <vector>

#include "platform/corefoundation/cf_base.h"

namespace kelvane {

/// A growable block of bytes. Changed by one thread at a time.
class CFData final : public CFObject {
 public:
  std::vector<unsigned char> bytes;
};

using CFDataRef = const CFData*;
using CFMutableDataRef = CFData*;

/// @param capacity  bytes to make room for at once; 0 or less for none. Never a limit.
/// @return an empty data object owned by the caller. Throws std::bad_alloc.
CFMutableDataRef CFDataCreateMutable(CFAllocatorRef allocator, CFIndex capacity);

/// Appends a copy of the bytes, which must not be the data's own. A length of 0 or less appends
/// nothing. Throws std::bad_alloc, and then the data is as it was.
void CFDataAppendBytes(CFMutableDataRef data, const unsigned char* bytes, CFIndex length);

/// Cuts the data to `length` bytes, or extends it with zeros. Throws std::bad_alloc.
void CFDataSetLength(CFMutableDataRef data, CFIndex length);

/// @return the number of bytes held.
CFIndex CFDataGetLength(CFDataRef data) noexcept;

/// @return the bytes, borrowed until the data changes or goes.
const unsigned char* CFDataGetBytePtr(CFDataRef data) noexcept;

}  // namespace kelvane
