#include "metafile/tiff_decoder.h"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <memory>
#include <utility>

#include "metafile/alpha_multiplied.h"
#include "metafile/byte_view.h"
#include "metafile/tiff_library.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::size_t kTiffChannels = 4;

/// A file in memory, as the library looks at files.
struct TiffBytes {
  std::span<const unsigned char> file;
  std::uint64_t position = 0;
};

TiffBytes& BytesOf(thandle_t handle) {
  return *static_cast<TiffBytes*>(handle);
}

tmsize_t ReadTiffBytes(thandle_t handle, void* to, tmsize_t count) {
  TiffBytes& bytes = BytesOf(handle);
  const std::uint64_t size = bytes.file.size();
  const std::uint64_t start = std::min(bytes.position, size);
  const std::uint64_t read = std::min(static_cast<std::uint64_t>(count), size - start);
  std::copy_n(bytes.file.data() + start, read, static_cast<unsigned char*>(to));
  bytes.position = start + read;
  return static_cast<tmsize_t>(read);
}

tmsize_t WriteNothing(thandle_t /*handle*/, void* /*from*/, tmsize_t /*count*/) {
  return 0;
}

toff_t SeekInTiff(thandle_t handle, toff_t offset, int whence) {
  TiffBytes& bytes = BytesOf(handle);
  const std::uint64_t from = whence == SEEK_CUR   ? bytes.position
                             : whence == SEEK_END ? bytes.file.size()
                                                  : 0;
  return bytes.position = from + offset;
}

int KeepOpen(thandle_t /*handle*/) {
  return 0;
}

toff_t TiffSize(thandle_t handle) {
  return BytesOf(handle).file.size();
}

// What is mapped is read in place: tiles that are all the same bytes cost nothing to fetch.
int MapTiff(thandle_t handle, void** start, toff_t* size) {
  const std::span<const unsigned char> file = BytesOf(handle).file;
  *start = const_cast<unsigned char*>(file.data());  // only read
  *size = file.size();
  return 1;
}

void KeepMapped(thandle_t /*handle*/, void* /*start*/, toff_t /*size*/) {}

int IgnoreTiffMessage(TIFF* /*tiff*/, void* /*data*/, const char* /*module*/,
                      const char* /*format*/, va_list /*values*/) {
  constexpr int kDone = 1;
  return kDone;
}

bool IsTiff(std::span<const unsigned char> file) {
  using Signature = std::array<std::uint8_t, 4>;
  constexpr Signature kLittleEndian = {'I', 'I', 42, 0};
  constexpr Signature kBigEndian = {'M', 'M', 0, 42};
  const auto signature = ByteView(file).Read<Signature>();
  return signature == kLittleEndian || signature == kBigEndian;
}

/// A picture whose rows or columns may be stored from either end.
struct StoredSize {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::uint16_t orientation = ORIENTATION_TOPLEFT;

  [[nodiscard]] bool HasColumnsForRows() const { return orientation >= ORIENTATION_LEFTTOP; }
};

struct TiffDestroyer {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
  void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

/// A TIFF file that is open at its first picture.
class TiffFile {
 public:
  explicit TiffFile(std::span<const unsigned char> file)
      : bytes_{file}, tiff_(IsTiff(file) && kTiffLibrary.IsThere() ? Open() : nullptr) {}

  TiffFile(const TiffFile&) = delete;  // the library knows where its bytes are
  TiffFile& operator=(const TiffFile&) = delete;

  [[nodiscard]] bool IsOpen() const { return tiff_ != nullptr && IsOfWindows(); }

  [[nodiscard]] StoredSize Size() const {
    StoredSize size;
    TIFFGetField(tiff_.get(), TIFFTAG_IMAGEWIDTH, &size.width);
    TIFFGetField(tiff_.get(), TIFFTAG_IMAGELENGTH, &size.height);
    TIFFGetField(tiff_.get(), TIFFTAG_ORIENTATION, &size.orientation);
    if (size.orientation > ORIENTATION_LEFTBOT) size.orientation = ORIENTATION_TOPLEFT;
    return size;
  }

  /// @return the most there can be for far more pieces than a file can name; nullopt when they have
  ///         no size.
  [[nodiscard]] std::optional<std::uint64_t> BytesToDecode() const {
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max() / 4;
    TIFF* tiff = tiff_.get();
    const bool isTiled = TIFFIsTiled(tiff) != 0;
    const std::uint32_t count = isTiled ? TIFFNumberOfTiles(tiff) : TIFFNumberOfStrips(tiff);
    const std::uint64_t size = isTiled ? TIFFTileSize64(tiff) : TIFFStripSize64(tiff);
    if (count == 0 || size == 0) return std::nullopt;
    if (count > bytes_.file.size() || size > kMost / count) return kMost;
    std::uint64_t stored = 0;
    for (std::uint32_t i = 0; i < count; ++i)
      stored += std::min<std::uint64_t>(TIFFGetStrileByteCount(tiff, i), bytes_.file.size());
    return size * count + stored;
  }

  /// @return the pixels as they are stored, four bytes each in one number, multiplied by alpha.
  [[nodiscard]] std::vector<std::uint32_t> Read(const StoredSize& size) const {
    std::vector<std::uint32_t> pixels(std::size_t{size.width} * size.height);
    constexpr int kGoOnAfterErrors = 0;
    const bool isRead =
        TIFFReadRGBAImageOriented(tiff_.get(), size.width, size.height, pixels.data(),
                                  size.orientation, kGoOnAfterErrors) != 0;
    if (!isRead) pixels.clear();
    return pixels;
  }

