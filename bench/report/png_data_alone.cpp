#include "report/png_data_alone.h"

#include <cstddef>
#include <stdexcept>
#include <string_view>

#include <zlib.h>

namespace kelvane::bench {
namespace {

constexpr std::size_t kSignature = 8;
constexpr std::size_t kChunkHead = 8;  // the length of its data, and its type
constexpr std::size_t kChunkTail = 4;  // a checksum
constexpr int kEffort = 4;             // as pictures are written

std::size_t BigEndian(std::string_view bytes) {
  std::size_t value = 0;
  for (const char byte : bytes.substr(0, 4))
    value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

/// @return the data of all chunks that hold rows (PNG 1.2, 5).
std::string DeflatedRows(std::string_view file) {
  std::string rows;
  for (file.remove_prefix(kSignature); file.size() >= kChunkHead;) {
    const std::size_t length = BigEndian(file);
    if (file.substr(4, 4) == "IDAT") rows += file.substr(kChunkHead, length);
    file.remove_prefix(kChunkHead + length + kChunkTail);
  }
  return rows;
}

}  // namespace

PngDataAlone::PngDataAlone(const std::string& file) {
  const std::string deflated = DeflatedRows(file);
  constexpr std::size_t kMost = std::size_t{1} << 28;
  rows_.resize(kMost);
  uLongf length = rows_.size();
  if (uncompress(rows_.data(), &length, reinterpret_cast<const Bytef*>(deflated.data()),
                 deflated.size()) != Z_OK) {
    throw std::runtime_error("the rows of a PNG cannot be inflated");
  }
  rows_.resize(length);
  room_.resize(compressBound(length));
}

void PngDataAlone::Deflate() {
  uLongf length = room_.size();
  compress2(room_.data(), &length, rows_.data(), rows_.size(), kEffort);
}

}  // namespace kelvane::bench
