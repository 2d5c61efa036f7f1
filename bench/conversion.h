#pragma once

#include <string_view>
#include <vector>

#include "frontends/conversion.h"
#include "frontends/picture_conversion.h"
#include "platform/corefoundation/cf_data.h"

namespace kelvane::bench {

/// @return the document that a metafile makes in memory by the classic conversion.
inline CFOwned<CFData> Convert(const std::vector<unsigned char>& metafile) {
  CFOwned<CFData> document(CFDataCreateMutable(kCFAllocatorDefault, 0));
  ConvertBuffer(metafile.data(), metafile.size(), document.get());
  return document;
}

/// @return the document that it makes by the conversion that follows Windows.
inline CFOwned<CFData> ConvertAsWindows(const std::vector<unsigned char>& metafile) {
  return ConvertPicture(metafile, {}).document;
}

/// The same, in a format of its own: "svg", "png".
inline CFOwned<CFData> ConvertAsWindowsTo(std::string_view format,
                                          const std::vector<unsigned char>& metafile) {
  ConversionOptions options;
  options.format = format;
  return ConvertPicture(metafile, options).document;
}

}  // namespace kelvane::bench
