#pragma once

#include <string>
#include <vector>

namespace kelvane::bench {

/// The filtered rows of a PNG file, to be deflated again and again and for nothing, as libpng does
/// it with little effort.
class PngDataAlone {
 public:
  explicit PngDataAlone(const std::string& file);

  void Deflate();

 private:
  std::vector<unsigned char> rows_;
  std::vector<unsigned char> room_;
};

}  // namespace kelvane::bench
