#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>

class Buffer;
struct libdeflate_compressor;

namespace kelvane {

/// Deflates streams for /FlateDecode (ISO 32000-1, 7.4.4) as hard as it pays. Points on a map are
/// so unlike each other that effort gains next to nothing; flat pictures and drawings that repeat
/// themselves shrink to two thirds of what the quickest way leaves.
class PdfDeflater {
 public:
  /// How hard, as libdeflate counts it, from 0 to 12.
  static constexpr int kQuick = 1;
  static constexpr int kShort = 2;       // of so little that even the double time is nothing
  static constexpr int kRepetitive = 7;  // what the quickest way leaves little of

  PdfDeflater();
  ~PdfDeflater();
  PdfDeflater(const PdfDeflater&) = delete;
  PdfDeflater& operator=(const PdfDeflater&) = delete;

  /// @return `data` as a zlib stream. Throws std::bad_alloc.
  [[nodiscard]] std::shared_ptr<Buffer> Deflate(std::span<const unsigned char> data);

 private:
  struct CompressorDeleter {
    void operator()(libdeflate_compressor* compressor) const;
  };

  [[nodiscard]] std::shared_ptr<Buffer> DeflateAt(int level, std::span<const unsigned char> data);

  // By level, each null until it is needed: their tables take more memory than most documents.
  std::array<std::unique_ptr<libdeflate_compressor, CompressorDeleter>, kRepetitive + 1>
      compressors_;
};

}  // namespace kelvane
