#include "platform/quartz/cg_data_consumer.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <random>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace kelvane {
namespace {

class DataConsumer final : public CGDataConsumer {
 public:
  explicit DataConsumer(CFMutableDataRef data)
      : data_(CFShare(data)), committedLength_(data->bytes.size()) {}

  void Write(std::span<const unsigned char> bytes) override {
    CFDataAppendBytes(data_.get(), bytes.data(), static_cast<CFIndex>(bytes.size()));
  }

  void Commit() override { committedLength_ = data_->bytes.size(); }

 private:
  ~DataConsumer() override {
    if (data_->bytes.size() > committedLength_) data_->bytes.resize(committedLength_);
  }

  CFOwned<CFData> data_;
  std::size_t committedLength_;
};

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

/// A file with a name of its own beside its final place. The name is new and is never followed when
/// somebody has planted a link there; what the file holds reaches the final name whole or not at
/// all.
class FileConsumer final : public CGDataConsumer {
 public:
  explicit FileConsumer(std::string path) : path_(std::move(path)) {}

  /// @return false, with errno set, when no file can be created beside the path.
  bool Create() {
    constexpr int kAttempts = 16;
    for (int i = 0; i < kAttempts; ++i) {
      temporaryPath_ = FolderOf(path_) + RandomName();
      const int descriptor =
          open(temporaryPath_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
      if (descriptor >= 0) {
        temporaryExists_ = true;
        file_ = fdopen(descriptor, "wb");
        if (file_ == nullptr) close(descriptor);
        return file_ != nullptr;
      }
      if (errno != EEXIST) return false;
    }
    return false;
  }

  void Write(std::span<const unsigned char> bytes) override {
    if (!bytes.empty() && std::fwrite(bytes.data(), bytes.size(), 1, file_) != 1) {
      ThrowErrno("writing the document");
    }
  }

  void Commit() override {
    std::FILE* const file = std::exchange(file_, nullptr);
    if (std::fclose(file) != 0) ThrowErrno("writing the document");
    if (std::rename(temporaryPath_.c_str(), path_.c_str()) != 0) ThrowErrno("naming the document");
    temporaryExists_ = false;
  }

 private:
  ~FileConsumer() override {
    if (file_ != nullptr) (void)std::fclose(file_);
    if (temporaryExists_) unlink(temporaryPath_.c_str());
  }

  std::string path_;
  std::string temporaryPath_;
  std::FILE* file_ = nullptr;
  bool temporaryExists_ = false;
};

}  // namespace

CGDataConsumerRef CGDataConsumerCreateWithCFData(CFMutableDataRef data) {
  return data != nullptr ? new DataConsumer(data) : nullptr;
}

CGDataConsumerRef CGDataConsumerCreateWithURL(CFURLRef url) {
  if (url == nullptr) return nullptr;
  CFOwned<FileConsumer> consumer(new FileConsumer(url->path));
  return consumer->Create() ? consumer.release() : nullptr;
}

void CGDataConsumerRelease(CGDataConsumerRef consumer) noexcept {
  CFRelease(consumer);
}

}  // namespace kelvane
