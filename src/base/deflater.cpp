#include "base/deflater.h"

#include <new>
#include <utility>

#include <libdeflate.h>

namespace kelvane {
namespace {

constexpr std::size_t kShortData = 32768;
constexpr std::size_t kThoroughData = 524288;
constexpr std::size_t kRepetitiveRate = 6;  // times that repetitive data shrinks at the least

}  // namespace

void Deflater::CompressorDeleter::operator()(libdeflate_compressor* compressor) const {
  libdeflate_free_compressor(compressor);
}

Deflater::Deflater() = default;
Deflater::~Deflater() = default;

DeflatedBytes Deflater::Deflate(std::span<const unsigned char> data) {
  if (data.size() <= kShortData) return DeflateAt(kShort, data);
  auto quick = DeflateAt(kQuick, data);
  if (quick.size > data.size() / kRepetitiveRate) return quick;
  return DeflateAt(data.size() <= kThoroughData ? kThorough : kFair, data);
}

DeflatedBytes Deflater::DeflateAt(int level, std::span<const unsigned char> data) {
  auto& compressor = compressors_[static_cast<std::size_t>(level)];
  if (!compressor) compressor.reset(libdeflate_alloc_compressor(level));
  if (!compressor) throw std::bad_alloc();
  const std::size_t bound = libdeflate_zlib_compress_bound(compressor.get(), data.size());
  auto room = std::make_unique_for_overwrite<unsigned char[]>(bound);
  const std::size_t size =
      libdeflate_zlib_compress(compressor.get(), data.data(), data.size(), room.get(), bound);
  return {std::move(room), size};
}

}  // namespace kelvane
