#include "classic/bitmap/bitmap_records.h"

#include "classic/bitmap/draw_image.h"
#include "classic/context/abstract_context.h"
#include "classic/context/path_primitives.h"
#include "classic/reader/integer_arithmetic.h"
#include "classic/reader/reader.h"

namespace kelvane {
namespace {

constexpr std::uint32_t kLeaveDestination = 0x00AA0029;
constexpr std::uint32_t kPatInvert = 0x005A0049;
constexpr std::uint32_t kSrcInvert = 0x00660046;

// An image takes far more than its pixels in a document. Records that overlap could share the bytes
// of a bitmap and still make an image each, so bytes behind a record's own end count as many
// decoded ones.
constexpr std::uint64_t kPriceOfABorrowedByte = 8;

}  // namespace

void BitBltRecord::drawToPDF(AbstractContext& context) const {
  if (dwRop == kLeaveDestination || dwRop == kPatInvert || cbBitsSrc != 0) return;
  AddRectangle(context, {xDest, yDest, WrappingAdd(xDest, cxDest), WrappingAdd(yDest, cyDest)});
  DrawPath(context, kCGPathFill);
}

void BitBltRecord::read(Reader& reader) {
  reader.readAll(rclBounds, xDest, yDest, cxDest, cyDest, dwRop, xSrc, ySrc, xformSrc, crBkColorSrc,
                 iUsageSrc, offBmiSrc, cbBmiSrc, offBitsSrc, cbBitsSrc);
  if (cbBmiSrc != 0) bmiSrc.read(reader);
  const auto bits = reader.TakeBytes(cbBitsSrc);
  bitsSrc.assign(bits.begin(), bits.end());
}

void StretchDibitsRecord::drawToPDF(AbstractContext& context) const {
  if (dwRop != kSrcInvert) DrawImageInRect(context, dib, rclBounds);
}

void StretchDibitsRecord::read(Reader& reader) {
  constexpr std::uint32_t kTypeAndSize = 8;
  const std::int64_t start = reader.getPosition();
  reader.readAll(rclBounds, xDest, yDest, xSrc, ySrc, cxSrc, cySrc, offBmiSrc, cbBmiSrc, offBitsSrc,
                 cbBitsSrc, iUsageSrc, dwRop, cxDest, cyDest);
  if (cyDest < 0) {
    cyDest = WrappingNegate(cyDest);
    flipped = true;
  }
  dib.size = cbBitsSrc;
  dib.bitsPosition = offBitsSrc + kTypeAndSize + static_cast<std::uint32_t>(start);
  dib.read(reader);
  const std::int64_t rest = start + size - kTypeAndSize - reader.getPosition();
  if (rest > 0) {
    (void)reader.TakeBytes(static_cast<std::size_t>(rest));
  } else if (!reader.ClaimDecodedBytes(kPriceOfABorrowedByte * static_cast<std::uint64_t>(-rest))) {
    dib.data.clear();
    dib.size = 0;
  }
}

}  // namespace kelvane
