#pragma once

#include <optional>

#include "gdi/device_context.h"

namespace kelvane {

/// The viewport of a picture, which is the page. A file that sets one of its own does not know the
/// page: its first extent stands for all of it, and what it says later is in the same measure.
class WmfViewport {
 public:
  /// @param page  device units.
  explicit WmfViewport(SizeL page) : page_(page) {}

  /// Makes the viewport the page, and a unit of the window one of the device.
  void Begin(DeviceContext& device) const;

  void SetExtent(DeviceContext& device, SizeL extent);
  void SetOrigin(DeviceContext& device, PointL origin) const;
  void OffsetOrigin(DeviceContext& device, PointL offset) const;

 private:
  [[nodiscard]] PointL OnPage(double x, double y) const;

  SizeL page_;
  double xScale_ = 1;  // device units for one of the file's
  double yScale_ = 1;
  bool isScaled_ = false;
};

}  // namespace kelvane
