#pragma once

#include <vector>

#include "frontends/conversion.h"
#include "platform/corefoundation/cf_data.h"

namespace kelvane::bench {

/// @return the document that a metafile makes in memory.
inline CFOwned<CFData> Convert(const std::vector<unsigned char>& metafile) {
  CFOwned<CFData> document(CFDataCreateMutable(kCFAllocatorDefault, 0));
  ConvertBuffer(metafile.data(), metafile.size(), document.get());
  return document;
}

}  // namespace kelvane::bench
