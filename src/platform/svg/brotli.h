#pragma once

#include <brotli/encode.h>

#include "base/late_library.h"

namespace kelvane {

// Brotli, which only faces in a document need: it is loaded with the first of them.
inline constinit LateLibrary kBrotliEncoder("libbrotlienc.so.1");

KELVANE_LATE_FUNCTION(kBrotliEncoder, BrotliEncoderCompress)
KELVANE_LATE_FUNCTION(kBrotliEncoder, BrotliEncoderMaxCompressedSize)

}  // namespace kelvane
