#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_path.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

/// EmfPlusRegionNode ([MS-EMFPLUS] 2.2.2.40).
struct EmfPlusRegionNode {
  EmfPlusRegionNodeType type{};
  std::variant<std::monostate, RectF, EmfPlusPath> shape;  // of a kRectangle, of a kPath

  friend bool operator==(const EmfPlusRegionNode&, const EmfPlusRegionNode&) = default;
};

/// EmfPlusRegion ([MS-EMFPLUS] 2.2.1.8), in world units.
struct EmfPlusRegion {
  /// A whole tree: behind each node that joins two others come all of its left one's, then all of
  /// its right one's. However deep it is, nobody needs to recurse.
  std::vector<EmfPlusRegionNode> nodes;

  friend bool operator==(const EmfPlusRegion&, const EmfPlusRegion&) = default;
};

/// @param bytes  the object from its version on. @return nullopt for what is no region: a tree that
///               is not whole, or a node of an unknown type.
std::optional<EmfPlusRegion> ReadEmfPlusRegion(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
