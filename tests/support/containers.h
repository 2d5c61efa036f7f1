#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "support/bytes.h"

namespace kelvane::test {

/// @return the bytes as one gzip member, as small as it gets.
std::vector<unsigned char> Gzipped(const std::vector<unsigned char>& bytes);

/// A print job put together record by record ([MS-EMFSPOOL] 2.2).
class PrintJob {
 public:
  explicit PrintJob(const std::u16string& document = u"Letter");

  PrintJob& Record(std::uint32_t type, const std::vector<unsigned char>& data);

  /// A record with a size of its own, whatever data it has.
  PrintJob& RecordOfSize(std::uint32_t type, std::uint32_t size,
                         const std::vector<unsigned char>& data = {});

  /// A page of a metafile.
  PrintJob& Page(const std::vector<unsigned char>& metafile);

  [[nodiscard]] const std::vector<unsigned char>& Build() const { return bytes_.Data(); }

 private:
  Bytes bytes_;
};

}  // namespace kelvane::test
