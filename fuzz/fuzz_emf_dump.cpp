// Every record of a metafile as text, and what can be said of it as a whole.

#include "printing.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  kelvane::fuzzing::Print({data, size});
  return 0;
}
