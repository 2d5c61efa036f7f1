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

}  // namespace kelvane::test
