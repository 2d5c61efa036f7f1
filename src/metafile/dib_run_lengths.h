#pragma once

#include "metafile/dib.h"

namespace kelvane {
inline namespace metafile {

/// @param dib  run-length encoded ([MS-WMF] 3.1.6): codes that lead from the lowest row upwards.
///             Runs end with their row, and pixels with the codes, however many are missing.
/// @return the pixels of a part; those that no code set are 0.
IndexedPixels DecodeRunLengths(const Dib& dib, const PixelRectangle& part);

}  // namespace metafile
}  // namespace kelvane
