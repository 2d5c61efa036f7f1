#include "metafile/emfplus/emfplus_image.h"

namespace kelvane {
inline namespace metafile {
namespace {

enum class ImageType : std::uint32_t { kBitmap = 1, kMetafile = 2 };
enum class BitmapType : std::uint32_t { kPixels = 0, kFile = 1 };

std::span<const unsigned char> TakeAll(ByteView& bytes) {
  return bytes.Split(bytes.Remaining()).Bytes();
}

bool IsPixelFormat(EmfPlusPixelFormat format) {
  switch (format) {
    case EmfPlusPixelFormat::k1Indexed:
    case EmfPlusPixelFormat::k4Indexed:
    case EmfPlusPixelFormat::k8Indexed:
    case EmfPlusPixelFormat::k16Gray:
    case EmfPlusPixelFormat::k16Rgb555:
    case EmfPlusPixelFormat::k16Rgb565:
    case EmfPlusPixelFormat::k16Argb1555:
    case EmfPlusPixelFormat::k24Rgb:
    case EmfPlusPixelFormat::k32Rgb:
    case EmfPlusPixelFormat::k32Argb:
    case EmfPlusPixelFormat::k32PremultipliedArgb:
    case EmfPlusPixelFormat::k48Rgb:
    case EmfPlusPixelFormat::k64Argb:
    case EmfPlusPixelFormat::k64PremultipliedArgb:
    case EmfPlusPixelFormat::k64PremultipliedArgbByItsBits:
      return true;
    case EmfPlusPixelFormat::kUndefined:
      break;
  }
  return false;
}

std::vector<Argb> ReadPalette(ByteView& bytes) {
  bytes.Skip(sizeof(std::uint32_t));  // what its colours are like: they tell
  return ReadEmfPlusList<Argb>(bytes, bytes.Read<std::uint32_t>());
}

/// Rows that lie one behind the other, the last of them perhaps without what fills it up.
/// @return nothing when there are too few bytes, or rows overlap.
std::span<const unsigned char> ReadRows(ByteView& bytes, const EmfPlusPixels& pixels) {
  const std::uint64_t bits = std::uint64_t{pixels.width} * EmfPlusBitsPerPixel(pixels.format);
  const std::uint64_t rowSize = (bits + 7) / 8;
  if (rowSize > pixels.stride) return {};
  const std::uint64_t size = std::uint64_t{pixels.stride} * (pixels.height - 1) + rowSize;
  if (size > bytes.Remaining()) return {};
  return TakeAll(bytes);
}

/// @param width, height, stride  as they are stored.
std::optional<EmfPlusImage> ReadPixels(ByteView& bytes, std::int32_t width, std::int32_t height,
                                       std::int32_t stride, EmfPlusPixelFormat format) {
  if (width < 1 || height < 1 || stride < 1 || !IsPixelFormat(format)) return std::nullopt;
  EmfPlusPixels pixels = {static_cast<std::size_t>(width),
                          static_cast<std::size_t>(height),
                          static_cast<std::size_t>(stride),
                          format,
                          {},
                          {}};
  if (IsEmfPlusIndexed(format)) pixels.palette = ReadPalette(bytes);
  pixels.rows = ReadRows(bytes, pixels);
  if (pixels.rows.empty()) return std::nullopt;
  return pixels;
}

std::optional<EmfPlusImage> ReadBitmap(ByteView& bytes) {
  const auto width = bytes.Read<std::int32_t>();
  const auto height = bytes.Read<std::int32_t>();
  const auto stride = bytes.Read<std::int32_t>();
  const auto format = bytes.Read<EmfPlusPixelFormat>();
  const auto type = bytes.Read<BitmapType>();
  if (type == BitmapType::kPixels) return ReadPixels(bytes, width, height, stride, format);
  if (type != BitmapType::kFile || bytes.Remaining() == 0) return std::nullopt;
  return EmfPlusImageFile{TakeAll(bytes)};
}

/// Some writers fill the header up to a multiple of four; a metafile never begins with 0.
void SkipFilling(ByteView& bytes) {
  constexpr std::size_t kFilling = 2;
  ByteView ahead = bytes;
  if (ahead.Read<std::uint16_t>() == 0) bytes.Skip(kFilling);
}

std::optional<EmfPlusImage> ReadMetafile(ByteView& bytes) {
  constexpr std::size_t kPlaceableHeaderSize = 22;
  EmfPlusMetafile metafile;
  metafile.type = bytes.Read<EmfPlusMetafileType>();
  const auto size = bytes.Read<std::uint32_t>();
  if (metafile.type == EmfPlusMetafileType::kPlaceableWmf) {
    metafile.placeableHeader = bytes.Split(kPlaceableHeaderSize).Bytes();
    SkipFilling(bytes);
  }
  metafile.bytes = bytes.Split(size).Bytes();
  return UnlessShort(bytes, metafile);
}

}  // namespace

std::optional<EmfPlusImage> ReadEmfPlusImage(ByteView& bytes) {
  ReadEmfPlusVersion(bytes);
  const auto type = bytes.Read<ImageType>();
  if (bytes.IsShort()) return std::nullopt;
  switch (type) {
    case ImageType::kBitmap:
      return ReadBitmap(bytes);
    case ImageType::kMetafile:
      return ReadMetafile(bytes);
  }
  return std::nullopt;
}

}  // namespace metafile
}  // namespace kelvane
