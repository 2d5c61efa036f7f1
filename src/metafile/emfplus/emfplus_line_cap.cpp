#include "metafile/emfplus/emfplus_pen.h"

namespace kelvane {
inline namespace metafile {
namespace {

enum class CapType : std::int32_t { kPaths = 0, kArrow = 1 };

constexpr std::uint32_t kCapHasFill = 0x1;
constexpr std::uint32_t kCapHasStroke = 0x2;

/// A size, and a path of so many bytes. Leaves the bytes short when there is none.
std::optional<EmfPlusPath> ReadCapPath(ByteView& bytes) {
  ByteView stored = bytes.Split(bytes.Read<std::uint32_t>());
  std::optional<EmfPlusPath> path = ReadEmfPlusPath(stored);
  if (!path) bytes.Fail();
  return path;
}

/// Where the cap could be pulled: always at its origin.
void SkipHotSpots(ByteView& bytes) {
  bytes.Skip(2 * kStoredSize<PointF>);
}

std::optional<EmfPlusCustomLineCap> ReadPathCap(ByteView& bytes) {
  EmfPlusPathCap cap;
  const auto flags = bytes.Read<std::uint32_t>();
  cap.baseCap = bytes.Read<EmfPlusLineCap>();
  cap.baseInset = bytes.Read<float>();
  cap.strokeStartCap = bytes.Read<EmfPlusLineCap>();
  cap.strokeEndCap = bytes.Read<EmfPlusLineCap>();
  cap.strokeJoin = bytes.Read<EmfPlusLineJoin>();
  cap.miterLimit = bytes.Read<float>();
  cap.widthScale = bytes.Read<float>();
  SkipHotSpots(bytes);
  if ((flags & kCapHasFill) != 0) cap.fill = ReadCapPath(bytes);
  if ((flags & kCapHasStroke) != 0) cap.stroke = ReadCapPath(bytes);
  return UnlessShort(bytes, std::move(cap));
}

std::optional<EmfPlusCustomLineCap> ReadArrowCap(ByteView& bytes) {
  EmfPlusArrowCap cap;
  cap.width = bytes.Read<float>();
  cap.height = bytes.Read<float>();
  cap.middleInset = bytes.Read<float>();
  cap.isFilled = bytes.Read<std::uint32_t>() != 0;
  cap.lineStartCap = bytes.Read<EmfPlusLineCap>();
  cap.lineEndCap = bytes.Read<EmfPlusLineCap>();
  cap.lineJoin = bytes.Read<EmfPlusLineJoin>();
  cap.miterLimit = bytes.Read<float>();
  cap.widthScale = bytes.Read<float>();
  SkipHotSpots(bytes);
  return UnlessShort(bytes, cap);
}

}  // namespace

std::optional<EmfPlusCustomLineCap> ReadEmfPlusCustomLineCap(ByteView& bytes) {
  ReadEmfPlusVersion(bytes);
  const auto type = bytes.Read<CapType>();
  if (bytes.IsShort()) return std::nullopt;
  switch (type) {
    case CapType::kPaths:
      return ReadPathCap(bytes);
    case CapType::kArrow:
      return ReadArrowCap(bytes);
  }
  return std::nullopt;
}

}  // namespace metafile
}  // namespace kelvane
