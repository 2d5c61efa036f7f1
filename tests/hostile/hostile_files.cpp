#include "hostile/hostile_files.h"

namespace kelvane::test {

std::vector<HostileFile> HostileFiles() {
  std::vector<HostileFile> all;
  for (const auto& group : {FilesThatPromiseTooMuch(), FilesThatLeadAstray(), FilesCutInsideAList(),
                            FilesOfBadBitmaps(), FilesOfBadValues()}) {
    all.insert(all.end(), group.begin(), group.end());
  }
  return all;
}

Bytes TextFields(std::uint32_t count, std::uint32_t stringOffset, std::uint32_t spacingOffset) {
  Bytes body;
  body.Rectangle(0, 0, -1, -1).U32(2).F32(1).F32(1).PointL(10, 20).U32(count).U32(stringOffset);
  return body.U32(0).Rectangle(0, 0, -1, -1).U32(spacingOffset);
}

std::string TextTrace(char character, int x) {
  return std::string("text \"") + character + "\" LiberationSans 10 under 1 0 0 1 " +
         std::to_string(x) + " -20\n";
}

std::vector<unsigned char> CutShort(std::vector<unsigned char> file, std::size_t bytes) {
  file.resize(file.size() - bytes);
  return file;
}

}  // namespace kelvane::test
