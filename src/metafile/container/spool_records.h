#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "metafile/array_view.h"
#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {

// What Windows keeps of a print job while it waits ([MS-EMFSPOOL]): a header, then records, among
// them a metafile for each page.

/// EMFSPOOL records ([MS-EMFSPOOL] 2.1.1).
enum SpoolRecordType : std::uint32_t {
  EMRI_METAFILE = 0x01,
  EMRI_ENGINE_FONT = 0x02,
  EMRI_DEVMODE = 0x03,
  EMRI_TYPE1_FONT = 0x04,
  EMRI_PRESTARTPAGE = 0x05,
  EMRI_DESIGNVECTOR = 0x06,
  EMRI_SUBSET_FONT = 0x07,
  EMRI_DELTA_FONT = 0x08,
  EMRI_FORM_METAFILE = 0x09,
  EMRI_BW_METAFILE = 0x0A,
  EMRI_BW_FORM_METAFILE = 0x0B,
  EMRI_METAFILE_DATA = 0x0C,
  EMRI_METAFILE_EXT = 0x0D,
  EMRI_BW_METAFILE_EXT = 0x0E,
  EMRI_ENGINE_FONT_EXT = 0x0F,
  EMRI_TYPE1_FONT_EXT = 0x10,
  EMRI_DESIGNVECTOR_EXT = 0x11,
  EMRI_SUBSET_FONT_EXT = 0x12,
  EMRI_DELTA_FONT_EXT = 0x13,
  EMRI_PS_JOB_DATA = 0x14,
  EMRI_EMBED_FONT_EXT = 0x15
};

/// @return the name in the format's description; empty for a type that is none.
std::string_view SpoolRecordName(std::uint32_t type);

/// @return whether a record holds the metafile of a page. Those that end in EXT only point back at
///         what has been there.
bool IsSpoolPage(std::uint32_t type);

/// @return whether a record holds a font for the pages behind it.
bool IsSpoolFont(std::uint32_t type);

/// Header Record ([MS-EMFSPOOL] 2.2.2).
struct SpoolHeader {
  std::uint32_t size = 0;        // bytes up to the first record
  ArrayView<char16_t> document;  // the name of what is printed
};

/// @return the header of a print job, told by its version and by the record behind it; nullopt when
///         the bytes are none. Borrowed.
std::optional<SpoolHeader> ReadSpoolHeader(std::span<const unsigned char> file);

struct SpoolRecord {
  std::uint32_t type = 0;               // SpoolRecordType, or anything
  std::size_t offset = 0;               // of the record in the file
  std::span<const unsigned char> data;  // behind type and size
};

/// What ended the records of a print job.
enum class SpoolEnd : std::uint8_t {
  kFileEnds,        // behind a record, as it is meant to be
  kFileEndsInHead,  // within type and size of a record
  kSizePastEnd      // more than the file has
};

/// @return what is wrong, to follow "the records end at byte 1234: "; nothing for kFileEnds.
[[nodiscard]] std::string_view Description(SpoolEnd end);

/// Walks the records of a print job by their sizes. The first size that leads nowhere ends it.
class SpoolRecordIterator {
 public:
  /// @param file  borrowed; must outlive the records. @param records  where the first one begins.
  constexpr SpoolRecordIterator(std::span<const unsigned char> file, std::size_t records)
      : file_(file), offset_(records) {}

  /// @return the next record; nothing once they have ended.
  std::optional<SpoolRecord> Next();

  /// @return what ended them; nothing as long as Next() gives records.
  [[nodiscard]] std::optional<SpoolEnd> End() const { return end_; }

  [[nodiscard]] std::size_t Offset() const { return offset_; }

 private:
  std::span<const unsigned char> file_;
  std::size_t offset_;
  std::optional<SpoolEnd> end_;
};

}  // namespace metafile
}  // namespace kelvane
