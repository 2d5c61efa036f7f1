#include "metafile/dib_run_lengths.h"

#include <algorithm>
#include <utility>

#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {
namespace {

// Codes that begin with a byte of 0; from 3 on it is how many pixels follow as they are.
constexpr std::uint8_t kEndOfRow = 0;
constexpr std::uint8_t kEndOfBitmap = 1;
constexpr std::uint8_t kMove = 2;  // to the right and up, a byte each

class RunLengthDecoder {
 public:
  RunLengthDecoder(const Dib& dib, const PixelRectangle& part);

  IndexedPixels Decode();

 private:
  enum class Next : std::uint8_t { kCode, kEnd };

  Next Escape(std::uint8_t code);
  void Run(std::size_t count, std::uint8_t value);
  void Literal(std::size_t count);
  void Set(std::uint8_t index);
  void GoTo(std::size_t x, std::size_t y);

  /// @return the first or second number in a byte of two, or the one of a byte of one.
  [[nodiscard]] std::uint8_t NumberIn(std::uint8_t byte, std::size_t which) const;

  ByteView codes_;
  PixelRectangle part_;
  std::size_t width_;
  std::size_t height_;
  std::size_t numbersInAByte_;
  IndexedPixels pixels_;
  std::size_t x_ = 0;  // of the next pixel, never beyond the width
  std::size_t y_ = 0;  // from the lowest row up
  bool isInPart_ = false;
  std::size_t rowStart_ = 0;  // of pixels_, when the row is in the part
};

RunLengthDecoder::RunLengthDecoder(const Dib& dib, const PixelRectangle& part)
    : codes_(dib.File()),
      part_(part),
      width_(dib.Width()),
      height_(dib.Height()),
      numbersInAByte_(8 / dib.BitCount()) {
  pixels_.indexes.resize(part.width * part.height);
  pixels_.isSet.resize(part.width * part.height);
}

IndexedPixels RunLengthDecoder::Decode() {
  GoTo(0, 0);
  Next next = Next::kCode;
  while (next == Next::kCode && y_ < height_) {
    const auto count = codes_.Read<std::uint8_t>();
    const auto value = codes_.Read<std::uint8_t>();
    if (codes_.IsShort()) break;
    if (count == 0) {
      next = Escape(value);
    } else {
      Run(count, value);
    }
  }
  if (std::ranges::find(pixels_.isSet, 0) == pixels_.isSet.end()) pixels_.isSet.clear();
  return std::move(pixels_);
}

RunLengthDecoder::Next RunLengthDecoder::Escape(std::uint8_t code) {
  switch (code) {
    case kEndOfRow:
      GoTo(0, y_ + 1);
      return Next::kCode;
    case kEndOfBitmap:
      return Next::kEnd;
    case kMove: {
      const auto right = codes_.Read<std::uint8_t>();
      const auto up = codes_.Read<std::uint8_t>();
      GoTo(x_ + right, y_ + up);
      return Next::kCode;
    }
    default:
      Literal(code);
      return Next::kCode;
  }
}

void RunLengthDecoder::Run(std::size_t count, std::uint8_t value) {
  for (std::size_t i = 0; i < count; ++i)
    Set(NumberIn(value, i % numbersInAByte_));
}

void RunLengthDecoder::Literal(std::size_t count) {
  const std::size_t size = (count + numbersInAByte_ - 1) / numbersInAByte_;
  ByteView bytes = codes_.Split(size);
  codes_.Skip(size % 2);  // literals fill whole words
  count = std::min(count, bytes.Remaining() * numbersInAByte_);
  for (std::size_t i = 0; i < count;) {
    const auto byte = bytes.Read<std::uint8_t>();
    for (std::size_t which = 0; which < numbersInAByte_ && i < count; ++which, ++i)
      Set(NumberIn(byte, which));
  }
}

void RunLengthDecoder::Set(std::uint8_t index) {
  if (x_ == width_) return;
  const std::size_t column = x_++ - part_.left;  // wraps to the left of the part
  if (!isInPart_ || column >= part_.width) return;
  pixels_.indexes[rowStart_ + column] = index;
  pixels_.isSet[rowStart_ + column] = 1;
}

void RunLengthDecoder::GoTo(std::size_t x, std::size_t y) {
  x_ = std::min(x, width_);
  y_ = std::min(y, height_);
  const std::size_t row = height_ - 1 - y_ - part_.top;  // wraps above the part
  isInPart_ = y_ < height_ && row < part_.height;
  rowStart_ = isInPart_ ? row * part_.width : 0;
}

std::uint8_t RunLengthDecoder::NumberIn(std::uint8_t byte, std::size_t which) const {
  if (numbersInAByte_ == 1) return byte;
  return static_cast<std::uint8_t>(which == 0 ? byte >> 4 : byte & 0x0F);
}

}  // namespace

IndexedPixels DecodeRunLengths(const Dib& dib, const PixelRectangle& part) {
  return RunLengthDecoder(dib, part).Decode();
}

}  // namespace metafile
}  // namespace kelvane
