// What happens around the tool while it converts: signals, full disks, streams that are closed.

#include <chrono>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "support/converter.h"
#include "support/files.h"
#include "support/metafile.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using Names = std::vector<std::string>;

/// Bytes that do not deflate.
Bytes Noise(std::size_t count) {
  Bytes noise;
  std::uint32_t state = 1;
  for (std::size_t i = 0; i < count; ++i) {
    state = state * 1664525 + 1013904223;
    noise.U8(state >> 24);
  }
  return noise;
}

/// A picture whose document is a little larger than `side` times `side` times three bytes.
std::vector<unsigned char> NoisePicture(std::int32_t side) {
  Bytes bitmap;
  bitmap.BitmapHeader({.width = side, .height = side});
  bitmap.Append(Noise(static_cast<std::size_t>(side) * static_cast<std::size_t>(side) * 3).Data());
  return Metafile().StretchDibits({0, 0, 90, 90}, bitmap).Build();
}

// Signals.

/// The signal, and after how much of the time that the conversion takes, in percent.
class ConverterInterrupted : public testing::TestWithParam<std::tuple<const char*, int>> {
 protected:
  void SetUp() override {
    WriteFile(folder_ / "a.emf", NoisePicture(1024));
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(RunConverter({folder_ / "a.emf"}).status, 0);
    seconds_ = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    document_ = ReadFile(folder_ / "a.pdf");
  }

  /// Converts and sends the signal after that part of the time that it took before.
  void Interrupt() {
    const auto [signal, percent] = GetParam();
    const std::string seconds = std::to_string(seconds_ * percent / 100);
    test::Run({"timeout", "-s", signal, seconds, test::ConverterPath(), folder_ / "a.emf"});
  }

  const TemporaryFolder folder_;
  std::string document_;
  double seconds_ = 0;
};

TEST_P(ConverterInterrupted, LeavesTheWholeDocumentOrNone) {
  std::filesystem::remove(folder_ / "a.pdf");
  Interrupt();
  if (NamesIn(folder_) == Names{"a.emf"}) return;
  EXPECT_EQ(NamesIn(folder_), (Names{"a.emf", "a.pdf"}));
  EXPECT_TRUE(ReadFile(folder_ / "a.pdf") == document_);
}

TEST_P(ConverterInterrupted, LeavesTheOlderDocumentOrTheNewOne) {
  WriteFile(folder_ / "a.pdf", "older");
  Interrupt();
  const std::string left = ReadFile(folder_ / "a.pdf");
  EXPECT_TRUE(left == "older" || left == document_);
  // There is a moment between naming the new document and putting it in the older one's place.
  const Names names = NamesIn(folder_);
  if (names == Names{"a.emf", "a.pdf"}) return;
  ASSERT_EQ(names.size(), 3U);
  EXPECT_EQ(names.front().rfind(".kelvane-", 0), 0U);
  EXPECT_TRUE(ReadFile(folder_ / names.front()) == document_);
}

INSTANTIATE_TEST_SUITE_P(, ConverterInterrupted,
                         testing::Combine(testing::Values("INT", "TERM", "KILL"),
                                          testing::Values(30, 70, 85, 95)),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param)) + "After" +
                                  std::to_string(std::get<1>(row.param)) + "Percent";
                         });

// Disks. A small one is mounted over the folder where only the commands see it.

class ConverterOnASmallDisk : public testing::Test {
 protected:
  void SetUp() override {
    if (OnADisk("64k", "true").status != 0) GTEST_SKIP() << "no disk can be mounted here";
    WriteFile(folder_ / "a.emf", NoisePicture(100));  // 30 kB
  }

  /// Runs commands of a shell in a folder on a disk of so many bytes. The folder below it, as it is
  /// without the disk, is the first argument, the tool the second.
  ProcessResult OnADisk(const std::string& size, const std::string& commands) {
    std::filesystem::create_directory(disk_.Path() / "disk");
    return test::Run({"timeout", "10", "unshare", "-m", "sh", "-c",
                      "mount -t tmpfs -o size=" + size + R"( none "$0" && cd "$0" && )" + commands,
                      disk_ / "disk", folder_.Path().string(), test::ConverterPath()});
  }

  const TemporaryFolder folder_;
  const TemporaryFolder disk_;
};

constexpr const char* kConvertAndShow =
    R"(cp "$1"/a.emf . && printf older >a.pdf && { "$2" a.emf; echo " $?"; ls -A; head -c 5 a.pdf; })";

TEST_F(ConverterOnASmallDisk, KeepsTheOlderDocumentWhenTheNewOneDoesNotFit) {
  EXPECT_EQ(OnADisk("64k", kConvertAndShow).output,
            std::string(kFailure) + " 255\na.emf\na.pdf\nolder");
}

TEST_F(ConverterOnASmallDisk, WritesADocumentThatFits) {
  EXPECT_EQ(OnADisk("96k", kConvertAndShow).output,
            std::string(kSuccess) + " 0\na.emf\na.pdf\n%PDF-");
}

// Where there is no way to name a file that has none, it has a name from the start.
TEST_F(ConverterOnASmallDisk, WritesUnderATemporaryNameWhereItMust) {
#ifdef KELVANE_SANITIZED
  GTEST_SKIP() << "the address sanitizer does not run without /proc";
#endif
  const std::string withoutProcesses = "mount -t tmpfs none /proc && ";
  EXPECT_EQ(OnADisk("96k", withoutProcesses + kConvertAndShow).output,
            std::string(kSuccess) + " 0\na.emf\na.pdf\n%PDF-");
  EXPECT_EQ(OnADisk("64k", withoutProcesses + kConvertAndShow).output,
            std::string(kFailure) + " 255\na.emf\na.pdf\nolder");
}

// Streams.

struct Streams {
  const char* name;
  const char* redirection;
};

class ConverterStreams : public testing::TestWithParam<Streams> {};

TEST_P(ConverterStreams, LeaveStatusAndDocumentAlone) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", NoisePicture(50));
  ASSERT_EQ(RunConverter({folder / "a.emf"}).status, 0);
  const std::string document = ReadFile(folder / "a.pdf");
  std::filesystem::remove(folder / "a.pdf");
  const std::string streams = std::string("exec ") + GetParam().redirection;

  EXPECT_EQ(RunConverterAfter(streams, folder / "a.emf").status, 0);
  EXPECT_TRUE(ReadFile(folder / "a.pdf") == document);
  WriteFile(folder / "b.emf", "no metafile");
  EXPECT_EQ(RunConverterAfter(streams, folder / "b.emf").status, kFailed);
  EXPECT_EQ(NamesIn(folder), (Names{"a.emf", "a.pdf", "b.emf"}));
}

INSTANTIATE_TEST_SUITE_P(, ConverterStreams,
                         testing::Values(Streams{"OutputClosed", ">&-"},
                                         Streams{"InputAndOutputClosed", "<&- >&-"},
                                         Streams{"AllClosed", "<&- >&- 2>&-"},
                                         Streams{"OutputFull", ">/dev/full"}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
