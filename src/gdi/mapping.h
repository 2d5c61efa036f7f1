#pragma once

#include <cstdint>
#include <optional>

#include "gdi/geometry.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {

/// The device that the picture was recorded for, whose pixels are the device units.
struct ReferenceDevice {
  SizeL pixels;
  SizeL millimeters;
  double pageLeft = 0;   // device units; the page is what a layout from right to left mirrors
  double pageRight = 0;  // device units

  friend bool operator==(const ReferenceDevice&, const ReferenceDevice&) = default;
};

/// From logical to device units: the world transform, then window to viewport as the map mode has
/// it. Windows rounds to whole device units after that; a page, which is finer, does not.
class Mapping {
 public:
  /// @param device  a size of 0 or less makes it 96 dots per inch.
  explicit Mapping(const ReferenceDevice& device);

  /// The setters return false and change nothing for what makes no sense.

  bool SetMode(MapMode mode);
  void SetWindowOrigin(PointL origin);
  void SetViewportOrigin(PointL origin);
  void OffsetWindowOrigin(PointL offset);
  void OffsetViewportOrigin(PointL offset);

  /// Extents count in MM_ISOTROPIC and MM_ANISOTROPIC; in other modes they change nothing, which is
  /// no mistake.
  bool SetWindowExtent(SizeL extent);
  bool SetViewportExtent(SizeL extent);
  bool ScaleWindowExtent(std::int32_t xNum, std::int32_t xDenom, std::int32_t yNum,
                         std::int32_t yDenom);
  bool ScaleViewportExtent(std::int32_t xNum, std::int32_t xDenom, std::int32_t yNum,
                           std::int32_t yDenom);

  bool SetWorld(const XForm& transform);
  bool ModifyWorld(const XForm& transform, WorldTransformMode mode);

  void SetLayout(Layout layout);

  [[nodiscard]] MapMode Mode() const { return mode_; }
  [[nodiscard]] Layout LayoutFlags() const { return layout_; }
  [[nodiscard]] const TransformD& World() const { return world_; }

  /// Logical units to device units.
  [[nodiscard]] const TransformD& ToDevice() const { return toDevice_; }

  /// Device units to logical units; nullopt when the world has no area.
  [[nodiscard]] std::optional<TransformD> ToLogical() const { return toDevice_.Inverse(); }

  /// The length on the device of a horizontal logical unit, by which pens become as thin as a
  /// pixel.
  [[nodiscard]] double HorizontalScale() const;

  friend bool operator==(const Mapping&, const Mapping&) = default;

 private:
  struct Extent {
    double x = 1;
    double y = 1;

    friend bool operator==(const Extent&, const Extent&) = default;
  };

  [[nodiscard]] bool TakesExtents() const;
  [[nodiscard]] Extent MetricWindow() const;
  bool SetExtent(Extent& extent, double x, double y);
  void MakeIsotropic();
  bool TakeWorld(const TransformD& transform);
  void Update();

  ReferenceDevice device_;
  MapMode mode_ = MM_TEXT;
  Layout layout_{};
  PointL windowOrigin_;
  PointL viewportOrigin_;
  Extent window_;    // whole numbers but in the metric modes
  Extent viewport_;  // whole numbers
  TransformD world_;
  TransformD toDevice_;  // of all of the above
};

}  // namespace kelvane
