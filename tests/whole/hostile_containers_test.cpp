// Containers that were made to do harm, through the whole tool.

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/containers.h"
#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/pdf.h"
#include "support/slowdown.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

constexpr const char* kTooLarge = "it expands to more than 64 times its size";
constexpr const char* kDamaged = "its compressed data are damaged";
constexpr const char* kNone = "it is no metafile";

File Zeros(std::size_t size) {
  return Gzipped(File(size));
}

/// What says that it is a gigabyte, or nothing.
File OfStoredSize(std::uint32_t size) {
  File packed = Gzipped(FileThatLacks(0));
  packed.resize(packed.size() - 4);
  return Bytes().Append(packed).U32(size).Data();
}

File Nested(int depth) {
  File file = FileThatLacks(0);
  for (int i = 0; i < depth; ++i)
    file = Gzipped(file);
  return file;
}

File Members(int count, const File& member) {
  Bytes file;
  const File packed = Gzipped(member);
  for (int i = 0; i < count; ++i)
    file.Append(packed);
  return file.Data();
}

File CutShort(File file, std::size_t by) {
  file.resize(file.size() - by);
  return file;
}

/// @param count  records of a size after a page.
File Job(int count, std::uint32_t type, std::uint32_t size) {
  PrintJob job;
  job.Page(FileThatLacks(0));
  for (int i = 0; i < count; ++i)
    job.RecordOfSize(type, size);
  return job.Build();
}

File JobOfPages(int count, const File& page) {
  PrintJob job;
  for (int i = 0; i < count; ++i)
    job.Page(page);
  return job.Build();
}

struct HostileContainer {
  std::string name;
  std::function<File()> make;
  int status = 2;      // of the tool
  std::string said{};  // in what it complains of, or reports
};

void PrintTo(const HostileContainer& row, std::ostream* out) {
  *out << row.name;
}

std::vector<HostileContainer> HostileContainers() {
  constexpr const char* kPastEnd = "a record claims more than the file has";
  return {
      {"ten_megabytes_of_zeros", [] { return Zeros(10'000'000); }, 2, kTooLarge},
      {"a_gigabyte_of_zeros_in_members", [] { return Members(100, File(10'000'000)); }, 2,
       kTooLarge},
      {"one_that_says_it_is_four_gigabytes", [] { return OfStoredSize(0xFFFFFFFF); }, 2, kDamaged},
      {"one_that_says_it_is_empty", [] { return OfStoredSize(0); }, 2, kDamaged},
      {"two_layers", [] { return Nested(2); }, 2, kNone},
      {"a_thousand_layers", [] { return Nested(1000); }, 2, kNone},
      {"a_hundred_thousand_empty_members", [] { return Members(100'000, {}); }, 2, "it is empty"},
      {"cut_in_the_trailer", [] { return CutShort(Nested(1), 1); }, 2, kDamaged},
      {"cut_in_the_middle", [] { return CutShort(Nested(1), 40); }, 2, kDamaged},
      {"only_the_magic_number",
       [] {
         return File{0x1F, 0x8B};
       },
       2, kDamaged},
      {"spool_records_of_no_size", [] { return Job(100'000, 5, 0); }, 0, ""},
      {"spool_records_of_no_known_kind", [] { return Job(100'000, 4711, 0); }, 0, "unknown kind"},
      {"a_spool_record_of_one_byte", [] { return Job(1, 12, 1); }, 0, kPastEnd},
      {"a_spool_record_of_four_gigabytes", [] { return Job(1, 12, 0xFFFFFFFF); }, 0, kPastEnd},
      {"a_spool_record_that_wraps_around", [] { return Job(1, 12, 0xFFFFFFF8); }, 0, kPastEnd},
      {"pages_without_bytes", [] { return Job(100'000, 12, 0); }, 0, "its page is no metafile"},
      {"only_pages_without_bytes", [] { return JobOfPages(100'000, {}); }, 2, "without a page"},
      {"thousands_of_pages_cut_short",
       [] { return JobOfPages(2000, CutShort(FileThatLacks(0), 20)); }, 0, "the records end"},
      {"a_print_job_within_a_print_job",
       [] { return JobOfPages(1, JobOfPages(1, FileThatLacks(0))); }, 2, "without a page"},
  };
}

class AHostileContainer : public KelvaneTool,
                          public testing::WithParamInterface<HostileContainer> {};

TEST_P(AHostileContainer, IsRefusedOrDrawnInTimeAndWords) {
  Write("a.emz", GetParam().make());
  const ToolResult result = Run({"--report=report", "a.emz"});
  EXPECT_EQ(result.status, GetParam().status) << result.errors;
  EXPECT_LT(result.processorSeconds, 2 * kSlowdown);
  const std::string said = result.errors + Read("report");
  EXPECT_NE(said.find(GetParam().said), std::string::npos) << said.substr(0, 2000);
  if (result.status == 0) {
    EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
  }
}

INSTANTIATE_TEST_SUITE_P(, AHostileContainer, testing::ValuesIn(HostileContainers()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
