// Writes a metafile of every family of inputs: make_input_families FOLDER BYTES

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "limits/input_families.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::puts("Usage: make_input_families FOLDER BYTES");
    return 1;
  }
  const std::string folder = argv[1];
  const auto size = static_cast<std::size_t>(std::strtoull(argv[2], nullptr, 10));
  for (const auto& family : kelvane::test::InputFamilies()) {
    const auto bytes = family.make(size);
    std::ofstream file(folder + "/" + family.name + ".emf", std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) return 1;
  }
  return 0;
}
