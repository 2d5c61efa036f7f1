#include "platform/trace/cg_trace_context.h"

#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "base/number.h"
#include "base/unicode.h"
#include "platform/quartz/cg_state_writer.h"

namespace kelvane {
namespace {

constexpr std::array<std::string_view, 5> kPaintNames = {"fill", "eo-fill", "stroke", "fill-stroke",
                                                         "eo-fill-stroke"};

class CGTraceContext final : public CGContext, private CGStateWriter {
 public:
  explicit CGTraceContext(std::string& output) : output_(output) {}

  void Close() override { EndPage(); }

  [[nodiscard]] CGFontFilter FontFilter() const override { return AnyFont; }

 private:
  ~CGTraceContext() override = default;

  void PageBegins(const CGRect& box) override {
    StartPage();
    Line("page", {box.origin.x, box.origin.y, box.size.width, box.size.height});
  }

  void PageEnds() override {
    FinishPage();
    Line("end-page", {});
  }

  void PathPainted(const CGPath& path, CGPathDrawingMode mode) override {
    Prepare(State(), Clips(), {.fill = Fills(mode), .stroke = Strokes(mode)});
    WritePath(path);
    const CGStrokeGeometry stroke = StrokeGeometry(State());
    if (Strokes(mode) && stroke.throughTransform) {
      LineUnder(std::string(kPaintNames[mode]), stroke.transform);
    } else {
      Line(kPaintNames[mode], {});
    }
  }

  void ImageDrawn(const CGImage& image, const CGAffineTransform& matrix) override {
    Prepare(State(), Clips(), {});
    LineUnder("image " + std::to_string(image.width) + ' ' + std::to_string(image.height) +
                  (image.components == 1 ? " gray" : " rgb"),
              matrix);
  }

  void GlyphsDrawn(const CGGlyphRun& run) override {
    Prepare(run.isEmboldened ? Emboldened(State(), run.size) : State(), Clips(), {.text = true});
    std::u16string text;
    for (const CGPositionedGlyph& glyph : run.glyphs)
      text += glyph.text;
    std::string words = "text \"" + ToUTF8(text) + "\" " + run.font->Description().postScriptName;
    AppendNumber(words, run.size);
    LineUnder(std::move(words), run.matrix);
    if (run.glyphs.size() == 1 && run.glyphs[0].origin == CGPoint{}) return;
    for (const CGPositionedGlyph& glyph : run.glyphs)
      Line("  at", {glyph.origin.x, glyph.origin.y});
  }

  void WriteSave() override { Line("save", {}); }
  void WriteRestore() override { Line("restore", {}); }
  void WriteClip(const CGPath& area) override {
    WritePath(area);
    Line("clip", {});
  }
  void WriteFillColor(const CGColor& color) override {
    Line("fill-color", {color.red, color.green, color.blue});
  }
  void WriteStrokeColor(const CGColor& color) override {
    Line("stroke-color", {color.red, color.green, color.blue});
  }
  void WriteLineWidth(CGFloat width) override { Line("line-width", {width}); }
  void WriteMiterLimit(CGFloat limit) override { Line("miter-limit", {limit}); }
  void WriteTextMode(CGTextDrawingMode mode) override {
    Line("text-mode", {static_cast<CGFloat>(mode)});
  }

  void WritePath(const CGPath& path) {
    path.ForEach([this](CGPath::Element element, const CGPoint* p) {
      switch (element) {
        case CGPath::Element::kMove:
          return Line("move", {p[0].x, p[0].y});
        case CGPath::Element::kLine:
          return Line("line", {p[0].x, p[0].y});
        case CGPath::Element::kCurve:
          return Line("curve", {p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y});
        case CGPath::Element::kRectangle:
          return Line("rect", {p[0].x, p[0].y, p[1].x, p[1].y});
        case CGPath::Element::kClose:
          return Line("close", {});
      }
    });
  }

  void LineUnder(std::string words, const CGAffineTransform& t) {
    Line(words += " under", {t.a, t.b, t.c, t.d, t.tx, t.ty});
  }

  void Line(std::string_view words, std::initializer_list<CGFloat> numbers) {
    output_ += words;
    for (const CGFloat number : numbers)
      AppendNumber(output_, number);
    output_ += '\n';
  }

  static void AppendNumber(std::string& line, CGFloat number) {
    std::array<char, kNumberRoom> text;
    line += ' ';
    line.append(text.data(), WriteNumber(text.data(), number));
  }

  std::string& output_;
};

}  // namespace

CGContextRef CGTraceContextCreate(std::string& output) {
  return new CGTraceContext(output);
}

}  // namespace kelvane
