#pragma once

#include <string>
#include <utility>

#include "platform/corefoundation/cf_base.h"
#include "platform/corefoundation/cf_string.h"

namespace kelvane {

enum class CFURLPathStyle { kPosix = 0 };
inline constexpr CFURLPathStyle kCFURLPOSIXPathStyle = CFURLPathStyle::kPosix;

/// A file's place, as the path the file system is to see.
class CFURL final : public CFObject {
 public:
  explicit CFURL(std::string fileSystemPath) : path(std::move(fileSystemPath)) {}

  const std::string path;
};

using CFURLRef = const CFURL*;

/// @param path  its bytes reach the file system unchanged, whatever the string's encoding.
/// @param isDirectory  kept for the call's shape: POSIX paths need no mark for directories.
/// @return a URL owned by the caller; null for a null or empty path. Throws std::bad_alloc.
CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef allocator, CFStringRef path,
                                       CFURLPathStyle style, bool isDirectory);

}  // namespace kelvane
