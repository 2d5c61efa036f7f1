#include "metafile/gif_decoder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>

#include "metafile/byte_view.h"
#include "metafile/gif_library.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::size_t kGifChannels = 4;
constexpr std::uint8_t kOpaqueGifPixel = 255;

using GifPixel = std::array<std::uint8_t, kGifChannels>;
using GifColors = std::array<GifPixel, 256>;  // for any byte, so that none need be looked at

struct CloseGif {
  void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};
using OpenGif = std::unique_ptr<GifFileType, CloseGif>;

int ReadGifBytes(GifFileType* gif, GifByteType* to, int count) {
  ByteView& bytes = *static_cast<ByteView*>(gif->UserData);
  const std::span<const unsigned char> read = bytes.Split(static_cast<std::size_t>(count)).Bytes();
  std::ranges::copy(read, to);
  return static_cast<int>(read.size());
}

/// @param bytes  of the file, from which the library reads as long as it is open.
OpenGif OpenGifFile(ByteView& bytes) {
  using Signature = std::array<std::uint8_t, 6>;
  constexpr Signature kFirstVersion = {'G', 'I', 'F', '8', '7', 'a'};
  constexpr Signature kSecondVersion = {'G', 'I', 'F', '8', '9', 'a'};
  ByteView ahead = bytes;
  const auto signature = ahead.Read<Signature>();
  if (signature != kFirstVersion && signature != kSecondVersion) return nullptr;
  return OpenGif(DGifOpen(&bytes, ReadGifBytes, nullptr));
}

/// Reads an extension to its end.
/// @return what it says of the next frame; nullopt when it is cut off.
std::optional<GraphicsControlBlock> ReadGifExtension(GifFileType& gif,
                                                     const GraphicsControlBlock& before) {
  GraphicsControlBlock control = before;
  int code = 0;
  GifByteType* block = nullptr;  // its length, then its bytes
  if (DGifGetExtension(&gif, &code, &block) != GIF_OK) return std::nullopt;
  while (block != nullptr) {
    if (code == GRAPHICS_EXT_FUNC_CODE) DGifExtensionToGCB(block[0], block + 1, &control);
    if (DGifGetExtensionNext(&gif, &block) != GIF_OK) return std::nullopt;
  }
  return control;
}

const ColorMapObject* ColorsOf(const GifFileType& gif) {
  return gif.Image.ColorMap != nullptr ? gif.Image.ColorMap : gif.SColorMap;
}

/// Reads up to the pixels of the first frame.
/// @return what is said of it; nullopt when there is none with a size and colours.
std::optional<GraphicsControlBlock> GoToFirstFrame(GifFileType& gif) {
  GraphicsControlBlock control = {0, false, 0, NO_TRANSPARENT_COLOR};
  GifRecordType type = UNDEFINED_RECORD_TYPE;
  while (DGifGetRecordType(&gif, &type) == GIF_OK) {
    if (type == IMAGE_DESC_RECORD_TYPE) {
      const bool isThere = DGifGetImageDesc(&gif) == GIF_OK && gif.Image.Width > 0 &&
                           gif.Image.Height > 0 && ColorsOf(gif) != nullptr;
      return isThere ? std::optional(control) : std::nullopt;
    }
    if (type != EXTENSION_RECORD_TYPE) return std::nullopt;
    const auto next = ReadGifExtension(gif, control);
    if (!next) return std::nullopt;
    control = *next;
  }
  return std::nullopt;
}

GifHeader SizeOf(const GifFileType& gif) {
  return {static_cast<std::uint32_t>(std::max(gif.SWidth, gif.Image.Left + gif.Image.Width)),
          static_cast<std::uint32_t>(std::max(gif.SHeight, gif.Image.Top + gif.Image.Height))};
}

/// Numbers that the table does not have are black.
GifColors ReadGifColors(const GifFileType& gif, int transparent) {
  GifColors colors;
  colors.fill({0, 0, 0, kOpaqueGifPixel});
  const ColorMapObject& map = *ColorsOf(gif);
  const std::span<const GifColorType> stored(map.Colors, static_cast<std::size_t>(map.ColorCount));
  std::ranges::transform(stored, colors.begin(), [](const GifColorType& color) {
    return GifPixel{color.Red, color.Green, color.Blue, kOpaqueGifPixel};
  });
  if (transparent != NO_TRANSPARENT_COLOR) colors[static_cast<std::size_t>(transparent)] = {};
  return colors;
}

/// @return the rows of a frame in the order in which they are stored.
std::vector<std::size_t> RowsInOrder(const GifImageDesc& frame) {
  struct Pass {
    std::size_t first;
    std::size_t step;
  };
  constexpr std::array<Pass, 4> kInterlaced = {{{0, 8}, {4, 8}, {2, 4}, {1, 2}}};
  constexpr std::array<Pass, 1> kPlain = {{{0, 1}}};
  const auto passes =
      frame.Interlace ? std::span<const Pass>(kInterlaced) : std::span<const Pass>(kPlain);
  std::vector<std::size_t> rows;
  for (const Pass& pass : passes) {
    for (std::size_t y = pass.first; y < static_cast<std::size_t>(frame.Height); y += pass.step)
      rows.push_back(y);
  }
  return rows;
}

}  // namespace

std::optional<GifHeader> ReadGifHeader(std::span<const unsigned char> file) {
  ByteView bytes(file);
  const OpenGif gif = OpenGifFile(bytes);
  if (gif == nullptr || !GoToFirstFrame(*gif)) return std::nullopt;
  return SizeOf(*gif);
}

std::optional<std::vector<unsigned char>> DecodeGifWithAlpha(std::span<const unsigned char> file) {
  ByteView bytes(file);
  const OpenGif gif = OpenGifFile(bytes);
  const auto control = gif == nullptr ? std::nullopt : GoToFirstFrame(*gif);
  if (!control) return std::nullopt;
  const GifImageDesc& frame = gif->Image;
  const GifColors colors = ReadGifColors(*gif, control->TransparentColor);
  const GifHeader size = SizeOf(*gif);
  std::vector<unsigned char> rgba(kGifChannels * size.width * size.height);
  std::vector<GifPixelType> row(static_cast<std::size_t>(frame.Width));
  bool hasRows = false;
  for (const std::size_t y : RowsInOrder(frame)) {
    if (DGifGetLine(gif.get(), row.data(), frame.Width) != GIF_OK) break;
    hasRows = true;
    const std::size_t start = (y + static_cast<std::size_t>(frame.Top)) * size.width +
                              static_cast<std::size_t>(frame.Left);
    unsigned char* to = rgba.data() + kGifChannels * start;
    for (const GifPixelType number : row)
      to = std::ranges::copy(colors[number], to).out;
  }
  if (!hasRows) return std::nullopt;
  return rgba;
}

}  // namespace metafile
}  // namespace kelvane
