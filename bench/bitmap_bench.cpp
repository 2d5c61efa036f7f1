// Decoding of bitmaps, from bytes in cache to the pixels an image is made of.

#include <cstdint>
#include <vector>

#include <benchmark/benchmark.h>

#include "classic/bitmap/dib.h"
#include "classic/reader/reader.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

constexpr std::int32_t kWidth = 256;
constexpr std::int32_t kHeight = 128;

std::vector<unsigned char> BitmapOf(std::uint32_t bitCount) {
  test::Bytes bytes;
  bytes.BitmapHeader({.width = kWidth, .height = kHeight, .bitCount = bitCount});
  const std::uint32_t colors = bitCount < 16 ? 1U << bitCount : 0;
  for (std::uint32_t i = 0; i < colors; ++i)
    bytes.Color(i, i, i);
  const std::uint32_t stored = kWidth * kHeight * bitCount / 8;
  for (std::uint32_t i = 0; i < stored; ++i)
    bytes.U8(i * 37);
  return bytes.U8(0).Data();
}

void DecodeBitmap(benchmark::State& state, std::uint32_t bitCount) {
  const std::vector<unsigned char> block = BitmapOf(bitCount);
  for (auto _ : state) {
    Reader reader(block.data(), static_cast<std::int32_t>(block.size()));
    DIB dib;
    dib.read(reader);
    benchmark::DoNotOptimize(dib.data.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * kWidth * kHeight);  // pixels
}

BENCHMARK_CAPTURE(DecodeBitmap, 4_bits, 4U);
BENCHMARK_CAPTURE(DecodeBitmap, 8_bits, 8U);
BENCHMARK_CAPTURE(DecodeBitmap, 16_bits, 16U);
BENCHMARK_CAPTURE(DecodeBitmap, 24_bits, 24U);
BENCHMARK_CAPTURE(DecodeBitmap, 32_bits, 32U);

}  // namespace
}  // namespace kelvane
