#include "frontends/file_consumer.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <random>
#include <span>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace kelvane {
namespace {

[[noreturn]] void ThrowErrno(const char* operation) {
  throw std::system_error(errno, std::generic_category(), operation);
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

std::string RandomName() {
  std::random_device random;
  std::array<char, 40> name{};
  const int length =
      std::snprintf(name.data(), name.size(), ".kelvane-%08x%08x.tmp",
                    static_cast<unsigned>(random()), static_cast<unsigned>(random()));
  return {name.data(), static_cast<std::size_t>(length)};
}

/// @return the descriptor, or one above the standard streams in its place: where one of those is
///         closed, what is printed to it must not end up in the document. -1 for failure.
int AboveStandardStreams(int descriptor) {
  if (descriptor < 0 || descriptor > STDERR_FILENO) return descriptor;
  const int above = fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  close(descriptor);
  return above;
}

/// The link through which a file without a name can be given one.
std::array<char, 32> LinkTo(int descriptor) {
  std::array<char, 32> link{};
  (void)std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
  return link;
}

/// A file beside its final place, of no name or of one of its own until it is complete. The name is
/// new and is never followed when somebody has planted a link there; what the file holds reaches
/// the final name whole or not at all.
class FileConsumer final : public CGDataConsumer {
 public:
  explicit FileConsumer(std::string path) : path_(std::move(path)) {}

  /// @return false, with errno set, when no file can be created beside the path.
  bool Create() {
    int descriptor = AboveStandardStreams(OpenNameless());
    if (descriptor < 0) descriptor = AboveStandardStreams(OpenNamed());
    if (descriptor < 0) return false;
    file_ = fdopen(descriptor, "wb");
    if (file_ == nullptr) close(descriptor);
    return file_ != nullptr;
  }

  void Write(std::span<const unsigned char> bytes) override {
    if (!bytes.empty() && std::fwrite(bytes.data(), bytes.size(), 1, file_) != 1) {
      ThrowErrno("writing the document");
    }
  }

  void Commit() override {
    if (std::fflush(file_) != 0) ThrowErrno("writing the document");
    if (!hasName_ && !GiveName()) ThrowErrno("naming the document");
    std::FILE* const file = std::exchange(file_, nullptr);
    if (std::fclose(file) != 0) ThrowErrno("writing the document");
    if (name_ != path_ && std::rename(name_.c_str(), path_.c_str()) != 0) {
      ThrowErrno("naming the document");
    }
    hasName_ = false;
  }

 private:
  ~FileConsumer() override {
    if (file_ != nullptr) (void)std::fclose(file_);
    if (hasName_) unlink(name_.c_str());
  }

  /// A process that is ended leaves nothing of such a file. Not every file system has them.
  [[nodiscard]] int OpenNameless() const {
    const std::string folder = FolderOf(path_) + ".";
    const int descriptor = open(folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0666);
    if (descriptor < 0 || access(LinkTo(descriptor).data(), F_OK) == 0) return descriptor;
    close(descriptor);
    return -1;
  }

  int OpenNamed() {
    int descriptor = -1;
    hasName_ = TakeTemporaryName([&](const char* path) {
      descriptor = open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
      return descriptor >= 0;
    });
    return descriptor;
  }

  /// The final name where nothing is replaced, or else a temporary one.
  bool GiveName() {
    name_ = path_;
    hasName_ =
        LinkAs(name_.c_str()) || TakeTemporaryName([&](const char* path) { return LinkAs(path); });
    return hasName_;
  }

  /// Names a file that has no name. @return false, with errno set, when that cannot be done, which
  ///         is EEXIST when anything is there already.
  [[nodiscard]] bool LinkAs(const char* path) const {
    const auto link = LinkTo(fileno(file_));
    return linkat(AT_FDCWD, link.data(), AT_FDCWD, path, AT_SYMLINK_FOLLOW) == 0;
  }

  /// @param take  tries to make a file of the path, which fails with EEXIST when there is one.
  /// @return false, with errno set, when that cannot be done.
  template <class Take>
  bool TakeTemporaryName(const Take& take) {
    constexpr int kAttempts = 16;
    for (int i = 0; i < kAttempts; ++i) {
      name_ = FolderOf(path_) + RandomName();
      if (take(name_.c_str())) return true;
      if (errno != EEXIST) return false;
    }
    return false;
  }

  std::string path_;
  std::string name_;  // the one that the file has until it is committed
  std::FILE* file_ = nullptr;
  bool hasName_ = false;
};

}  // namespace

CGDataConsumerRef CGDataConsumerCreateWithURL(CFURLRef url) {
  if (url == nullptr) return nullptr;
  CFOwned<FileConsumer> consumer(new FileConsumer(url->path));
  return consumer->Create() ? consumer.release() : nullptr;
}

}  // namespace kelvane
