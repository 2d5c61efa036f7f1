// Every record of a metafile as text, and what can be said of it as a whole.

#include <ostream>
#include <streambuf>

#include "frontends/inspection/dump.h"
#include "frontends/inspection/info.h"

namespace {

/// Takes everything, keeps nothing.
class Nowhere final : public std::streambuf {
  std::streamsize xsputn(const char* /*text*/, std::streamsize size) override { return size; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  Nowhere nowhere;
  std::ostream out(&nowhere);
  kelvane::Dump({data, size}, out);
  kelvane::InfoOf({data, size}, "fuzz");
  return 0;
}
