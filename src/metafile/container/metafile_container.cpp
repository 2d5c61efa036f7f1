#include "metafile/container/metafile_container.h"

#include <algorithm>
#include <utility>

namespace kelvane {
inline namespace metafile {

MetafileContainer OpenContainer(std::span<const unsigned char> file) {
  constexpr std::size_t kMostTimes = 64;
  constexpr std::size_t kMost = std::size_t{256} << 20;
  MetafileContainer container = {file};
  if (IsGzip(file)) {
    InflatedBytes inflated = InflateGzip(file, std::min(kMost, kMostTimes * file.size()));
    container.inflating = inflated.end;
    container.inflated =
        std::make_unique<const std::vector<unsigned char>>(std::move(inflated.bytes));
    container.content = *container.inflated;
  }
  container.spool = ReadSpoolHeader(container.content);
  return container;
}

std::string_view Description(InflateEnd end) {
  switch (end) {
    case InflateEnd::kWhole:
      return "";
    case InflateEnd::kDamaged:
      return "its compressed data are damaged";
    case InflateEnd::kTooLarge:
      return "it expands to more than 64 times its size, or more than 256 MiB";
  }
  return "";
}

}  // namespace metafile
}  // namespace kelvane
