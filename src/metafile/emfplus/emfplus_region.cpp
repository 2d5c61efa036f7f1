#include "metafile/emfplus/emfplus_region.h"

#include <cstddef>

namespace kelvane {
inline namespace metafile {
namespace {

bool JoinsTwo(EmfPlusRegionNodeType type) {
  return type >= EmfPlusRegionNodeType::kAnd && type <= EmfPlusRegionNodeType::kComplement;
}

/// Without those that it joins. nullopt when it is no node.
std::optional<EmfPlusRegionNode> ReadNode(ByteView& bytes) {
  EmfPlusRegionNode node = {bytes.Read<EmfPlusRegionNodeType>(), {}};
  if (bytes.IsShort()) return std::nullopt;
  if (JoinsTwo(node.type)) return node;
  switch (node.type) {
    case EmfPlusRegionNodeType::kRectangle:
      node.shape = bytes.Read<RectF>();
      return UnlessShort(bytes, std::move(node));
    case EmfPlusRegionNodeType::kPath: {
      ByteView stored = bytes.Split(bytes.Read<std::uint32_t>());
      std::optional<EmfPlusPath> path = ReadEmfPlusPath(stored);
      if (!path) return std::nullopt;
      node.shape = *std::move(path);
      return UnlessShort(bytes, std::move(node));
    }
    case EmfPlusRegionNodeType::kEmpty:
    case EmfPlusRegionNodeType::kInfinite:
      return node;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<EmfPlusRegion> ReadEmfPlusRegion(ByteView& bytes) {
  ReadEmfPlusVersion(bytes);
  bytes.Skip(sizeof(std::uint32_t));  // how many nodes there are below the first: the tree tells
  EmfPlusRegion region;
  for (std::size_t missing = 1; missing > 0;) {
    std::optional<EmfPlusRegionNode> node = ReadNode(bytes);
    if (!node) return std::nullopt;
    missing = JoinsTwo(node->type) ? missing + 1 : missing - 1;
    region.nodes.push_back(*std::move(node));
  }
  return region;
}

}  // namespace metafile
}  // namespace kelvane
