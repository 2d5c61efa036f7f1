#include "hostile/hostile_files.h"

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
  for (std::size_t i = 0; i < 4; ++i) {
    file[offset + i] = static_cast<unsigned char>(value >> (8 * i));
  }
  return file;
}

}  // namespace kelvane::test
