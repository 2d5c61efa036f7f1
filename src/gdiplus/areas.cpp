#include "gdiplus/areas.h"

#include <memory>
#include <utility>
#include <vector>

#include "gdiplus/figures.h"

namespace kelvane::gdiplus {
namespace {

bool IsEverything(const Area& area) {
  const auto* region = std::get_if<Region>(&area);
  return region != nullptr && region->IsRectangle() && *region == Region::Everything();
}

/// What two halves of a region's tree have in common, and so on.
std::optional<Area> Joined(const Area& left, const Area& right, EmfPlusRegionNodeType type,
                           Steps& steps) {
  switch (type) {
    case EmfPlusRegionNodeType::kAnd:  // without arithmetic a curve stays one
      if (IsEverything(left)) return right;
      if (IsEverything(right)) return left;
      return Combine(left, right, RGN_AND, steps);
    case EmfPlusRegionNodeType::kOr:
      return Combine(left, right, RGN_OR, steps);
    case EmfPlusRegionNodeType::kXor:
      return Combine(left, right, RGN_XOR, steps);
    case EmfPlusRegionNodeType::kExclude:
      return Combine(left, right, RGN_DIFF, steps);
    case EmfPlusRegionNodeType::kComplement:
      return Combine(right, left, RGN_DIFF, steps);
    default:
      return std::nullopt;
  }
}

bool JoinsTwo(EmfPlusRegionNodeType type) {
  return type >= EmfPlusRegionNodeType::kAnd && type <= EmfPlusRegionNodeType::kComplement;
}

std::optional<Area> AreaOfLeaf(Graphics& graphics, const EmfPlusRegionNode& node) {
  if (const auto* box = std::get_if<RectF>(&node.shape)) return AreaOf(graphics, *box);
  if (const auto* path = std::get_if<EmfPlusPath>(&node.shape)) return AreaOf(graphics, *path);
  return node.type == EmfPlusRegionNodeType::kInfinite ? Region::Everything() : Region();
}

}  // namespace

std::optional<Area> AreaOf(const Graphics& graphics, const RectF& box) {
  return AreaOf(RectangleD{box.x, box.y, double{box.x} + box.width, double{box.y} + box.height},
                WorldToDevice(graphics));
}

std::optional<Area> AreaOf(Graphics& graphics, const EmfPlusPath& path) {
  if (!graphics.clipSteps->Take(path.points.size())) return std::nullopt;
  auto outline = std::make_shared<CGPath>();
  AddPath(*outline, WorldToDevice(graphics), path);
  if (!outline->IsFinite()) return std::nullopt;
  if (!outline->HasSegments()) return Region();
  return Outline{std::move(outline), FillModeOf(path)};
}

// From the last node to the first each comes after those below it, the left one last.
std::optional<Area> AreaOf(Graphics& graphics, const EmfPlusRegion& region) {
  std::vector<Area> areas;
  for (std::size_t i = region.nodes.size(); i > 0; --i) {
    const EmfPlusRegionNode& node = region.nodes[i - 1];
    if (!graphics.clipSteps->Take(1)) return std::nullopt;
    if (!JoinsTwo(node.type)) {
      auto leaf = AreaOfLeaf(graphics, node);
      if (!leaf) return std::nullopt;
      areas.push_back(*std::move(leaf));
      continue;
    }
    if (areas.size() < 2) return std::nullopt;
    const Area left = std::move(areas.back());
    areas.pop_back();
    auto joined = Joined(left, areas.back(), node.type, *graphics.clipSteps);
    if (!joined) return std::nullopt;
    areas.back() = *std::move(joined);
  }
  if (areas.size() != 1) return std::nullopt;
  return std::move(areas.front());
}

}  // namespace kelvane::gdiplus
