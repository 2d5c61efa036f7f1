#include "platform/corefoundation/cf_string.h"

namespace kelvane {

CFStringRef CFStringCreateWithCString(CFAllocatorRef /*allocator*/, const char* text,
                                      CFStringEncoding encoding) {
  return text != nullptr ? new CFString(text, encoding) : nullptr;
}

}  // namespace kelvane
