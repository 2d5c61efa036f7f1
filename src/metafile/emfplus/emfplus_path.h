#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

// What the type of a point says ([MS-EMFPLUS] 2.2.2.31).
inline constexpr std::uint8_t kEmfPlusPointTypeMask = 0x0F;  // one of the next three
inline constexpr std::uint8_t kEmfPlusPointStart = 0;
inline constexpr std::uint8_t kEmfPlusPointLine = 1;
inline constexpr std::uint8_t kEmfPlusPointBezier = 3;     // they come in threes
inline constexpr std::uint8_t kEmfPlusPointCloses = 0x80;  // the figure ends and is closed

/// EmfPlusPath ([MS-EMFPLUS] 2.2.1.6), in world units.
struct EmfPlusPath {
  std::vector<PointF> points;
  std::vector<std::uint8_t> types;  // of each point
  bool isWinding = false;           // else even-odd

  friend bool operator==(const EmfPlusPath&, const EmfPlusPath&) = default;
};

/// @param bytes  the object from its version on. @return nullopt for what is no path.
std::optional<EmfPlusPath> ReadEmfPlusPath(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
