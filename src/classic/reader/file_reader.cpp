#include "classic/reader/file_reader.h"

#include <array>
#include <cerrno>
#include <limits>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvane {
namespace {

constexpr auto kLargestBlock = static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());

[[noreturn]] void Throw(std::errc error) {
  throw std::system_error(std::make_error_code(error), "reading the metafile");
}

// A character device has no length that could tell whether it ever ends; only an empty one is read.
std::size_t LargestBlock(std::FILE* file) {
  struct stat status {};
  const bool isDevice = fstat(fileno(file), &status) == 0 && S_ISCHR(status.st_mode);
  return isDevice ? 1 : kLargestBlock;
}

}  // namespace

std::FILE* FileReader::setSource(const char* path) {
  file_.reset();
  const int descriptor = open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  file_.reset(fdopen(descriptor, "rb"));
  if (!file_) close(descriptor);
  return file_.get();
}

std::size_t FileReader::getBytes(unsigned char* destination, unsigned long count) const {
  return std::fread(destination, count, 1, file_.get());
}

std::vector<unsigned char> FileReader::readBlock() {
  if (!file_) Throw(std::errc::no_such_file_or_directory);
  std::vector<unsigned char> block(CountAttempts());
  rewind();
  const std::size_t read = std::fread(block.data(), 1, block.size(), file_.get());
  const bool changedOrFailed = read != block.size() - 1;
  if (changedOrFailed) Throw(std::errc::io_error);
  closeSource();
  return block;
}

// Every attempt counts, the one that meets the end included. A file that says how long it is need
// not be counted to be refused, and a stream that cannot be rewound could be counted for ever.
std::size_t FileReader::CountAttempts() const {
  if (std::fseek(file_.get(), 0, SEEK_END) != 0) Throw(std::errc::invalid_seek);
  if (getPosition() >= static_cast<long>(kLargestBlock)) Throw(std::errc::file_too_large);
  rewind();
  const std::size_t largest = LargestBlock(file_.get());
  std::array<unsigned char, 65536> bytes;
  std::size_t count = 0;
  while (!isEnd()) {
    count += std::fread(bytes.data(), 1, bytes.size(), file_.get());
    if (std::ferror(file_.get()) != 0) Throw(std::errc::io_error);
    if (count >= largest) Throw(std::errc::file_too_large);
  }
  return count + 1;
}

}  // namespace kelvane
