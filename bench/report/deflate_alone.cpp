#include "report/deflate_alone.h"

#include <algorithm>
#include <utility>

#include <libdeflate.h>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "base/deflater.h"

namespace kelvane::bench {

std::vector<std::string> ContentOf(const CFData& document) {
  QPDF pdf;
  pdf.processMemoryFile("document", reinterpret_cast<const char*>(document.bytes.data()),
                        document.bytes.size());
  QPDFObjectHandle page = pdf.getAllPages().at(0);
  QPDFObjectHandle contents = page.getKey("/Contents");
  const std::vector<QPDFObjectHandle> streams =
      contents.isArray() ? contents.getArrayAsVector() : std::vector{contents};
  std::vector<std::string> pieces;
  for (QPDFObjectHandle stream : streams) {
    const auto data = stream.getStreamData();
    pieces.emplace_back(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
  }
  return pieces;
}

void DeflateAlone::Free::operator()(libdeflate_compressor* compressor) const {
  libdeflate_free_compressor(compressor);
}

DeflateAlone::DeflateAlone(std::vector<std::string> pieces, int level)
    : pieces_(std::move(pieces)), compressor_(libdeflate_alloc_compressor(level)) {
  std::size_t longest = 0;
  for (const std::string& piece : pieces_)
    longest = std::max(longest, piece.size());
  room_.resize(libdeflate_zlib_compress_bound(compressor_.get(), longest));
}

void DeflateAlone::Deflate() {
  for (const std::string& piece : pieces_) {
    libdeflate_zlib_compress(compressor_.get(), piece.data(), piece.size(), room_.data(),
                             room_.size());
  }
}

}  // namespace kelvane::bench
