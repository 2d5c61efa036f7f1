#include "metafile/emfplus/emfplus_path.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::uint32_t kPathIntegers = 0x4000;
constexpr std::uint32_t kPathWinds = 0x2000;  // no document says so, but files do
constexpr std::uint32_t kPathTypeRuns = 0x1000;
constexpr std::uint32_t kPathRelative = 0x0800;

EmfPlusNumbers NumbersOfPath(std::uint32_t flags) {
  if ((flags & kPathRelative) != 0) return EmfPlusNumbers::kRelative;
  return (flags & kPathIntegers) != 0 ? EmfPlusNumbers::kIntegers : EmfPlusNumbers::kFloats;
}

/// Documents differ on whether the flag of relative points is that of type runs, too. Types one by
/// one fill what is left, but for the bytes that make the object's size a multiple of four.
bool HasTypeRuns(std::uint32_t flags, std::size_t left, std::size_t count) {
  if ((flags & kPathTypeRuns) != 0) return true;
  return (flags & kPathRelative) != 0 && (left < count || left - count >= 4);
}

/// Pairs of a run's length and the type of its points (EmfPlusPathPointTypeRLE, [MS-EMFPLUS]
/// 2.2.2.32), and types by themselves between them.
std::vector<std::uint8_t> ReadTypeRuns(ByteView& bytes, std::size_t count) {
  constexpr std::uint8_t kIsRun = 0x40;
  constexpr std::uint8_t kLengthMask = 0x3F;
  std::vector<std::uint8_t> types;
  while (types.size() < count && !bytes.IsShort()) {
    const auto first = bytes.Read<std::uint8_t>();
    if ((first & kIsRun) == 0) {
      types.push_back(first);
    } else {
      types.insert(types.end(), first & kLengthMask, bytes.Read<std::uint8_t>());
    }
  }
  if (types.size() != count) bytes.Fail();
  return types;
}

}  // namespace

std::optional<EmfPlusPath> ReadEmfPlusPath(ByteView& bytes) {
  ReadEmfPlusVersion(bytes);
  const auto count = bytes.Read<std::uint32_t>();
  const auto flags = bytes.Read<std::uint32_t>();
  EmfPlusPath path;
  path.isWinding = (flags & kPathWinds) != 0;
  path.points = ReadEmfPlusPoints(bytes, count, NumbersOfPath(flags));
  if (bytes.IsShort()) return std::nullopt;
  path.types = HasTypeRuns(flags, bytes.Remaining(), count)
                   ? ReadTypeRuns(bytes, count)
                   : ReadEmfPlusList<std::uint8_t>(bytes, count);
  return UnlessShort(bytes, std::move(path));
}

}  // namespace metafile
}  // namespace kelvane
