#pragma once

#include <string>
#include <utility>

#include "gdi/canvas.h"
#include "gdi/traced_device.h"
#include "gdiplus/graphics.h"
#include "platform/trace/cg_trace_context.h"

namespace kelvane::gdiplus {

/// A graphics on a page that is traced.
class TracedGraphics {
 public:
  /// @param deviceToPage  without another a device unit is a point, and y grows downwards.
  explicit TracedGraphics(const CGAffineTransform& deviceToPage = {})
      : canvas_(*surface_, deviceToPage, kWhole, {}), graphics_(&canvas_, {96, 96}) {
    surface_->BeginPage({{0, 0}, {100, 100}});
    trace_.clear();
  }

  // What is drawn with the graphics; the functions of gdiplus/ take it.
  operator Graphics&() { return graphics_; }  // NOLINT(google-explicit-constructor)
  Graphics* operator->() { return &graphics_; }

  Canvas& OnCanvas() { return canvas_; }

  /// @return what was drawn since the last time.
  std::string Take() { return std::exchange(trace_, {}); }

  /// @return the paths and what was done with them, without colours, pens and clips.
  std::string TakeMarks() { return TracedDevice::MarksOf(Take()); }

 private:
  static constexpr RectangleD kWhole = {-1000, -1000, 1000, 1000};

  std::string trace_;
  CFOwned<CGContext> surface_{CGTraceContextCreate(trace_)};
  Canvas canvas_;
  Graphics graphics_;
};

}  // namespace kelvane::gdiplus
