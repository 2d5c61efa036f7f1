// Decoding of stored bitmaps of the size of a photo, 12 million pixels, to what an image is made
// of.

#include <cstdint>
#include <vector>

#include <benchmark/benchmark.h>

#include "metafile/dib.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

constexpr std::int32_t kPhotoWidth = 4000;
constexpr std::int32_t kPhotoHeight = 3000;
constexpr PixelRectangle kWholePhoto = {0, 0, kPhotoWidth, kPhotoHeight};

/// A header, and pixels that a pattern fills; a grey one has the same byte everywhere.
struct StoredBitmap {
  explicit StoredBitmap(std::uint32_t bitCount, bool isGray = false)
      : header(
            test::Bytes()
                .BitmapHeader({.width = kPhotoWidth, .height = kPhotoHeight, .bitCount = bitCount})
                .Zeros(bitCount <= 8 ? std::size_t{4} << bitCount : 0)
                .Data()),
        pixels(std::size_t{kPhotoWidth} * kPhotoHeight * bitCount / 8) {
    for (std::size_t i = 0; i < pixels.size(); ++i)
      pixels[i] = static_cast<unsigned char>(isGray ? 200 : i * 37);
  }

  [[nodiscard]] Dib Read() const { return Dib::Read({header, pixels}).value(); }

  std::vector<unsigned char> header;
  std::vector<unsigned char> pixels;
};

void DecodeStoredRgb(benchmark::State& state, std::uint32_t bitCount) {
  const StoredBitmap bitmap(bitCount);
  for (auto _ : state)
    benchmark::DoNotOptimize(DecodeRgb(bitmap.Read(), kWholePhoto));
  state.SetItemsProcessed(state.iterations() * kPhotoWidth * kPhotoHeight);  // pixels
}

void DecodeStoredPremultiplied(benchmark::State& state) {
  const StoredBitmap bitmap(32);
  for (auto _ : state)
    benchmark::DoNotOptimize(DecodePremultiplied(bitmap.Read(), kWholePhoto));
  state.SetItemsProcessed(state.iterations() * kPhotoWidth * kPhotoHeight);
}

void FindThatStoredIsGray(benchmark::State& state) {
  const StoredBitmap bitmap(24, true);
  for (auto _ : state)
    benchmark::DoNotOptimize(IsGray(bitmap.Read(), kWholePhoto));
  state.SetItemsProcessed(state.iterations() * kPhotoWidth * kPhotoHeight);
}

BENCHMARK_CAPTURE(DecodeStoredRgb, 1_bit, 1U)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DecodeStoredRgb, 8_bits, 8U)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DecodeStoredRgb, 16_bits, 16U)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DecodeStoredRgb, 24_bits, 24U)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DecodeStoredRgb, 32_bits, 32U)->Unit(benchmark::kMillisecond);
BENCHMARK(DecodeStoredPremultiplied)->Unit(benchmark::kMillisecond);
BENCHMARK(FindThatStoredIsGray)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kelvane
