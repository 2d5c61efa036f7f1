#include "frontends/kelvane/output_file.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <span>
#include <system_error>

#include <sys/stat.h>

#include "frontends/file_consumer.h"

namespace kelvane {
namespace {

[[noreturn]] void ThrowWriting(int error) {
  throw std::system_error(error, std::generic_category(), "writing");
}

struct StreamCloser {
  void operator()(std::FILE* stream) const noexcept {
    if (stream != stdout) (void)std::fclose(stream);
  }
};

/// A stream, to which bytes go as they come.
class StreamConsumer final : public CGDataConsumer {
 public:
  explicit StreamConsumer(std::FILE* stream) : stream_(stream) {}

  void Write(std::span<const unsigned char> bytes) override {
    const std::size_t count = std::fwrite(bytes.data(), 1, bytes.size(), stream_.get());
    if (count != bytes.size() || std::fflush(stream_.get()) != 0) ThrowWriting(errno);
  }
  void Commit() override {
    if (std::fflush(stream_.get()) != 0) ThrowWriting(errno);
  }

 private:
  std::unique_ptr<std::FILE, StreamCloser> stream_;
};

/// True for what must not be replaced by a file, such as /dev/null.
bool IsDeviceOrPipe(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return false;
  return S_ISCHR(status.st_mode) || S_ISFIFO(status.st_mode) || S_ISBLK(status.st_mode);
}

}  // namespace

CFOwned<CGDataConsumer> OpenOutput(const std::string& path) {
  if (path == "-") return CFOwned<CGDataConsumer>(new StreamConsumer(stdout));
  if (IsDeviceOrPipe(path)) {
    std::FILE* const stream = std::fopen(path.c_str(), "wbe");
    if (stream == nullptr) ThrowWriting(errno);
    return CFOwned<CGDataConsumer>(new StreamConsumer(stream));
  }
  const CFURL url(path);
  CFOwned<CGDataConsumer> file(CGDataConsumerCreateWithURL(&url));
  if (!file) ThrowWriting(errno);
  return file;
}

}  // namespace kelvane
