#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/deflater.h"
#include "platform/corefoundation/cf_data.h"

struct libdeflate_compressor;

namespace kelvane::bench {

/// @return the streams of the content of a document's page, inflated.
std::vector<std::string> ContentOf(const CFData& document);

/// Pieces of data, to be deflated again and again and for nothing.
class DeflateAlone {
 public:
  /// @param level  as libdeflate counts it.
  explicit DeflateAlone(std::vector<std::string> pieces, int level = Deflater::kQuick);

  void Deflate();

 private:
  struct Free {
    void operator()(libdeflate_compressor* compressor) const;
  };

  std::vector<std::string> pieces_;
  std::vector<unsigned char> room_;
  std::unique_ptr<libdeflate_compressor, Free> compressor_;
};

}  // namespace kelvane::bench
