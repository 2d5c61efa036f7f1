// The conversion that follows Windows, in memory: every record played onto a page.

#include <exception>

#include "frontends/picture_conversion.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  try {
    kelvane::ConvertPicture({data, size}, {});
  } catch (const std::exception&) {  // no document can be made of it
  }
  return 0;
}
