#pragma once

#include <cstdint>
#include <optional>

#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

/// EmfPlusImageAttributes ([MS-EMFPLUS] 2.2.1.5): what lies beyond the edges of an image.
struct EmfPlusImageAttributes {
  EmfPlusWrapMode wrap = EmfPlusWrapMode::kClamp;
  Argb clampColor;  // of kClamp

  friend bool operator==(const EmfPlusImageAttributes&, const EmfPlusImageAttributes&) = default;
};

/// @param bytes  the object from its version on. @return nullopt when it is too short.
std::optional<EmfPlusImageAttributes> ReadEmfPlusImageAttributes(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
