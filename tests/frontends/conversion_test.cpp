#include "frontends/conversion.h"

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/files.h"
#include "support/library.h"
#include "support/metafile.h"
#include "support/playback.h"

namespace kelvane::test {
namespace {

constexpr int kThreads = 8;

/// A drawing with more in it the higher its number.
std::vector<unsigned char> Drawing(int number) {
  Metafile metafile;
  for (int i = 0; i < 50 * (number + 1); ++i) {
    metafile.Polygon({{i, number}, {i + 20, 7}, {3, i + 40}});
    metafile.Ellipse({i, i, i + 30, i + number + 10});
  }
  return metafile.Build();
}

/// Runs `work` for every number below kThreads, all at once.
void RunAtOnce(const std::function<void(int number)>& work) {
  std::vector<std::jthread> threads;
  for (int number = 0; number < kThreads; ++number)
    threads.emplace_back(work, number);
}

TEST(Conversion, MakesTheSameBytesTwiceInMemory) {
  EXPECT_EQ(ConvertInMemory(Drawing(1)).output, ConvertInMemory(Drawing(1)).output);
}

TEST(Conversion, WritesTheSameBytesTwice) {
  const TemporaryFolder folder;
  for (const char* name : {"a.emf", "b.emf"}) {
    WriteFile(folder / name, Drawing(1));
    ASSERT_EQ(ReadFromFile((folder / name).c_str()), 0);
  }
  EXPECT_EQ(ReadFile(folder / "a.pdf"), ReadFile(folder / "b.pdf"));
}

TEST(Conversion, MakesOtherBytesOfAnotherMetafile) {
  EXPECT_NE(ConvertInMemory(Drawing(1)).output, ConvertInMemory(Drawing(2)).output);
}

TEST(Conversion, MakesTheSameBytesOnManyThreadsAtOnce) {
  std::vector<std::string> made(kThreads);
  RunAtOnce([&](int number) {
    made[static_cast<std::size_t>(number)] = ConvertInMemory(Drawing(number)).output;
  });
  for (int number = 0; number < kThreads; ++number) {
    EXPECT_EQ(made[static_cast<std::size_t>(number)], ConvertInMemory(Drawing(number)).output);
  }
}

std::string WriteAndRead(const TemporaryFolder& folder, int number) {
  const std::string name = folder / std::to_string(number);
  WriteFile(name + ".emf", Drawing(number));
  ReadFromFile((name + ".emf").c_str());
  return ReadFile(name + ".pdf");
}

TEST(Conversion, WritesTheSameBytesOnManyThreadsAtOnce) {
  const TemporaryFolder together;
  const TemporaryFolder alone;
  RunAtOnce([&](int number) { WriteAndRead(together, number); });
  for (int number = 0; number < kThreads; ++number) {
    EXPECT_EQ(ReadFile(together / (std::to_string(number) + ".pdf")), WriteAndRead(alone, number));
  }
}

TEST(Conversion, WritesOneWholeDocumentWhenManyThreadsConvertTheSameFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", Drawing(3));
  RunAtOnce([&](int) { EXPECT_EQ(ReadFromFile((folder / "a.emf").c_str()), 0); });
  EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"a.emf", "a.pdf"}));
}

TEST(Conversion, ThrowsOneWhenThereIsNoHeader) {
  EXPECT_THAT([] { ConvertToPdf(Bytes().U32(EMR_POLYBEZIER).U8(0).Data()); },
              testing::Throws<int>(1));
}

}  // namespace
}  // namespace kelvane::test
