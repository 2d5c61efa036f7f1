// The whole conversion, in memory.

#include <cstdio>
#include <exception>

#include "frontends/conversion.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kelvane;
  [[maybe_unused]] static const auto* const silence = std::freopen("/dev/null", "w", stdout);
  const CFOwned<CFData> document(CFDataCreateMutable(kCFAllocatorDefault, 0));
  try {
    ConvertBuffer(data, size, document.get());
  } catch (int) {                    // not a metafile
  } catch (const std::exception&) {  // records that lead nowhere
  }
  return 0;
}
