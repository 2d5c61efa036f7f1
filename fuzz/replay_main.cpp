// Runs a fuzz target once on every file named and on every file in the folders named.

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

namespace {

int Replay(const std::filesystem::path& path) {
  std::fprintf(stderr, "%s\n", path.c_str());  // the last line names the culprit
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot be read");
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file),
                                std::istreambuf_iterator<char>()};
  LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
  return 1;
}

int ReplayAll(const std::filesystem::path& path) {
  if (!std::filesystem::is_directory(path)) return Replay(path);
  int replayed = 0;
  for (const auto& entry : std::filesystem::directory_iterator(path)) {
    replayed += Replay(entry.path());
  }
  return replayed;
}

}  // namespace

int main(int argc, char** argv) {
  int replayed = 0;
  for (int i = 1; i < argc; ++i)
    replayed += ReplayAll(argv[i]);
  return replayed == 0 ? 1 : 0;
}
