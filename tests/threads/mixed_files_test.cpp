// Files of all formats, on many threads at once: each page is the one that a thread alone makes.

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <kelvane/kelvane.h>

#include "support/containers.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

struct Job {
  std::string name;
  File file;
  std::string format;
};

File BytesOf(const std::filesystem::path& path) {
  const std::string bytes = ReadFile(path);
  return {bytes.begin(), bytes.end()};
}

/// Text, lines and a page: what a WMF file has that shares anything between conversions.
File AWindowsMetafile() {
  Bytes font = Bytes().I16(-20).Zeros(16);
  for (const char letter : std::string("Times New Roman"))
    font.U8(static_cast<unsigned char>(letter));
  return WindowsMetafile()
      .Placeable(0, 0, 1440, 720, 1440)
      .Record(0x020C, {720, 1440})
      .Record(0x02FB, font.U8(0))
      .Record(0x012D, {0})
      .Record(0x0521, Bytes().I16(4).U8('W').U8('M').U8('F').U8('!').I16(100).I16(100))
      .Record(0x041B, {300, 300, 200, 200})
      .Build();
}

void Add(std::vector<Job>& jobs, const std::string& name, const File& file) {
  for (const char* format : {"pdf", "svg", "png"})
    jobs.push_back({name, file, format});
}

/// The samples and every fourth scene, as EMF, compressed, and as a print job; a WMF file.
std::vector<Job> MixedJobs() {
  std::vector<std::filesystem::path> paths;
  for (const char* folder : {"samples", "tests/scenes"}) {
    for (const auto& entry : std::filesystem::directory_iterator(SourcePath(folder)))
      if (entry.path().extension() == ".emf") paths.push_back(entry.path());
  }
  std::ranges::sort(paths);
  std::vector<Job> jobs;
  for (std::size_t i = 0; i < paths.size(); i += 4)
    Add(jobs, paths[i].filename().string(), BytesOf(paths[i]));
  const File sample = BytesOf(SourcePath("samples/text.emf"));
  Add(jobs, "compressed", Gzipped(sample));
  Add(jobs, "a print job",
      PrintJob().Page(sample).Page(BytesOf(SourcePath("samples/chart.emf"))).Build());
  Add(jobs, "a Windows metafile", AWindowsMetafile());
  return jobs;
}

/// @return the document; what came of it in words when there is none.
std::string DocumentOf(const Job& job) {
  kelvane_options* const options = kelvane_options_new();
  kelvane_options_set(options, "format", job.format.c_str());
  kelvane_result* const result = kelvane_convert(job.file.data(), job.file.size(), options);
  std::size_t size = 0;
  const auto* const data = static_cast<const char*>(kelvane_result_data(result, &size));
  std::string document = data != nullptr ? std::string(data, size)
                                         : std::string("none: ") + kelvane_result_message(result);
  kelvane_result_free(result);
  kelvane_options_free(options);
  return document;
}

TEST(MixedFiles, GiveTheSameDocumentsOnEightThreadsAtOnce) {
  constexpr std::size_t kThreads = 8;
  const std::vector<Job> jobs = MixedJobs();
  ASSERT_GT(jobs.size(), 100U);
  std::vector<std::string> together(jobs.size());
  {
    // First of all, so that what a process looks up once is looked up by all of them.
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < kThreads; ++i) {
      threads.emplace_back([&] {
        for (std::size_t job = next++; job < jobs.size(); job = next++)
          together[job] = DocumentOf(jobs[job]);
      });
    }
  }
  for (std::size_t i = 0; i < jobs.size(); ++i) {
    EXPECT_FALSE(together[i].starts_with("none: ")) << jobs[i].name << ", " << together[i];
    EXPECT_TRUE(together[i] == DocumentOf(jobs[i])) << jobs[i].name << " to " << jobs[i].format;
  }
}

TEST(MixedFiles, GiveTheSameDocumentsWhereOneFileIsPlayedByEight) {
  constexpr std::size_t kThreads = 8;
  const Job job = {"text.emf", BytesOf(SourcePath("samples/text.emf")), "pdf"};
  std::vector<std::string> documents(kThreads);
  {
    std::vector<std::jthread> threads;
    for (std::string& document : documents)
      threads.emplace_back([&] { document = DocumentOf(job); });
  }
  for (const std::string& document : documents)
    EXPECT_TRUE(document == DocumentOf(job));
}

}  // namespace
}  // namespace kelvane::test
