#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "platform/corefoundation/cf_base.h"

namespace kelvane {

using CFStringEncoding = std::uint32_t;
inline constexpr CFStringEncoding kCFStringEncodingMacRoman = 0;

/// An immutable string of bytes with the encoding its creator named. The bytes are never converted,
/// because on POSIX the strings that matter here are paths, and a path is its bytes.
class CFString final : public CFObject {
 public:
  CFString(std::string text, CFStringEncoding textEncoding)
      : bytes(std::move(text)), encoding(textEncoding) {}

  const std::string bytes;
  const CFStringEncoding encoding;
};

using CFStringRef = const CFString*;

/// @param text  zero-terminated; copied.
/// @return a string owned by the caller; null for a null text. Throws std::bad_alloc.
CFStringRef CFStringCreateWithCString(CFAllocatorRef allocator, const char* text,
                                      CFStringEncoding encoding);

}  // namespace kelvane
