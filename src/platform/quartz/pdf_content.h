#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_path.h"
#include "platform/quartz/cg_text_run.h"

namespace kelvane {

/// The content of a page, operator by operator (ISO 32000-1, annex A). It is handed on in pieces,
/// cut between operators, so that a page of any length needs little memory.
class PdfContent {
 public:
  using Sink = std::function<void(std::string_view)>;

  /// @param sink  takes each finished piece; the view is borrowed for the call.
  explicit PdfContent(Sink sink) : sink_(std::move(sink)) {}

  void Save();                                                 // q
  void Restore();                                              // Q
  void Concat(const CGAffineTransform& transform);             // cm
  void FillColor(const CGColor& color);                        // rg
  void StrokeColor(const CGColor& color);                      // RG
  void LineWidth(CGFloat width);                               // w
  void MiterLimit(CGFloat limit);                              // M, which is at least 1
  void TextMode(CGTextDrawingMode mode);                       // Tr
  void Path(const CGPath& path);                               // m l c h re
  void Paint(CGPathDrawingMode mode);                          // f f* S B B*
  void Clip();                                                 // W n
  void DrawXObject(std::string_view name);                     // Do
  void ShowText(std::string_view font, const CGTextRun& run);  // BT Tf Tm Tj ET

  /// True while nothing waits to be handed on.
  [[nodiscard]] bool IsEmpty() const { return buffer_.empty(); }

  /// Hands on what is left. What is written afterwards is a content of its own.
  void Finish();

 private:
  void Write(std::initializer_list<CGFloat> operands, std::string_view op);
  void Write(std::string_view text);

  Sink sink_;
  std::string buffer_;
};

}  // namespace kelvane
