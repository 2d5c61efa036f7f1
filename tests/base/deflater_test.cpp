#include "base/deflater.h"

#include <cstdint>
#include <memory>
#include <string>

#include <gtest/gtest.h>
#include <libdeflate.h>

namespace kelvane {
namespace {

constexpr int kBest = 9;  // what general optimisers use

std::span<const unsigned char> Bytes(const std::string& text) {
  return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

std::string Inflated(const DeflatedBytes& deflated, std::size_t size) {
  std::string text(size, '\0');
  const std::unique_ptr<libdeflate_decompressor, void (*)(libdeflate_decompressor*)> decompressor(
      libdeflate_alloc_decompressor(), libdeflate_free_decompressor);
  EXPECT_EQ(libdeflate_zlib_decompress(decompressor.get(), deflated.bytes.get(), deflated.size,
                                       text.data(), text.size(), nullptr),
            LIBDEFLATE_SUCCESS);
  return text;
}

std::size_t SizeAt(int level, const std::string& text) {
  const std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor*)> compressor(
      libdeflate_alloc_compressor(level), libdeflate_free_compressor);
  std::string room(libdeflate_zlib_compress_bound(compressor.get(), text.size()), '\0');
  return libdeflate_zlib_compress(compressor.get(), text.data(), text.size(), room.data(),
                                  room.size());
}

/// Points that have little in common.
std::string Lines(std::size_t count) {
  std::string text;
  std::uint32_t seed = 1;
  for (std::size_t i = 0; i < count; ++i) {
    for (int axis = 0; axis < 2; ++axis) {
      seed = seed * 1664525 + 1013904223;
      text += std::to_string(seed >> 17) + " ";
    }
    text += "l\n";
  }
  return text;
}

/// The same symbol over and over, each a little further on.
std::string Symbols(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    text += std::to_string(i % 40 * 17) + " " + std::to_string(i / 40 * 29) +
            " 12.5 8.25 re\nB\n0.84765625 0.84765625 0.84765625 rg\n";
  }
  return text;
}

TEST(Deflater, MakesStreamsThatInflateToTheirData) {
  Deflater deflater;
  for (const std::size_t size : {0U, 1U, 100U, 32768U, 32769U, 100000U}) {
    for (std::string text : {Lines(size / 10 + 1), Symbols(size / 40 + 1)}) {
      text.resize(size);
      EXPECT_EQ(Inflated(deflater.Deflate(Bytes(text)), size), text) << size;
    }
  }
}

TEST(Deflater, TakesTheQuickWayWithPointsThatHaveLittleInCommon) {
  const std::string text = Lines(20000);
  Deflater deflater;
  EXPECT_EQ(deflater.Deflate(Bytes(text)).size, SizeAt(Deflater::kQuick, text));
}

TEST(Deflater, LeavesNextToNothingOfRepetitionToGain) {
  for (const std::string& text : {Symbols(3000), std::string(200000, '\xFF')}) {
    Deflater deflater;
    const auto size = static_cast<double>(deflater.Deflate(Bytes(text)).size);
    EXPECT_LT(size, 1.1 * static_cast<double>(SizeAt(kBest, text)));
    EXPECT_LT(size, static_cast<double>(SizeAt(Deflater::kQuick, text)));
  }
}

TEST(Deflater, IsNotThoroughWithMoreThanIsWorthWaitingFor) {
  const std::string text = Symbols(30000);
  Deflater deflater;
  EXPECT_EQ(deflater.Deflate(Bytes(text)).size, SizeAt(Deflater::kFair, text));
}

TEST(Deflater, TakesTheQuickWayWhereItIsAskedTo) {
  const std::string text(100'000, 'a');
  Deflater deflater;
  EXPECT_EQ(deflater.DeflateQuickly(Bytes(text)).size, SizeAt(Deflater::kQuick, text));
}

}  // namespace
}  // namespace kelvane
