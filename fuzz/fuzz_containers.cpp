// Compressed metafiles and print jobs: the bytes as they are, and as the records of a job whose
// framing is right, drawn and printed.

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "playing.h"
#include "support/containers.h"

namespace {

using Container = std::span<const unsigned char>;

/// Each record is its type, a byte, how many sixteens of bytes it has, and these.
std::vector<unsigned char> JobOf(Container input) {
  kelvane::test::PrintJob job(u"fuzz");
  while (input.size() >= 2) {
    const std::size_t size = std::min(std::size_t{16} * input[1], input.size() - 2);
    const Container data = input.subspan(2, size);
    job.Record(input[0], {data.begin(), data.end()});
    input = input.subspan(2 + size);
  }
  return job.Build();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  kelvane::fuzzing::PlayAndPrint({data, size});
  const std::vector<unsigned char> job = JobOf({data, size});
  kelvane::fuzzing::PlayAndPrint(job);
  kelvane::fuzzing::PlayAndPrint(kelvane::test::Gzipped(job));
  return 0;
}
