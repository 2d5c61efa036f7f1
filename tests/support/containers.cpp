#include "support/containers.h"

#include <memory>
#include <stdexcept>

#include <libdeflate.h>

namespace kelvane::test {

std::vector<unsigned char> Gzipped(const std::vector<unsigned char>& bytes) {
  constexpr int kSmallest = 12;
  const std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor*)> compressor(
      libdeflate_alloc_compressor(kSmallest), libdeflate_free_compressor);
  std::vector<unsigned char> packed(libdeflate_gzip_compress_bound(compressor.get(), bytes.size()));
  packed.resize(libdeflate_gzip_compress(compressor.get(), bytes.data(), bytes.size(),
                                         packed.data(), packed.size()));
  if (packed.empty()) throw std::runtime_error("nothing was compressed");
  return packed;
}

PrintJob::PrintJob(const std::u16string& document) {
  constexpr std::uint32_t kFixedSize = 16;
  const auto nameSize = static_cast<std::uint32_t>(2 * (document.size() + 1));
  const std::uint32_t size = (kFixedSize + nameSize + 3) / 4 * 4;
  bytes_.U32(0x10000).U32(size).U32(kFixedSize).U32(0).Utf16(document);
  bytes_.Zeros(size - kFixedSize - 2 * document.size());
}

PrintJob& PrintJob::Record(std::uint32_t type, const std::vector<unsigned char>& data) {
  return RecordOfSize(type, static_cast<std::uint32_t>(data.size()), data);
}

PrintJob& PrintJob::RecordOfSize(std::uint32_t type, std::uint32_t size,
                                 const std::vector<unsigned char>& data) {
  bytes_.U32(type).U32(size).Append(data);
  return *this;
}

PrintJob& PrintJob::Page(const std::vector<unsigned char>& metafile) {
  constexpr std::uint32_t kMetafileData = 12;
  return Record(kMetafileData, metafile);
}

}  // namespace kelvane::test
