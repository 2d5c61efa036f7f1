#pragma once

#include <array>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <span>

struct libdeflate_compressor;

namespace kelvane {

/// What deflating left of some bytes, in memory of just that size.
struct DeflatedBytes {
  struct Free {
    void operator()(unsigned char* memory) const { std::free(memory); }
  };

  using Memory = std::unique_ptr<unsigned char[], Free>;

  Memory bytes;
  std::size_t size = 0;

  [[nodiscard]] std::span<const unsigned char> View() const { return {bytes.get(), size}; }
};

/// Deflates streams for /FlateDecode (ISO 32000-1, 7.4.4) as hard as it pays. Points on a map are
/// so unlike each other that effort gains next to nothing; flat pictures and drawings that repeat
/// themselves shrink to two thirds of what the quickest way leaves. Equal data makes equal streams.
class Deflater {
 public:
  /// How hard, as libdeflate counts it, from 0 to 12.
  static constexpr int kQuick = 1;
  static constexpr int kShort = 2;     // for so little that even the double time is nothing
  static constexpr int kThorough = 7;  // for what repeats itself
  static constexpr int kFair = 4;      // for more of that than is worth waiting for

  Deflater();
  ~Deflater();
  Deflater(const Deflater&) = delete;
  Deflater& operator=(const Deflater&) = delete;

  /// @return `data` as a zlib stream. Throws std::bad_alloc.
  [[nodiscard]] DeflatedBytes Deflate(std::span<const unsigned char> data);

  /// The same with little effort, for what is known to shrink to next to nothing anyhow.
  [[nodiscard]] DeflatedBytes DeflateQuickly(std::span<const unsigned char> data);

 private:
  struct CompressorDeleter {
    void operator()(libdeflate_compressor* compressor) const;
  };

  [[nodiscard]] libdeflate_compressor* CompressorAt(int level);
  [[nodiscard]] std::size_t RoomAt(int level, std::size_t size);

  /// @param room  bytes the result may have. @return nothing when these do not suffice.
  [[nodiscard]] DeflatedBytes DeflateAt(int level, std::span<const unsigned char> data,
                                        std::size_t room);

  // By level, each null until it is needed: their tables take more memory than most documents.
  std::array<std::unique_ptr<libdeflate_compressor, CompressorDeleter>, kThorough + 1> compressors_;
};

}  // namespace kelvane
