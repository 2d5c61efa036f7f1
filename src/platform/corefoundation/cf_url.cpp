#include "platform/corefoundation/cf_url.h"

namespace kelvane {

CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef /*allocator*/, CFStringRef path,
                                       CFURLPathStyle /*style*/, bool /*isDirectory*/) {
  if (path == nullptr || path->bytes.empty()) return nullptr;
  return new CFURL(path->bytes);
}

}  // namespace kelvane
