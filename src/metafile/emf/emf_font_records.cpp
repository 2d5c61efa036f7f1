#include "metafile/emf/emf_font_records.h"

#include <algorithm>

namespace kelvane {
inline namespace metafile {
namespace {

// Bytes of the two longer forms of a font; the longest without its axes.
constexpr std::size_t kPanoseSize = 320;
constexpr std::size_t kDesignVectorSize = 356;

constexpr std::size_t kFullNameUnits = 64;
constexpr std::size_t kStyleUnits = 32;
constexpr std::size_t kScriptUnits = 32;
constexpr std::uint32_t kMostAxes = 16;

void ReadPanose(ByteView& bytes, ExtCreateFontIndirectWRecord& record) {
  constexpr std::size_t kVersionToCulture = 24;  // numbers of no use
  bytes.Skip(kVersionToCulture);
  record.panose = bytes.Read<Panose>();
}

void ReadDesignVector(ByteView& bytes, ExtCreateFontIndirectWRecord& record) {
  record.script = bytes.Array<char16_t>(kScriptUnits);
  bytes.Skip(sizeof(std::uint32_t));  // a signature
  const auto axes = bytes.Read<std::uint32_t>();
  record.designAxes = bytes.ArrayUpTo<std::int32_t>(std::min(axes, kMostAxes));
}

}  // namespace

ExtCreateFontIndirectWRecord DecodeExtCreateFontIndirectW(ByteView& bytes) {
  ExtCreateFontIndirectWRecord record;
  record.ihFont = bytes.Read<std::uint32_t>();
  const std::size_t size = bytes.Remaining();
  const bool hasDesignVector = size >= kDesignVectorSize;
  const bool hasPanose = size >= kPanoseSize && !hasDesignVector;
  record.font = bytes.Read<LogFont>();
  if (hasDesignVector || hasPanose) {
    record.fullName = bytes.Array<char16_t>(kFullNameUnits);
    record.style = bytes.Array<char16_t>(kStyleUnits);
  }
  if (hasPanose) ReadPanose(bytes, record);
  if (hasDesignVector) ReadDesignVector(bytes, record);
  return record;
}

}  // namespace metafile
}  // namespace kelvane
