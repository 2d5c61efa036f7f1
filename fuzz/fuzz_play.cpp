// The conversion that follows Windows, in memory: every record played onto a page.

#include "playing.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  kelvane::fuzzing::Play({data, size});
  return 0;
}
