#include "base/deflater.h"

#include <new>
#include <utility>

#include <libdeflate.h>

namespace kelvane {
namespace {

constexpr std::size_t kShortData = 32768;
constexpr std::size_t kThoroughData = 524288;
constexpr std::size_t kRepetitiveRate = 6;  // times that repetitive data shrinks at the least

DeflatedBytes::Memory Allocate(std::size_t size) {
  DeflatedBytes::Memory memory(static_cast<unsigned char*>(std::malloc(size)));
  if (!memory) throw std::bad_alloc();
  return memory;
}

/// Gives back the room that was not needed. Large blocks stay where they are, so nothing is copied.
void Shrink(DeflatedBytes& deflated) {
  if (deflated.size == 0) return;
  void* const shrunk = std::realloc(deflated.bytes.get(), deflated.size);
  if (shrunk == nullptr) return;  // it is as good as before
  static_cast<void>(deflated.bytes.release());
  deflated.bytes.reset(static_cast<unsigned char*>(shrunk));
}

}  // namespace

void Deflater::CompressorDeleter::operator()(libdeflate_compressor* compressor) const {
  libdeflate_free_compressor(compressor);
}

Deflater::Deflater() = default;
Deflater::~Deflater() = default;

DeflatedBytes Deflater::Deflate(std::span<const unsigned char> data) {
  if (data.size() <= kShortData) return DeflateAt(kShort, data, RoomAt(kShort, data.size()));
  DeflatedBytes quick = DeflateAt(kQuick, data, RoomAt(kQuick, data.size()));
  if (quick.size > data.size() / kRepetitiveRate) return quick;
  const int level = data.size() <= kThoroughData ? kThorough : kFair;
  DeflatedBytes smaller = DeflateAt(level, data, quick.size);
  return smaller.size != 0 ? std::move(smaller) : std::move(quick);
}

DeflatedBytes Deflater::DeflateQuickly(std::span<const unsigned char> data) {
  return DeflateAt(kQuick, data, RoomAt(kQuick, data.size()));
}

libdeflate_compressor* Deflater::CompressorAt(int level) {
  auto& compressor = compressors_[static_cast<std::size_t>(level)];
  if (!compressor) compressor.reset(libdeflate_alloc_compressor(level));
  if (!compressor) throw std::bad_alloc();
  return compressor.get();
}

std::size_t Deflater::RoomAt(int level, std::size_t size) {
  return libdeflate_zlib_compress_bound(CompressorAt(level), size);
}

DeflatedBytes Deflater::DeflateAt(int level, std::span<const unsigned char> data,
                                  std::size_t room) {
  DeflatedBytes deflated{Allocate(room)};
  deflated.size = libdeflate_zlib_compress(CompressorAt(level), data.data(), data.size(),
                                           deflated.bytes.get(), room);
  Shrink(deflated);
  return deflated;
}

}  // namespace kelvane
