#include "frontends/kelvane/input_file.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvane {
namespace {

constexpr auto kLargestInput = static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());
constexpr std::size_t kFirstRoom = 65536;

[[noreturn]] void ThrowErrorOfTheSystem() {
  throw std::runtime_error(std::generic_category().message(errno));
}

[[noreturn]] void ThrowTooLarge() {
  throw std::runtime_error("it has 2 GiB or more");
}

/// An open file; standard input stays open.
class Descriptor {
 public:
  explicit Descriptor(const std::string& path)
      : isOurs_(path != "-"), number_(isOurs_ ? Open(path.c_str()) : STDIN_FILENO) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (isOurs_) close(number_);
  }

  [[nodiscard]] struct stat Status() const {
    struct stat status {};
    if (fstat(number_, &status) != 0) ThrowErrorOfTheSystem();
    return status;
  }

  /// @return how many bytes were read; 0 at the end.
  std::size_t Read(unsigned char* bytes, std::size_t count) const {
    ssize_t result = -1;
    do {
      result = read(number_, bytes, count);
    } while (result < 0 && errno == EINTR);
    if (result < 0) ThrowErrorOfTheSystem();
    return static_cast<std::size_t>(result);
  }

 private:
  // Opening does not wait for somebody to write; reading does, as long as there is somebody.
  static int Open(const char* path) {
    const int number = open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (number < 0) ThrowErrorOfTheSystem();
    fcntl(number, F_SETFL, 0);
    return number;
  }

  bool isOurs_;
  int number_;
};

/// @return room for the file and a byte more, so that its end is met without growing. A device,
///         which may never end, is refused.
std::size_t RoomFor(const struct stat& status) {
  if (S_ISCHR(status.st_mode)) throw std::runtime_error("it is a device");
  if (!S_ISREG(status.st_mode)) return kFirstRoom;
  if (status.st_size > static_cast<off_t>(kLargestInput)) ThrowTooLarge();
  return static_cast<std::size_t>(status.st_size) + 1;
}

}  // namespace

std::vector<unsigned char> ReadInput(const std::string& path) {
  const Descriptor file(path);
  std::vector<unsigned char> bytes(RoomFor(file.Status()));
  std::size_t size = 0;
  while (const std::size_t count = file.Read(bytes.data() + size, bytes.size() - size)) {
    size += count;
    if (size > kLargestInput) ThrowTooLarge();
    if (size == bytes.size()) bytes.resize(std::max(2 * size, kFirstRoom));
  }
  bytes.resize(size);
  return bytes;
}

}  // namespace kelvane
