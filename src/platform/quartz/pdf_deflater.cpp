#include "platform/quartz/pdf_deflater.h"

#include <algorithm>
#include <new>

#include <libdeflate.h>
#include <qpdf/Buffer.hh>

namespace kelvane {
namespace {

constexpr std::size_t kShortData = 32768;
constexpr std::size_t kThoroughData = 524288;
constexpr std::size_t kRepetitiveRate = 6;  // times that repetitive data shrinks at the least

}  // namespace

void PdfDeflater::CompressorDeleter::operator()(libdeflate_compressor* compressor) const {
  libdeflate_free_compressor(compressor);
}

PdfDeflater::PdfDeflater() = default;
PdfDeflater::~PdfDeflater() = default;

std::shared_ptr<Buffer> PdfDeflater::Deflate(std::span<const unsigned char> data) {
  if (data.size() <= kShortData) return DeflateAt(kShort, data);
  auto quick = DeflateAt(kQuick, data);
  if (quick->getSize() > data.size() / kRepetitiveRate) return quick;
  return DeflateAt(data.size() <= kThoroughData ? kThorough : kFair, data);
}

std::shared_ptr<Buffer> PdfDeflater::DeflateAt(int level, std::span<const unsigned char> data) {
  auto& compressor = compressors_[static_cast<std::size_t>(level)];
  if (!compressor) compressor.reset(libdeflate_alloc_compressor(level));
  if (!compressor) throw std::bad_alloc();
  const std::size_t bound = libdeflate_zlib_compress_bound(compressor.get(), data.size());
  const auto room = std::make_unique_for_overwrite<unsigned char[]>(bound);
  const std::size_t size =
      libdeflate_zlib_compress(compressor.get(), data.data(), data.size(), room.get(), bound);
  auto deflated = std::make_shared<Buffer>(size);
  std::copy_n(room.get(), size, deflated->getBuffer());
  return deflated;
}

}  // namespace kelvane
