#include <optional>

#include "gdi/gradients.h"
#include "metafile/emf/emf_gradient_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

/// @return nullopt when its mode is unknown, else whether it has all of its vertices.
std::optional<bool> Fill(DeviceContext& device, const GradientFillRecord& r) {
  switch (r.mode) {
    case GRADIENT_FILL_RECT_H:
    case GRADIENT_FILL_RECT_V:
      return GradientFill(device, r.vertices, r.rectangles, r.mode);
    case GRADIENT_FILL_TRIANGLE:
      return GradientFill(device, r.vertices, r.triangles);
  }
  return std::nullopt;
}

constexpr EmfHandler kGradientHandlers[] = {
    {EMR_GRADIENTFILL, Playing<DecodeGradientFill>([](EmfPlayback& p, const auto& r) {
       const auto isWhole = Fill(p.device, r);
       if (!isWhole) return p.Damaged("its gradient is of an unknown kind");
       if (!*isWhole) p.Damaged("it lacks vertices that its shapes are to have");
     })},
};

}  // namespace

std::span<const EmfHandler> EmfGradientHandlers() {
  return kGradientHandlers;
}

}  // namespace kelvane
