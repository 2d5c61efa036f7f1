#include "metafile/container/spool_records.h"

#include <algorithm>
#include <array>

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::size_t kSpoolHeadSize = 8;  // type and size

constexpr std::array<std::string_view, EMRI_EMBED_FONT_EXT + 1> kSpoolRecordNames = {
    "",
    "EMRI_METAFILE",
    "EMRI_ENGINE_FONT",
    "EMRI_DEVMODE",
    "EMRI_TYPE1_FONT",
    "EMRI_PRESTARTPAGE",
    "EMRI_DESIGNVECTOR",
    "EMRI_SUBSET_FONT",
    "EMRI_DELTA_FONT",
    "EMRI_FORM_METAFILE",
    "EMRI_BW_METAFILE",
    "EMRI_BW_FORM_METAFILE",
    "EMRI_METAFILE_DATA",
    "EMRI_METAFILE_EXT",
    "EMRI_BW_METAFILE_EXT",
    "EMRI_ENGINE_FONT_EXT",
    "EMRI_TYPE1_FONT_EXT",
    "EMRI_DESIGNVECTOR_EXT",
    "EMRI_SUBSET_FONT_EXT",
    "EMRI_DELTA_FONT_EXT",
    "EMRI_PS_JOB_DATA",
    "EMRI_EMBED_FONT_EXT"};

/// @return the characters at a place in the header, up to their NUL; none where it says 0.
ArrayView<char16_t> NameAt(ByteView header, std::uint32_t offset) {
  const std::size_t size = header.Bytes().size();
  if (offset == 0 || offset >= size) return {};
  const auto units = header.ArrayAt<char16_t>(offset, (size - offset) / sizeof(char16_t));
  const auto length = std::distance(units.begin(), std::find(units.begin(), units.end(), u'\0'));
  return units.Part(0, static_cast<std::size_t>(length));
}

}  // namespace

std::string_view SpoolRecordName(std::uint32_t type) {
  return type < kSpoolRecordNames.size() ? kSpoolRecordNames[type] : std::string_view();
}

bool IsSpoolPage(std::uint32_t type) {
  return type == EMRI_METAFILE || (type >= EMRI_FORM_METAFILE && type <= EMRI_METAFILE_DATA);
}

bool IsSpoolFont(std::uint32_t type) {
  switch (type) {
    case EMRI_ENGINE_FONT:
    case EMRI_TYPE1_FONT:
    case EMRI_SUBSET_FONT:
    case EMRI_DELTA_FONT:
    case EMRI_EMBED_FONT_EXT:
      return true;
    default:
      return false;
  }
}

std::optional<SpoolHeader> ReadSpoolHeader(std::span<const unsigned char> file) {
  constexpr std::uint32_t kVersion = 0x10000;
  constexpr std::uint32_t kSmallest = 16;
  ByteView bytes(file);
  const auto version = bytes.Read<std::uint32_t>();
  const auto size = bytes.Read<std::uint32_t>();
  const auto document = bytes.Read<std::uint32_t>();
  if (bytes.IsShort() || version != kVersion || size < kSmallest || size > file.size())
    return std::nullopt;
  const auto first = SpoolRecordIterator(file, size).Next();
  if (!first || SpoolRecordName(first->type).empty()) return std::nullopt;
  return SpoolHeader{size, NameAt(ByteView(file.first(size)), document)};
}

std::string_view Description(SpoolEnd end) {
  switch (end) {
    case SpoolEnd::kFileEnds:
      return "";
    case SpoolEnd::kFileEndsInHead:
      return "the file ends within the type and size of a record";
    case SpoolEnd::kSizePastEnd:
      return "a record claims more than the file has";
  }
  return "";
}

std::optional<SpoolRecord> SpoolRecordIterator::Next() {
  if (end_) return std::nullopt;
  const std::span<const unsigned char> left = file_.subspan(offset_);
  ByteView head(left);
  const auto type = head.Read<std::uint32_t>();
  const auto size = head.Read<std::uint32_t>();
  if (left.empty()) {
    end_ = SpoolEnd::kFileEnds;
  } else if (head.IsShort()) {
    end_ = SpoolEnd::kFileEndsInHead;
  } else if (size > left.size() - kSpoolHeadSize) {
    end_ = SpoolEnd::kSizePastEnd;
  }
  if (end_) return std::nullopt;
  const SpoolRecord record = {type, offset_, left.subspan(kSpoolHeadSize, size)};
  offset_ += kSpoolHeadSize + size;
  return record;
}

}  // namespace metafile
}  // namespace kelvane
