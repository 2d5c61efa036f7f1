#include "frontends/file_consumer.h"

#include <csignal>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "support/files.h"

namespace kelvane {
namespace {

using test::ReadFile;
using test::TemporaryFolder;
using test::WriteFile;

void Write(CGDataConsumerRef consumer, std::string_view text) {
  consumer->Write({reinterpret_cast<const unsigned char*>(text.data()), text.size()});
}

CFOwned<CGDataConsumer> ConsumerAt(const std::string& path) {
  const CFOwned<const CFString> string(
      CFStringCreateWithCString(kCFAllocatorDefault, path.c_str(), kCFStringEncodingMacRoman));
  const CFOwned<const CFURL> url(CFURLCreateWithFileSystemPath(kCFAllocatorDefault, string.get(),
                                                               kCFURLPOSIXPathStyle, false));
  return CFOwned<CGDataConsumer>(CGDataConsumerCreateWithURL(url.get()));
}

std::ptrdiff_t EntriesIn(const TemporaryFolder& folder) {
  const std::filesystem::directory_iterator entries(folder.Path());
  return std::distance(begin(entries), end(entries));
}

TEST(FileConsumer, IsNullForANullURL) {
  EXPECT_EQ(CGDataConsumerCreateWithURL(nullptr), nullptr);
}

TEST(FileConsumer, IsNullWhereNoFileCanBeCreated) {
  const TemporaryFolder folder;
  EXPECT_EQ(ConsumerAt(folder / "missing/a.pdf"), nullptr);
}

TEST(FileConsumer, WritesTheFileWhenCommitted) {
  const TemporaryFolder folder;
  const auto consumer = ConsumerAt(folder / "a.pdf");
  Write(consumer.get(), "one ");
  Write(consumer.get(), "");
  Write(consumer.get(), "two");
  consumer->Commit();
  EXPECT_EQ(ReadFile(folder / "a.pdf"), "one two");
}

TEST(FileConsumer, ShowsNoFileBeforeItIsCommitted) {
  const TemporaryFolder folder;
  const auto consumer = ConsumerAt(folder / "a.pdf");
  Write(consumer.get(), "text");
  EXPECT_FALSE(std::filesystem::exists(folder / "a.pdf"));
}

TEST(FileConsumer, LeavesNothingBehindWhenNotCommitted) {
  const TemporaryFolder folder;
  {
    const auto consumer = ConsumerAt(folder / "a.pdf");
    Write(consumer.get(), "text");
  }
  EXPECT_EQ(EntriesIn(folder), 0);
}

TEST(FileConsumer, LeavesOnlyTheFileWhenCommitted) {
  const TemporaryFolder folder;
  ConsumerAt(folder / "a.pdf")->Commit();
  EXPECT_EQ(EntriesIn(folder), 1);
}

TEST(FileConsumer, KeepsAnExistingFileUntilItIsCommitted) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.pdf", "old");
  {
    const auto consumer = ConsumerAt(folder / "a.pdf");
    Write(consumer.get(), "new");
  }
  EXPECT_EQ(ReadFile(folder / "a.pdf"), "old");
}

TEST(FileConsumer, ReplacesAnExistingFileWhenCommitted) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.pdf", "old and longer");
  const auto consumer = ConsumerAt(folder / "a.pdf");
  Write(consumer.get(), "new");
  consumer->Commit();
  EXPECT_EQ(ReadFile(folder / "a.pdf"), "new");
}

TEST(FileConsumer, ThrowsAndLeavesNothingWhenItsPlaceIsAFolder) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "a.pdf");
  {
    const auto consumer = ConsumerAt(folder / "a.pdf");
    Write(consumer.get(), "text");
    EXPECT_THROW(consumer->Commit(), std::system_error);
  }
  EXPECT_EQ(EntriesIn(folder), 1);
}

/// No file of this process may grow past `size` bytes while this lives: a disk that is full.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {size, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    (void)std::signal(SIGXFSZ, handler_);
  }

 private:
  void (*handler_)(int);
  rlimit before_{};
};

TEST(FileConsumer, ThrowsAndKeepsTheExistingFileWhenTheDiskIsFull) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.pdf", "old");
  {
    const auto consumer = ConsumerAt(folder / "a.pdf");
    const FileSizeLimit limit(1000);
    EXPECT_THROW(Write(consumer.get(), std::string(1 << 20, 'x')), std::system_error);
  }
  EXPECT_EQ(EntriesIn(folder), 1);
  EXPECT_EQ(ReadFile(folder / "a.pdf"), "old");
}

TEST(FileConsumer, ThrowsWhenTheLastBytesFindNoRoom) {
  const TemporaryFolder folder;
  {
    const auto consumer = ConsumerAt(folder / "a.pdf");
    Write(consumer.get(), "held back in memory");
    const FileSizeLimit limit(5);
    EXPECT_THROW(consumer->Commit(), std::system_error);
  }
  EXPECT_EQ(EntriesIn(folder), 0);
}

TEST(FileConsumer, ReplacesALinkInsteadOfFollowingIt) {
  const TemporaryFolder folder;
  WriteFile(folder / "precious", "kept");
  std::filesystem::create_symlink(folder / "precious", folder / "a.pdf");
  const auto consumer = ConsumerAt(folder / "a.pdf");
  Write(consumer.get(), "new");
  consumer->Commit();
  EXPECT_EQ(ReadFile(folder / "precious"), "kept");
  EXPECT_FALSE(std::filesystem::is_symlink(folder / "a.pdf"));
  EXPECT_EQ(ReadFile(folder / "a.pdf"), "new");
}

TEST(FileConsumer, KeepsTwoFilesOfOneNameApartUntilTheyAreCommitted) {
  const TemporaryFolder folder;
  const auto first = ConsumerAt(folder / "a.pdf");
  const auto second = ConsumerAt(folder / "a.pdf");
  Write(first.get(), "first");
  Write(second.get(), "second");
  first->Commit();
  EXPECT_EQ(ReadFile(folder / "a.pdf"), "first");
  second->Commit();
  EXPECT_EQ(ReadFile(folder / "a.pdf"), "second");
  EXPECT_EQ(EntriesIn(folder), 1);
}

TEST(FileConsumer, WritesBesideAPathWithoutAFolder) {
  const TemporaryFolder folder;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  const auto consumer = ConsumerAt("a.pdf");
  Write(consumer.get(), "text");
  consumer->Commit();
  std::filesystem::current_path(before);
  EXPECT_EQ(ReadFile(folder / "a.pdf"), "text");
}

TEST(FileConsumer, TakesAnyBytesForAName) {
  const TemporaryFolder folder;
  ConsumerAt(folder / "caf\xC3\xA9 \xFF.pdf")->Commit();
  EXPECT_TRUE(std::filesystem::exists(folder / "caf\xC3\xA9 \xFF.pdf"));
}

TEST(FileConsumer, GivesTheFileTheRightsOfANewOne) {
  const TemporaryFolder folder;
  const mode_t mask = umask(027);
  ConsumerAt(folder / "a.pdf")->Commit();
  umask(mask);
  struct stat status {};
  ASSERT_EQ(stat((folder / "a.pdf").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

}  // namespace
}  // namespace kelvane
