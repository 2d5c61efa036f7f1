// Reads a metafile, converts it in memory and writes the document to standard output.
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <vector>

#include <kelvane/kelvane.h>

struct Release {
  void operator()(CFMutableDataRef data) const { CFRelease(data); }
};

int main(int argc, char** argv) {
  if (argc != 2) return 1;
  std::ifstream file(argv[1], std::ios::binary);
  const std::vector<char> metafile{std::istreambuf_iterator<char>(file), {}};
  const std::unique_ptr<KelvaneData, Release> pdf(CFDataCreateMutable(nullptr, 0));
  const auto* const bytes = reinterpret_cast<const unsigned char*>(metafile.data());
  if (!pdf || KELVANE(bytes, metafile.size(), pdf.get()) != 0) return 1;
  std::cout.write(reinterpret_cast<const char*>(CFDataGetBytePtr(pdf.get())),
                  CFDataGetLength(pdf.get()));
  return 0;
}
