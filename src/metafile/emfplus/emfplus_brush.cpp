#include "metafile/emfplus/emfplus_brush.h"

namespace kelvane {
inline namespace metafile {
namespace {

// BrushData flags ([MS-EMFPLUS] 2.1.2.1).
constexpr std::uint32_t kBrushHasPath = 0x1;
constexpr std::uint32_t kBrushHasTransform = 0x2;
constexpr std::uint32_t kBrushHasColors = 0x4;
constexpr std::uint32_t kBrushHasFactors = 0x8;
constexpr std::uint32_t kBrushHasVerticalFactors = 0x10;
constexpr std::uint32_t kBrushHasFocus = 0x40;
constexpr std::uint32_t kBrushGammaCorrects = 0x80;
constexpr std::uint32_t kBrushStaysInPlace = 0x100;

enum class BrushType : std::uint32_t {
  kSolid = 0,
  kHatch = 1,
  kTexture = 2,
  kPathGradient = 3,
  kLinearGradient = 4
};

bool Has(std::uint32_t flags, std::uint32_t flag) {
  return (flags & flag) != 0;
}

void ReadBrushTransform(ByteView& bytes, std::uint32_t flags, XForm& transform) {
  if (Has(flags, kBrushHasTransform)) transform = bytes.Read<XForm>();
}

EmfPlusBlend ReadFactors(ByteView& bytes) {
  const auto count = bytes.Read<std::uint32_t>();
  return {ReadEmfPlusList<float>(bytes, count), ReadEmfPlusList<float>(bytes, count), {}};
}

/// Colours leave no room for factors.
EmfPlusBlend ReadBlend(ByteView& bytes, std::uint32_t flags) {
  if (Has(flags, kBrushHasColors)) {
    const auto count = bytes.Read<std::uint32_t>();
    return {ReadEmfPlusList<float>(bytes, count), {}, ReadEmfPlusList<Argb>(bytes, count)};
  }
  return Has(flags, kBrushHasFactors) ? ReadFactors(bytes) : EmfPlusBlend();
}

std::optional<EmfPlusBrush> ReadHatch(ByteView& bytes) {
  return UnlessShort<EmfPlusHatchBrush>(
      bytes, {bytes.Read<std::uint32_t>(), bytes.Read<Argb>(), bytes.Read<Argb>()});
}

std::optional<EmfPlusBrush> ReadTexture(ByteView& bytes) {
  EmfPlusTextureBrush brush;
  const auto flags = bytes.Read<std::uint32_t>();
  brush.wrap = bytes.Read<EmfPlusWrapMode>();
  brush.staysInPlace = Has(flags, kBrushStaysInPlace);
  ReadBrushTransform(bytes, flags, brush.transform);
  if (bytes.IsShort()) return std::nullopt;
  if (bytes.Remaining() == 0) return brush;
  brush.image = ReadEmfPlusImage(bytes);
  if (!brush.image) return std::nullopt;
  return brush;
}

std::optional<EmfPlusBrush> ReadLinearGradient(ByteView& bytes) {
  EmfPlusLinearGradientBrush brush;
  const auto flags = bytes.Read<std::uint32_t>();
  brush.wrap = bytes.Read<EmfPlusWrapMode>();
  brush.isGammaCorrected = Has(flags, kBrushGammaCorrects);
  brush.staysInPlace = Has(flags, kBrushStaysInPlace);
  brush.rectangle = bytes.Read<RectF>();
  brush.start = bytes.Read<Argb>();
  brush.end = bytes.Read<Argb>();
  bytes.Skip(2 * kStoredSize<Argb>);  // the same colours again
  ReadBrushTransform(bytes, flags, brush.transform);
  brush.blend = ReadBlend(bytes, flags);
  if (Has(flags, kBrushHasVerticalFactors)) brush.verticalBlend = ReadFactors(bytes);
  return UnlessShort(bytes, std::move(brush));
}

/// Leaves the bytes short when there is none.
std::variant<std::vector<PointF>, EmfPlusPath> ReadBoundary(ByteView& bytes, std::uint32_t flags) {
  if (!Has(flags, kBrushHasPath))
    return ReadEmfPlusPoints(bytes, bytes.Read<std::uint32_t>(), EmfPlusNumbers::kFloats);
  ByteView stored = bytes.Split(bytes.Read<std::uint32_t>());
  std::optional<EmfPlusPath> path = ReadEmfPlusPath(stored);
  if (path) return *std::move(path);
  bytes.Fail();
  return {};
}

PointF ReadFocusScales(ByteView& bytes) {
  constexpr std::uint32_t kScales = 2;
  if (bytes.Read<std::uint32_t>() != kScales) bytes.Fail();
  return bytes.Read<PointF>();
}

std::optional<EmfPlusBrush> ReadPathGradient(ByteView& bytes) {
  EmfPlusPathGradientBrush brush;
  const auto flags = bytes.Read<std::uint32_t>();
  brush.wrap = bytes.Read<EmfPlusWrapMode>();
  brush.isGammaCorrected = Has(flags, kBrushGammaCorrects);
  brush.staysInPlace = Has(flags, kBrushStaysInPlace);
  brush.centerColor = bytes.Read<Argb>();
  brush.center = bytes.Read<PointF>();
  brush.surroundColors = ReadEmfPlusList<Argb>(bytes, bytes.Read<std::uint32_t>());
  brush.boundary = ReadBoundary(bytes, flags);
  ReadBrushTransform(bytes, flags, brush.transform);
  brush.blend = ReadBlend(bytes, flags);
  if (Has(flags, kBrushHasFocus)) brush.focusScales = ReadFocusScales(bytes);
  return UnlessShort(bytes, std::move(brush));
}

}  // namespace

std::optional<EmfPlusBrush> ReadEmfPlusBrush(ByteView& bytes) {
  ReadEmfPlusVersion(bytes);
  const auto type = bytes.Read<BrushType>();
  if (bytes.IsShort()) return std::nullopt;
  switch (type) {
    case BrushType::kSolid:
      return UnlessShort(bytes, bytes.Read<Argb>());
    case BrushType::kHatch:
      return ReadHatch(bytes);
    case BrushType::kTexture:
      return ReadTexture(bytes);
    case BrushType::kPathGradient:
      return ReadPathGradient(bytes);
    case BrushType::kLinearGradient:
      return ReadLinearGradient(bytes);
  }
  return std::nullopt;
}

}  // namespace metafile
}  // namespace kelvane
