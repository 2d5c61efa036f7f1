// Writes the samples into a folder: make_samples FOLDER

#include <cstdio>
#include <fstream>

#include "samples.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Usage: make_samples FOLDER\n", stderr);
    return 1;
  }
  for (const auto& [name, metafile] : kelvane::samples::AllSamples()) {
    const std::vector<unsigned char> bytes = metafile.Build();
    const std::string path = std::string(argv[1]) + '/' + name + ".emf";
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) {
      std::perror(path.c_str());
      return 1;
    }
  }
  return 0;
}
