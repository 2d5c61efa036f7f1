#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_buffer.h"
#include "platform/pdf/pdf_text_line.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_path.h"
#include "platform/quartz/cg_stroke_style.h"

namespace kelvane {

/// The content of a page, operator by operator (ISO 32000-1, annex A). It is handed on in pieces,
/// cut between operators, so that a page of any length needs little memory.
class PdfContent {
 public:
  using Sink = std::function<void(std::string_view)>;

  /// @param sink  takes each finished piece; the view is borrowed for the call.
  explicit PdfContent(Sink sink) : sink_(std::move(sink)) {}

  void Save();                                      // q
  void Restore();                                   // Q
  void Concat(const CGAffineTransform& transform);  // cm
  void FillColor(const CGColor& color);             // rg
  void StrokeColor(const CGColor& color);           // RG
  void FillPattern(std::string_view name);          // cs scn
  void StrokePattern(std::string_view name);        // CS SCN
  void LineWidth(CGFloat width);                    // w
  void LineCap(CGLineCap cap);                      // J
  void LineJoin(CGLineJoin join);                   // j
  void LineDash(const CGLineDash& dash);            // d
  void MiterLimit(CGFloat limit);                   // M, which is at least 1
  void TextMode(CGTextDrawingMode mode);            // Tr
  void GraphicsState(std::string_view name);        // gs
  void Path(const CGPath& path);                    // m l c h re
  void Paint(CGPathDrawingMode mode);               // f f* S B B*
  void Clip(bool isEvenOdd);                        // W n, W* n
  void DrawXObject(std::string_view name);          // Do
  void Shade(std::string_view name);                // sh

  /// Shows a glyph at `origin` of the style's text space: BT Tf Tm TJ ET, as far as they are not
  /// shared with the glyphs before and after it. @param width  thousandths of an em, as the
  /// document has it.
  void ShowGlyph(const PdfTextStyle& style, CGPoint origin, std::uint16_t code, int width);

  /// True while nothing waits to be handed on.
  [[nodiscard]] bool IsEmpty() const { return text_.IsEmpty(); }

  /// Hands on what is left. What is written afterwards is a content of its own.
  void Finish();

 private:
  void Write(std::initializer_list<CGFloat> operands, std::string_view op);
  void Write(std::string_view op);
  void WriteNamed(std::string_view name, std::string_view op);
  void EndOperatorAt(const char* end);
  void HandOn();

  // Colours and the like may stand inside a text object, between two lines; everything else ends
  // it.
  void StartLine(const PdfTextStyle& style, CGPoint origin);
  void EndLine();
  void EndText();

  struct Font {
    std::string name;
    CGFloat size = 0;
  };

  Sink sink_;
  TextBuffer text_;   // not yet handed on
  PdfTextLine line_;  // the one not yet ended
  bool inText_ = false;
  Font font_;
  std::vector<Font> savedFonts_;
};

}  // namespace kelvane
