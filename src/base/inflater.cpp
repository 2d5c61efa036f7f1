#include "base/inflater.h"

#include <algorithm>
#include <memory>
#include <new>

#include <libdeflate.h>

namespace kelvane {
namespace {

struct FreeDecompressor {
  void operator()(libdeflate_decompressor* decompressor) const {
    libdeflate_free_decompressor(decompressor);
  }
};
using Decompressor = std::unique_ptr<libdeflate_decompressor, FreeDecompressor>;

/// Members that come out one behind the other, in room that grows.
class InflatedMembers {
 public:
  explicit InflatedMembers(std::size_t most) : most_(most), decompressor_(MakeDecompressor()) {}

  /// @param data  begins with a member, which is taken off.
  InflateEnd Add(std::span<const unsigned char>& data) {
    if (room_.size() - size_ < data.size()) GrowTo(size_ + 4 * data.size());
    for (;;) {
      std::size_t taken = 0;
      std::size_t made = 0;
      const libdeflate_result result =
          libdeflate_gzip_decompress_ex(decompressor_.get(), data.data(), data.size(),
                                        room_.data() + size_, room_.size() - size_, &taken, &made);
      if (result == LIBDEFLATE_SUCCESS) {
        data = data.subspan(taken);
        size_ += made;
        return InflateEnd::kWhole;
      }
      if (result != LIBDEFLATE_INSUFFICIENT_SPACE) return InflateEnd::kDamaged;
      if (room_.size() >= most_) return InflateEnd::kTooLarge;
      GrowTo(2 * room_.size());
    }
  }

  std::vector<unsigned char> Take() {
    room_.resize(size_);
    return std::move(room_);
  }

 private:
  static Decompressor MakeDecompressor() {
    Decompressor made(libdeflate_alloc_decompressor());
    if (made == nullptr) throw std::bad_alloc();
    return made;
  }

  void GrowTo(std::size_t size) { room_.resize(std::min(most_, size)); }

  std::size_t most_;
  Decompressor decompressor_;
  std::vector<unsigned char> room_;
  std::size_t size_ = 0;
};

}  // namespace

bool IsGzip(std::span<const unsigned char> bytes) {
  return bytes.size() >= 2 && bytes[0] == 0x1F && bytes[1] == 0x8B;
}

InflatedBytes InflateGzip(std::span<const unsigned char> data, std::size_t most) {
  InflatedMembers members(most);
  if (!IsGzip(data)) return {};
  while (IsGzip(data)) {
    const InflateEnd end = members.Add(data);
    if (end != InflateEnd::kWhole) return {end, {}};
  }
  return {InflateEnd::kWhole, members.Take()};
}

}  // namespace kelvane
