#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "frontends/conversion_options.h"
#include "platform/corefoundation/cf_data.h"
#include "platform/quartz/cg_geometry.h"
#include "players/report.h"

namespace kelvane {

/// How something ended; what the C interface returns and the tool exits with.
enum class ConversionStatus : std::uint8_t {
  kDone = 0,
  kRefused = 1,     // an option or a value is not to be had
  kNoPicture = 2,   // the input cannot be read or is no metafile
  kIncomplete = 3,  // there is a document, but something was left out that should not have been
  kNoDocument = 4,  // the document cannot be made or written
};

/// What came of a picture.
struct PictureConversion {
  ConversionStatus status = ConversionStatus::kDone;
  std::string message;       // why it is not kDone
  CFOwned<CFData> document;  // null unless it is kDone or kIncomplete
  std::string_view format;   // of the document
  std::size_t pages = 0;     // one but for print jobs
  CGSize pageSize = {};      // of the first, points
  std::size_t records = 0;   // of the input
  std::size_t bytes = 0;     // of the input
  double milliseconds = 0;
  Report report;
};

/// Makes a document of a metafile, as Windows shows it. A compressed one is inflated first, and a
/// print job becomes a page for each of its own.
/// @param file  borrowed for the call.
/// @return anything but kRefused and kNoDocument. Throws std::bad_alloc, or another std::exception
///         when the document cannot be made.
PictureConversion ConvertPicture(std::span<const unsigned char> file,
                                 const ConversionOptions& options);

}  // namespace kelvane
