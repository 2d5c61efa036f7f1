#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "hostile/hostile_files.h"
#include "limits/allocations.h"
#include "limits/input_families.h"
#include "support/files.h"
#include "support/library.h"
#include "support/metafile.h"
#include "support/paths.h"

namespace kelvane::test {

void PrintTo(const InputFamily& family, std::ostream* out) {
  *out << family.name;
}

namespace {

using File = std::vector<unsigned char>;

constexpr std::size_t kMebibyte = 1 << 20;

/// What a conversion may have in use at once, above what was in use before it.
struct Limit {
  std::size_t timesInput;
  std::size_t constant;

  [[nodiscard]] std::size_t For(std::size_t inputSize) const {
    return timesInput * inputSize + constant;
  }
};

constexpr Limit kAnyInput = {64, 96 * kMebibyte};
constexpr Limit kPlainInput = {12, 48 * kMebibyte};  // well-formed, without bitmaps
constexpr Limit kPlayedInput = kPlainInput;          // as Windows shows it, whatever it is
constexpr std::size_t kPlayedGrowth = 24;  // nested clips take 22 in pixels, else 17 at most

std::size_t PeakInMemory(const File& file) {
  const std::size_t before = LiveBytes();
  StartPeak();
  ConvertInMemory(file);
  return PeakBytes() - before;
}

std::size_t PeakFromFile(const File& file) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", file);
  const std::string path = folder / "a.emf";
  const std::size_t before = LiveBytes();
  StartPeak();
  ReadFromFile(path.c_str());
  return PeakBytes() - before;
}

struct PlayedPeak {
  std::size_t bytes;
  std::size_t document;  // its size
};

PlayedPeak PeakAsWindowsShowsIt(const File& file, const char* format) {
  const std::size_t before = LiveBytes();
  StartPeak();
  kelvane_options* options = kelvane_options_new();
  EXPECT_EQ(kelvane_options_set(options, "format", format), KELVANE_DONE);
  if (std::string_view(format) == "png") {  // a small one: what takes time is its pixels
    EXPECT_EQ(kelvane_options_set(options, "width", "300"), KELVANE_DONE);
  }
  kelvane_result* result = kelvane_convert(file.data(), file.size(), options);
  EXPECT_EQ(kelvane_result_status(result), KELVANE_DONE);
  std::size_t document = 0;
  kelvane_result_data(result, &document);
  kelvane_result_free(result);
  kelvane_options_free(options);
  return {PeakBytes() - before, document};
}

/// Converts some text, so that the fonts are read and stay read.
void ReadFonts() {
  Metafile metafile;
  metafile.CreateFont(1, {}).SelectObject(1).TextOut({1, 2}, u"a\u4E2D");
  ConvertInMemory(metafile.Build());
}

// The smallest inputs show the constant, the growth of an input what each of its bytes takes.

class MemoryOfAFamily : public testing::TestWithParam<InputFamily> {
 protected:
  static constexpr std::size_t kSmall = kMebibyte / 2;
  static constexpr std::size_t kLarge = 2 * kMebibyte;

  void SetUp() override { ReadFonts(); }

  static Limit Allowed() { return GetParam().isPlain ? kPlainInput : kAnyInput; }

  /// @param growth  by a byte of the input.
  template <class PeakOf>
  static void ExpectWithin(const Limit& limit, std::size_t growth, const PeakOf& peakOf) {
    const File small = GetParam().make(kSmall);
    const File large = GetParam().make(kLarge);
    const std::size_t smallPeak = peakOf(small);
    const std::size_t largePeak = peakOf(large);
    RecordProperty("peak", std::to_string(largePeak));
    EXPECT_LT(smallPeak, limit.For(small.size()));
    EXPECT_LT(largePeak, limit.For(large.size()));
    EXPECT_LT(largePeak, smallPeak + growth * (large.size() - small.size()));
  }
};

TEST_P(MemoryOfAFamily, IsWithinLimitsInMemory) {
  ExpectWithin(Allowed(), Allowed().timesInput, PeakInMemory);
}

TEST_P(MemoryOfAFamily, IsWithinLimitsFromAFile) {
  ExpectWithin(Allowed(), Allowed().timesInput, PeakFromFile);
}

TEST_P(MemoryOfAFamily, IsWithinLimitsAsPdf) {
  const bool isOfPatterns = GetParam().hasNewPatterns;
  ExpectWithin(isOfPatterns ? kAnyInput : kPlayedInput,
               isOfPatterns ? kAnyInput.timesInput : kPlayedGrowth,
               [](const File& file) { return PeakAsWindowsShowsIt(file, "pdf").bytes; });
}

// The text of a document is there twice, as it is put together and as it is given.
TEST_P(MemoryOfAFamily, IsWithinLimitsAsSvg) {
  ExpectWithin(kPlayedInput, kPlayedGrowth, [](const File& file) {
    const PlayedPeak peak = PeakAsWindowsShowsIt(file, "svg");
    return peak.bytes - std::min(peak.bytes, 2 * peak.document);
  });
}

TEST_P(MemoryOfAFamily, IsWithinLimitsAsPng) {
  ExpectWithin(kPlayedInput, kPlayedGrowth,
               [](const File& file) { return PeakAsWindowsShowsIt(file, "png").bytes; });
}

INSTANTIATE_TEST_SUITE_P(, MemoryOfAFamily, testing::ValuesIn(InputFamilies()),
                         [](const auto& row) { return row.param.name; });

// Files.

std::vector<std::filesystem::path> MetafilesIn(const char* folder) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(SourcePath(folder))) {
    if (entry.path().extension() == ".emf") paths.push_back(entry.path());
  }
  return paths;
}

void ExpectWithin(const Limit& limit, const char* folder) {
  const auto paths = MetafilesIn(folder);
  ASSERT_FALSE(paths.empty());
  for (const auto& path : paths) {
    const std::string text = ReadFile(path);
    const File file(text.begin(), text.end());
    EXPECT_LT(PeakInMemory(file), limit.For(file.size())) << path;
    EXPECT_LT(PeakFromFile(file), limit.For(file.size())) << path;
  }
}

TEST(MemoryOfAFile, IsWithinLimitsForEveryFindOfOld) {
  ExpectWithin(kAnyInput, "tests/regression");
}

TEST(MemoryOfAFile, IsWithinLimitsForEveryHostileFile) {
  for (const HostileFile& file : HostileFiles()) {
    EXPECT_LT(PeakInMemory(file.bytes), kAnyInput.For(file.bytes.size())) << file.name;
    EXPECT_LT(PeakFromFile(file.bytes), kAnyInput.For(file.bytes.size())) << file.name;
  }
}

// With what the fonts take, which are read for the first of them that has text.
TEST(MemoryOfAFile, IsWithinLimitsForEverySample) {
  ExpectWithin(kPlainInput, "samples");
}

TEST(Memory, IsGivenBack) {
  ReadFonts();
  for (const InputFamily& family : InputFamilies()) {
    const File file = family.make(30000);
    ConvertInMemory(file);  // what is kept for the next time, of fonts and characters
    const std::size_t before = LiveBytes();
    ConvertInMemory(file);
    EXPECT_EQ(LiveBytes(), before) << family.name;
  }
}

}  // namespace
}  // namespace kelvane::test
