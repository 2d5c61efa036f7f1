#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/inflater.h"
#include "metafile/container/spool_records.h"

namespace kelvane {
inline namespace metafile {

/// A file as it comes, told by its bytes: a metafile as it is or compressed (EMZ, WMZ), or a print
/// job of many, which may be compressed, too.
struct MetafileContainer {
  std::span<const unsigned char> content;  // the file, borrowed, or what it inflates to
  std::optional<InflateEnd> inflating{};   // of a compressed file; without content unless kWhole
  std::optional<SpoolHeader> spool{};      // of a print job

  /// What content is a view of, where it was compressed.
  std::unique_ptr<const std::vector<unsigned char>> inflated{};
};

/// Compressed data are inflated once: what is within is not asked whether it is compressed again.
/// They may come to 64 times their size, and to 256 MiB. Throws std::bad_alloc.
/// @param file  borrowed for as long as the container.
MetafileContainer OpenContainer(std::span<const unsigned char> file);

/// @return why compressed data were not inflated, to follow "it cannot be read: "; empty for
/// kWhole.
std::string_view Description(InflateEnd end);

}  // namespace metafile
}  // namespace kelvane
