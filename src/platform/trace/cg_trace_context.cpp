#include "platform/trace/cg_trace_context.h"

#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <variant>

#include "base/number.h"
#include "base/unicode.h"
#include "platform/quartz/cg_clip_writer.h"
#include "platform/quartz/cg_value_writer.h"
#include "platform/trace/trace_image.h"

namespace kelvane {
namespace {

constexpr std::array<std::string_view, 5> kPaintNames = {"fill", "eo-fill", "stroke", "fill-stroke",
                                                         "eo-fill-stroke"};

constexpr std::array<const char*, kCGBlendModes> kBlendNames = {
    "normal",      "multiply",   "screen",     "overlay",    "darken",     "lighten",
    "color-dodge", "color-burn", "soft-light", "hard-light", "difference", "exclusion",
    "hue",         "saturation", "color",      "luminosity"};

class CGTraceContext final : public CGContext, private CGClipOperators, private CGValueOperators {
 public:
  explicit CGTraceContext(std::string& output) : output_(output) {}

  void Close() override { EndPage(); }

  [[nodiscard]] CGFontFilter FontFilter() const override { return AnyFont; }

 private:
  ~CGTraceContext() override = default;

  void PageBegins(const CGRect& box) override {
    clips_ = {};
    values_ = {};
    Line("page", {box.origin.x, box.origin.y, box.size.width, box.size.height});
  }

  void PageEnds() override {
    clips_.End(*this);
    Line("end-page", {});
  }

  void PathPainted(const CGPath& path, CGPathDrawingMode mode) override {
    BeginMark({.fill = Fills(mode), .stroke = Strokes(mode)}, State());
    WritePath(path);
    const CGStrokeGeometry stroke = StrokeGeometry(State());
    if (Strokes(mode) && stroke.throughTransform) {
      LineUnder(std::string(kPaintNames[mode]), stroke.transform);
    } else {
      Line(kPaintNames[mode], {});
    }
  }

  void ImageDrawn(const CGImage& image, const CGAffineTransform& matrix) override {
    const auto lines = LinesOfImage(image);
    if (!lines) return;
    BeginMark({.fill = image.isMask}, State());
    LineUnder(WordsOfImage(image), matrix);
    output_ += *lines;
  }

  void ShadingDrawn(const CGShading& shading) override {
    BeginMark({}, State());
    std::visit([this](const auto& kind) { ShadingLines(kind); }, shading);
  }

  void GlyphsDrawn(const CGGlyphRun& run) override {
    BeginMark({.text = true}, run.isEmboldened ? Emboldened(State(), run.size) : State());
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

  void BeginMark(CGStateNeeds needs, const CGGraphicsState& state) {
    clips_.Bring(Clips(), *this);
    values_.Bring(state, needs, *this);
  }

  void WriteSave() override {
    Line("save", {});
    values_.Save();
  }
  void WriteRestore() override {
    Line("restore", {});
    values_.Restore();
  }
  void WriteClip(const CGClip& clip) override {
    WritePath(clip.area);
    Line(clip.isEvenOdd ? "eo-clip" : "clip", {});
  }

  void FillColor(const CGColor& color) override { ColorLine("fill-color", color); }
  void StrokeColor(const CGColor& color) override { ColorLine("stroke-color", color); }
  void FillPattern(const CGSharedPattern& pattern) override {
    PatternLines("fill-pattern", *pattern);
  }
  void StrokePattern(const CGSharedPattern& pattern) override {
    PatternLines("stroke-pattern", *pattern);
  }
  void LineCap(CGLineCap cap) override { Line("line-cap", {static_cast<CGFloat>(cap)}); }
  void LineJoin(CGLineJoin join) override { Line("line-join", {static_cast<CGFloat>(join)}); }
  void LineDash(const CGLineDash& dash) override {
    std::string words = "line-dash";
    for (const CGFloat length : dash.lengths)
      AppendNumber(words, length);
    Line(words + " from", {dash.phase});
  }
  void Compositing(const CGCompositing& compositing) override {
    Line(std::string("blend ") + kBlendNames[compositing.mode] + " alpha", {compositing.alpha});
  }
  void LineWidth(CGFloat width) override { Line("line-width", {width}); }
  void MiterLimit(CGFloat limit) override { Line("miter-limit", {limit}); }
  void TextMode(CGTextDrawingMode mode) override {
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

  void PatternLines(const char* words, const CGPattern& pattern) {
    std::string line = words;
    if (!pattern.shading) AppendCell(line, pattern);
    LineUnder(std::move(line), pattern.matrix);
    if (pattern.shading) {
      std::visit([this](const auto& kind) { ShadingLines(kind); }, *pattern.shading);
    }
    if (pattern.image != nullptr) Line("  image", {});
    for (const CGPatternShape& shape : pattern.shapes) {
      ColorLine("  fill-color", shape.color);
      WritePath(shape.path);
    }
    Line("end-pattern", {});
  }

  static void AppendCell(std::string& line, const CGPattern& pattern) {
    AppendNumber(line, pattern.cell.width);
    AppendNumber(line, pattern.cell.height);
    if (!(pattern.gap == CGSize{})) {
      line += " gap";
      AppendNumber(line, pattern.gap.width);
      AppendNumber(line, pattern.gap.height);
    }
    if (pattern.mirrorsX) line += " mirror-x";
    if (pattern.mirrorsY) line += " mirror-y";
  }

  void ShadingLines(const CGAxialShading& axial) {
    Line("axial", {axial.start.x, axial.start.y, axial.end.x, axial.end.y});
    for (const CGGradientStop& stop : axial.stops)
      ColorLine("  stop", stop.color, {stop.location});
  }

  void ShadingLines(const CGTriangleMesh& mesh) {
    Line("mesh", {});
    for (const auto& [point, color] : mesh.vertices)
      ColorLine("  vertex", color, {point.x, point.y});
  }

  void LineUnder(std::string words, const CGAffineTransform& t) {
    Line(words += " under", {t.a, t.b, t.c, t.d, t.tx, t.ty});
  }

  /// @param before  numbers before the colour's.
  void ColorLine(std::string words, const CGColor& color,
                 std::initializer_list<CGFloat> before = {}) {
    for (const CGFloat number : before)
      AppendNumber(words, number);
    for (const CGFloat number : {color.red, color.green, color.blue})
      AppendNumber(words, number);
    if (color.alpha != 1) {
      words += " alpha";
      AppendNumber(words, color.alpha);
    }
    Line(words, {});
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
  CGClipWriter clips_;
  CGValueWriter values_;
};

}  // namespace

CGContextRef CGTraceContextCreate(std::string& output) {
  return new CGTraceContext(output);
}

}  // namespace kelvane
