#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "limits/allocations.h"
#include "support/files.h"
#include "support/library.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;
using Names = std::vector<std::string>;

Metafile Picture() {
  Metafile metafile;
  metafile.CreatePen(1, 3, Rgb(255, 0, 0)).SelectObject(1).Polygon({{1, 2}, {30, 4}, {5, 60}});
  metafile.SaveDC().BeginPath().Ellipse({5, 5, 50, 60}).EndPath().SelectClipPath(kRegionAnd);
  metafile.StretchDibits({0, 0, 50, 50}, Bytes().BitmapHeader({.width = 2, .height = 2}).Zeros(16));
  return metafile.RestoreDC();
}

Metafile PictureWithText() {
  return Picture().CreateFont(2, {}).SelectObject(2).TextOut({10, 20}, u"Text \u4E2D");
}

/// Converts with one request for memory failing, each request in turn in a conversion of its own.
class AllocationFailure : public testing::Test {
 protected:
  /// How a conversion ended, and whether it came so far that the request failed.
  struct Ending {
    int status;
    bool hasFailed;
  };

  void Use(const Metafile& metafile) {
    picture_ = metafile.Build();
    inMemory_ = ConvertInMemory(picture_).output;  // fonts and characters stay known
    WriteFile(folder_ / "a.emf", picture_);
    ASSERT_EQ(ReadFromFile(path_.c_str()), 0);
    inFile_ = ReadFile(folder_ / "a.pdf");
    ASSERT_FALSE(inMemory_.empty());
    WriteFile(folder_ / "a.pdf", "older");
  }

  /// One conversion, the request after `count` others failing.
  template <class Convert>
  Ending Fail(Request kind, std::uint64_t count, const Convert& convert) {
    const FailingRequest failing(kind, count);
    const int status = convert();
    return {status, failing.HasFailed()};
  }

  Ending FailInMemory(Request kind, std::uint64_t count) {
    const DataObject data;
    const Ending ending =
        Fail(kind, count, [&] { return KELVANE(picture_.data(), picture_.size(), data.Get()); });
    EXPECT_EQ(data.Text(), ending.status == 0 ? inMemory_ : "");
    return ending;
  }

  Ending FailFromFile(Request kind, std::uint64_t count) {
    const Ending ending = Fail(kind, count, [&] { return ReadFromFile(path_.c_str()); });
    ExpectWholeFiles(ending.status == 0);
    return ending;
  }

  /// @param isNew  whether the document is the new one, rather than the one before.
  void ExpectWholeFiles(bool isNew) {
    EXPECT_EQ(ReadFile(folder_ / "a.pdf"), isNew ? inFile_ : "older");
    EXPECT_EQ(NamesIn(folder_), (Names{"a.emf", "a.pdf"}));
    WriteFile(folder_ / "a.pdf", "older");
  }

  /// Converts until no request is left to fail.
  template <class Convert>
  void Walk(const Convert& convert) {
    Ending ending = {-1, true};
    std::uint64_t count = 0;
    for (; ending.hasFailed && !HasFailure(); ++count) {
      SCOPED_TRACE("request " + std::to_string(count));
      ending = convert(count);
      EXPECT_TRUE(ending.status == 0 || (ending.status == -1 && ending.hasFailed));
    }
    RecordProperty("requests", std::to_string(count));
    EXPECT_GT(count, 5U);
  }

  /// Converts a second time when memory is kept: what is set up once for good is no loss.
  template <class Convert>
  void WalkLosingNothing(const Convert& convert) {
    Walk([&](std::uint64_t count) {
      std::size_t before = LiveBytes();
      Ending ending = convert(count);
      if (LiveBytes() > before) {
        before = LiveBytes();
        ending = convert(count);
        EXPECT_LE(LiveBytes(), before);
      }
      return ending;
    });
  }

  File picture_;
  std::string inMemory_;
  std::string inFile_;
  const TemporaryFolder folder_;
  const std::string path_ = folder_ / "a.emf";
};

TEST_F(AllocationFailure, OfOurOwnGivesTheWholeDocumentOrNoneAndLosesNothingInMemory) {
  Use(PictureWithText());
  WalkLosingNothing([this](std::uint64_t count) { return FailInMemory(Request::kOwnNew, count); });
}

TEST_F(AllocationFailure, OfOurOwnGivesTheWholeDocumentOrNoneAndLosesNothingFromAFile) {
  Use(PictureWithText());
  WalkLosingNothing([this](std::uint64_t count) { return FailFromFile(Request::kOwnNew, count); });
}

struct ResultFreer {
  void operator()(kelvane_options* options) const { kelvane_options_free(options); }
  void operator()(kelvane_result* result) const { kelvane_result_free(result); }
};

