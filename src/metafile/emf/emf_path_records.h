#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Paths ([MS-EMF] 2.3.10). EMR_BEGINPATH, EMR_ENDPATH, EMR_CLOSEFIGURE, EMR_FLATTENPATH,
// EMR_WIDENPATH and EMR_ABORTPATH have no fields.

/// EMR_FILLPATH, EMR_STROKEANDFILLPATH, EMR_STROKEPATH ([MS-EMF] 2.3.5.9, .38, .39).
struct PaintPathRecord {
  RectangleL bounds;  // device units, a hint
};
inline PaintPathRecord DecodePaintPath(ByteView& bytes) {
  return {bytes.Read<RectangleL>()};
}

/// EMR_SELECTCLIPPATH ([MS-EMF] 2.3.2.5).
struct SelectClipPathRecord {
  RegionMode mode{};
};
inline SelectClipPathRecord DecodeSelectClipPath(ByteView& bytes) {
  return {bytes.Read<RegionMode>()};
}

}  // namespace metafile
}  // namespace kelvane