 private:
  [[nodiscard]] TIFF* Open() {
    constexpr std::size_t kLeast = std::size_t{1} << 24;
    constexpr std::size_t kTimesFile = 8;
    const std::unique_ptr<TIFFOpenOptions, TiffDestroyer> options(TIFFOpenOptionsAlloc());
    if (options == nullptr) return nullptr;
    TIFFOpenOptionsSetMaxSingleMemAlloc(
        options.get(), static_cast<tmsize_t>(kLeast + kTimesFile * bytes_.file.size()));
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), IgnoreTiffMessage, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), IgnoreTiffMessage, nullptr);
    return TIFFClientOpenExt("", "r", &bytes_, ReadTiffBytes, WriteNothing, SeekInTiff, KeepOpen,
                             TiffSize, MapTiff, KeepMapped, options.get());
  }

  /// The library knows many more kinds of compression. They are no use here, and each is one more
  /// that a hostile file could go through.
  [[nodiscard]] bool IsOfWindows() const {
    std::uint16_t compression = 0;
    TIFFGetFieldDefaulted(tiff_.get(), TIFFTAG_COMPRESSION, &compression);
    constexpr std::array kKnown = {
        COMPRESSION_NONE,      COMPRESSION_CCITTRLE,      COMPRESSION_CCITTFAX3,
        COMPRESSION_CCITTFAX4, COMPRESSION_LZW,           COMPRESSION_JPEG,
        COMPRESSION_PACKBITS,  COMPRESSION_ADOBE_DEFLATE, COMPRESSION_DEFLATE};
    return std::ranges::find(kKnown, int{compression}) != kKnown.end();
  }

  TiffBytes bytes_;
  std::unique_ptr<TIFF, TiffDestroyer> tiff_;
};

std::array<std::uint8_t, kTiffChannels> RgbaOf(std::uint32_t pixel) {
  constexpr unsigned kFull = 255;
  const std::uint32_t alpha = TIFFGetA(pixel);
  const auto channel = [&](std::uint32_t multiplied) {
    return static_cast<std::uint8_t>(DividedByAlpha(multiplied, alpha, kFull));
  };
  return {channel(TIFFGetR(pixel)), channel(TIFFGetG(pixel)), channel(TIFFGetB(pixel)),
          static_cast<std::uint8_t>(alpha)};
}

/// Where the stored pixels are found, going along the rows of the picture as it is looked at.
struct Walk {
  std::ptrdiff_t start;
  std::ptrdiff_t nextPixel;
  std::ptrdiff_t nextRow;
};

Walk WalkOf(const StoredSize& size) {
  const auto width = static_cast<std::ptrdiff_t>(size.width);
  const auto height = static_cast<std::ptrdiff_t>(size.height);
  const std::ptrdiff_t lastColumn = width - 1;
  const std::ptrdiff_t lastRow = (height - 1) * width;
  switch (size.orientation) {
    case ORIENTATION_TOPRIGHT:
      return {lastColumn, -1, width};
    case ORIENTATION_BOTRIGHT:
      return {lastRow + lastColumn, -1, -width};
    case ORIENTATION_BOTLEFT:
      return {lastRow, 1, -width};
    case ORIENTATION_LEFTTOP:
      return {0, width, 1};
    case ORIENTATION_RIGHTTOP:
      return {lastRow, -width, 1};
    case ORIENTATION_RIGHTBOT:
      return {lastRow + lastColumn, -width, -1};
    case ORIENTATION_LEFTBOT:
      return {lastColumn, width, -1};
    default:
      return {0, 1, width};
  }
}

}  // namespace

std::optional<TiffHeader> ReadTiffHeader(std::span<const unsigned char> file) {
  const TiffFile tiff(file);
  if (!tiff.IsOpen()) return std::nullopt;
  StoredSize size = tiff.Size();
  const auto bytes = tiff.BytesToDecode();
  if (size.width == 0 || size.height == 0 || !bytes) return std::nullopt;
  if (size.HasColumnsForRows()) std::swap(size.width, size.height);
  return TiffHeader{size.width, size.height, *bytes};
}

std::optional<std::vector<unsigned char>> DecodeTiffWithAlpha(std::span<const unsigned char> file) {
  const TiffFile tiff(file);
  if (!tiff.IsOpen()) return std::nullopt;
  const StoredSize size = tiff.Size();
  const std::vector<std::uint32_t> pixels = tiff.Read(size);
  if (pixels.empty()) return std::nullopt;
  const Walk walk = WalkOf(size);
  const std::size_t rows = size.HasColumnsForRows() ? size.width : size.height;
  const std::size_t columns = size.HasColumnsForRows() ? size.height : size.width;
  std::vector<unsigned char> rgba(kTiffChannels * pixels.size());
  unsigned char* to = rgba.data();
  for (std::size_t y = 0; y < rows; ++y) {
    std::ptrdiff_t from = walk.start + static_cast<std::ptrdiff_t>(y) * walk.nextRow;
    for (std::size_t x = 0; x < columns; ++x, from += walk.nextPixel)
      to = std::ranges::copy(RgbaOf(pixels[static_cast<std::size_t>(from)]), to).out;
  }
  return rgba;
}

}  // namespace metafile
}  // namespace kelvane