/// Converts as the tool kelvane does. @return the document; empty when there is none.
std::string DocumentOf(const File& picture, const char* format) {
  const std::unique_ptr<kelvane_options, ResultFreer> options(kelvane_options_new());
  if (!options || kelvane_options_set(options.get(), "format", format) != KELVANE_DONE) return {};
  const std::unique_ptr<kelvane_result, ResultFreer> result(
      kelvane_convert(picture.data(), picture.size(), options.get()));
  if (!result) return {};
  std::size_t length = 0;
  const auto* const data = static_cast<const char*>(kelvane_result_data(result.get(), &length));
  EXPECT_EQ(kelvane_result_status(result.get()) == KELVANE_DONE, data != nullptr);
  return data != nullptr ? std::string(data, length) : std::string();
}

class AllocationFailureAsWindowsShowsIt : public AllocationFailure,
                                          public testing::WithParamInterface<const char*> {
 protected:
  void UsePicture(const Metafile& metafile) {
    Use(metafile);
    whole_ = DocumentOf(picture_, GetParam());
    ASSERT_NE(whole_, "");
  }

  Ending FailAsWindowsShowsIt(Request kind, std::uint64_t count) {
    bool isWhole = false;
    const Ending ending = Fail(kind, count, [&] {
      const std::string document = DocumentOf(picture_, GetParam());
      isWhole = document == whole_;
      return document.empty() ? -1 : 0;
    });
    EXPECT_EQ(isWhole, ending.status == 0);
    return ending;
  }

 private:
  std::string whole_;
};

TEST_P(AllocationFailureAsWindowsShowsIt, OfOurOwnGivesTheWholeDocumentOrNoneAndLosesNothing) {
  UsePicture(PictureWithText());
  WalkLosingNothing(
      [this](std::uint64_t count) { return FailAsWindowsShowsIt(Request::kOwnNew, count); });
}

INSTANTIATE_TEST_SUITE_P(, AllocationFailureAsWindowsShowsIt, testing::Values("pdf", "svg", "png"),
                         [](const auto& row) { return std::string(row.param); });

// The font libraries do not survive it everywhere, so without text; and others lose a little.
TEST_F(AllocationFailure, OfMallocGivesTheWholeDocumentOrNone) {
  Use(Picture());
  Walk([this](std::uint64_t count) { return FailInMemory(Request::kMalloc, count); });
  Walk([this](std::uint64_t count) { return FailFromFile(Request::kMalloc, count); });
}

/// What came of a conversion in a process of its own.
enum class Fate : std::uint8_t { kConverted, kConvertedWithoutFailure, kFailed, kAborted, kOther };

Fate FateOfStatus(int status) {
  if (WIFSIGNALED(status)) return WTERMSIG(status) == SIGABRT ? Fate::kAborted : Fate::kOther;
  return WIFEXITED(status) ? static_cast<Fate>(WEXITSTATUS(status)) : Fate::kOther;
}

Fate FailInAnotherProcess(const char* path, std::uint64_t count) {
  const pid_t child = fork();
  if (child == 0) {
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    (void)std::freopen("/dev/null", "w", stderr);
    const FailingRequest failing(Request::kNew, count);
    const int status = ReadFromFile(path);
    const Fate converted = failing.HasFailed() ? Fate::kConverted : Fate::kConvertedWithoutFailure;
    _exit(static_cast<int>(status == 0 ? converted : Fate::kFailed));
  }
  int status = 0;
  return waitpid(child, &status, 0) == child ? FateOfStatus(status) : Fate::kOther;
}

// The PDF library has a destructor that cannot fail and yet needs memory, which ends the process.
// Even then no file is left half-done.
TEST_F(AllocationFailure, OfAnybodyLeavesWholeFilesAloneWhateverBecomesOfTheProcess) {
  constexpr std::uint64_t kStride = 11;
  Use(PictureWithText());
  int failed = 0;
  int aborted = 0;
  Fate fate = Fate::kFailed;
  for (std::uint64_t count = 0; fate != Fate::kConvertedWithoutFailure; count += kStride) {
    SCOPED_TRACE("request " + std::to_string(count));
    fate = FailInAnotherProcess(path_.c_str(), count);
    ASSERT_NE(fate, Fate::kOther);
    failed += fate == Fate::kFailed ? 1 : 0;
    aborted += fate == Fate::kAborted ? 1 : 0;
    const std::string file = ReadFile(folder_ / "a.pdf");
    if (fate == Fate::kFailed) {
      EXPECT_EQ(file, "older");
    } else {
      EXPECT_TRUE(file == inFile_ || (fate == Fate::kAborted && file == "older"));
    }
    WriteFile(folder_ / "a.pdf", "older");
  }
  RecordProperty("failed", failed);
  RecordProperty("aborted", aborted);
  EXPECT_LT(aborted, failed / 20);
}

}  // namespace
}  // namespace kelvane::test
