#include "hostile/hostile_files.h"

#include <algorithm>

namespace kelvane::test {

std::vector<HostileFile> HostileFiles() {
  std::vector<HostileFile> all;
  for (const auto& group : {FilesThatPromiseTooMuch(), FilesThatLeadAstray(), FilesOfBadBitmaps(),
                            FilesOfBadValues()}) {
    all.insert(all.end(), group.begin(), group.end());
  }
  return all;
}

std::vector<unsigned char> WithField(std::vector<unsigned char> file, std::size_t offset,
                                     std::uint32_t value) {
  std::ranges::copy(Bytes().U32(value).Data(), file.begin() + static_cast<std::ptrdiff_t>(offset));
  return file;
}

}  // namespace kelvane::test
