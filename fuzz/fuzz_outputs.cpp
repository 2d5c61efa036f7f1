// What fuzz_play does, onto pages of the other formats.

#include "playing.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  kelvane::ConversionOptions options;
  options.size.width = 100;  // pixels of a PNG
  for (const char* const format : {"svg", "png"}) {
    options.format = format;
    kelvane::fuzzing::Play({data, size}, options);
  }
  return 0;
}
