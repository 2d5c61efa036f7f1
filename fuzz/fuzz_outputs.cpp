// What fuzz_play does, onto pages of the other formats.

#include <exception>

#include "frontends/picture_conversion.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  kelvane::ConversionOptions options;
  options.size.width = 100;  // pixels of a PNG
  for (const char* const format : {"svg", "png"}) {
    options.format = format;
    try {
      kelvane::ConvertPicture({data, size}, options);
    } catch (const std::exception&) {  // no document can be made of it
    }
  }
  return 0;
}
