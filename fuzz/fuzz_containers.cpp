// Compressed metafiles and print jobs: the bytes as they are, and as the records of a job whose
// framing is right, drawn and printed.

#include <algorithm>
#include <cstddef>
#include <exception>
#include <ostream>
#include <span>
#include <streambuf>
#include <vector>

#include "frontends/inspection/dump.h"
#include "frontends/inspection/info.h"
#include "frontends/picture_conversion.h"
#include "support/containers.h"

namespace {

using Container = std::span<const unsigned char>;

/// Takes everything, keeps nothing.
class Unread final : public std::streambuf {
  std::streamsize xsputn(const char* /*text*/, std::streamsize size) override { return size; }
};

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

void DrawAndPrint(Container file) {
  try {
    kelvane::ConvertPicture(file, {});
  } catch (const std::exception&) {  // no document can be made of it
  }
  Unread unread;
  std::ostream out(&unread);
  kelvane::Dump(file, out);
  kelvane::InfoOf(file, "fuzz");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  DrawAndPrint({data, size});
  const std::vector<unsigned char> job = JobOf({data, size});
  DrawAndPrint(job);
  DrawAndPrint(kelvane::test::Gzipped(job));
  return 0;
}
