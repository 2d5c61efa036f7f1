// The header and every record, as they are read.

#include <cstdio>
#include <exception>

#include "classic/document/emf_file.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  [[maybe_unused]] static const auto* const silence = std::freopen("/dev/null", "w", stdout);
  kelvane::EMFFile metafile(data, static_cast<std::int32_t>(size));
  try {
    metafile.ParseEMFFile();
  } catch (int) {                    // not a metafile
  } catch (const std::exception&) {  // records that lead nowhere
  }
  return 0;
}
