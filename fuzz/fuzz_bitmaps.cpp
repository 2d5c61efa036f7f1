// Reads any bytes as a stored bitmap and decodes it in all ways, whole and in part: as many pixels
// as asked for must come.

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "metafile/dib.h"

namespace {

constexpr std::size_t kMostPixels = std::size_t{1} << 22;

void Expect(bool isTrue) {
  if (!isTrue) std::abort();
}

void Decode(const kelvane::Dib& dib, const kelvane::PixelRectangle& part) {
  using Content = kelvane::Dib::Content;
  const std::size_t pixels = part.width * part.height;
  const auto rgb = DecodeRgb(dib, part);
  Expect(rgb ? rgb->size() == 3 * pixels : dib.Kind() >= Content::kJpeg);
  if (const auto translucent = DecodePremultiplied(dib, part)) {
    Expect(translucent->rgb.size() == 3 * pixels && translucent->alpha.size() == pixels);
  }
  if (dib.Kind() == Content::kDirect && IsGray(dib, part)) {
    const auto gray = DecodeGray(dib, part);
    Expect(gray.size() == pixels && gray.front() == rgb->front());
  }
  if (dib.Kind() != Content::kIndexed) return;
  const auto numbers = DecodeIndexes(dib, part);
  Expect(numbers.indexes.size() == pixels);
  Expect(numbers.isSet.empty() || numbers.isSet.size() == pixels);
  Expect(*std::ranges::max_element(numbers.indexes) < dib.Colors().size());
  if (!dib.IsRunLengthEncoded()) DecodePackedIndexes(dib, part);
}

}  // namespace

// The first byte is the usage, and the next two how many bytes the header has.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  if (size < 3) return 0;
  const std::span<const unsigned char> rest(data + 3, size - 3);
  const std::size_t split = std::min<std::size_t>(data[1] | std::size_t{data[2]} << 8, rest.size());
  const std::vector<kelvane::DibColor> palette = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
  const auto dib = kelvane::Dib::Read(
      {rest.first(split), rest.subspan(split), static_cast<kelvane::DibUsage>(data[0] % 3)},
      palette);
  if (!dib || dib->Width() > kMostPixels / dib->Height()) return 0;
  const std::size_t width = dib->Width();
  const std::size_t height = dib->Height();
  Decode(*dib, {0, 0, width, height});
  Decode(*dib,
         {width / 3, height / 3, width - width / 3 - width / 4, height - height / 3 - height / 4});
  return 0;
}
