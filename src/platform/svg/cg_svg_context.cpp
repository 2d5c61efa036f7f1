#include "platform/svg/cg_svg_context.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/quartz/cg_clip_writer.h"
#include "platform/quartz/cg_extent.h"
#include "platform/svg/svg_definitions.h"
#include "platform/svg/svg_font.h"
#include "platform/svg/svg_image.h"
#include "platform/svg/svg_page.h"
#include "platform/svg/svg_paint.h"
#include "platform/svg/svg_path.h"
#include "platform/svg/svg_style.h"
#include "platform/svg/svg_text.h"

namespace kelvane {
namespace {

constexpr std::array<std::string_view, kCGBlendModes> kBlendModes = {
    "normal",      "multiply",   "screen",     "overlay",    "darken",     "lighten",
    "color-dodge", "color-burn", "soft-light", "hard-light", "difference", "exclusion",
    "hue",         "saturation", "color",      "luminosity"};

/// @return whether the clip leaves all of the page.
bool LeavesAll(const CGClip& clip, const CGRect& page) {
  int elements = 0;
  bool isRectangle = true;
  clip.area.ForEach([&](CGPath::Element element, const CGPoint* /*points*/) {
    ++elements;
    isRectangle = isRectangle && element == CGPath::Element::kRectangle;
  });
  const CGBox whole = BoxOf(page);
  return elements == 1 && isRectangle && Intersection(BoxOf(clip.area), whole) == whole;
}

// Elements are kept in pieces, so that a long document is not copied again and again as it grows.
constexpr std::size_t kPieceSize = std::size_t{1} << 18;

/// The SVG back end. An element has all that it is painted with; clips are groups around elements.
class CGSVGContext final : public CGContext, private CGClipOperators {
 public:
  CGSVGContext(CGDataConsumerRef consumer, CGSVGDescription description)
      : consumer_(CFShare(consumer)), description_(std::move(description)), images_(definitions_) {}

  void Close() override {
    EndPage();
    const auto consumer = std::move(consumer_);
    if (!consumer) return;
    EndPiece();
    const std::string opening = Opening();
    std::size_t size = 0;
    ForEachPiece(opening, [&size](std::string_view text) { size += text.size(); });
    consumer->Expect(size);
    ForEachPiece(opening, [&consumer](std::string_view text) {
      consumer->Write({reinterpret_cast<const unsigned char*>(text.data()), text.size()});
    });
    consumer->Commit();
  }

  [[nodiscard]] CGFontFilter FontFilter() const override { return AnyFont; }

 private:
  ~CGSVGContext() override = default;

  void PageBegins(const CGRect& mediaBox) override {
    isRecording_ = !page_;
    if (!isRecording_) return;
    box_ = mediaBox;
    page_.emplace(mediaBox);
    paints_.emplace(*page_, definitions_, images_);
  }

  void PageEnds() override {
    if (!isRecording_) return;
    clips_.End(*this);
    isRecording_ = false;
  }

  void PathPainted(const CGPath& path, CGPathDrawingMode mode) override {
    const CGStrokeGeometry stroke = StrokeGeometry(State());
    SvgMark mark = {.fills = Fills(mode),
                    .strokes = Strokes(mode),
                    .isEvenOdd = mode == kCGPathEOFill || mode == kCGPathEOFillStroke,
                    .isPath = true,
                    .stroke = {stroke.width, stroke.scale}};
    if (!isRecording_) return;
    CGAffineTransform toElement = page_->fromPage;
    SvgGrid grid = page_->grid;
    if (mark.strokes && stroke.throughTransform) {
      mark.transform = CGAffineTransformConcat(stroke.transform, toElement);
      toElement = stroke.inverse;
      const double scale = LengthScale(stroke.transform);
      grid = SvgGrid(page_->Extent() / scale);
    }
    hasHairlines_ = hasHairlines_ || IsHairline(State(), mark);
    Draw([&] {
      body_ += "<path";
      AppendSvgStyle(body_, State(), mark, *paints_);
      AppendSvgTransform(body_, "transform", mark.transform);
      body_ += " d=\"";
      AppendSvgPath(body_, path, toElement, grid);
      body_ += "\"/>";
    });
  }

  void ImageDrawn(const CGImage& image, const CGAffineTransform& matrix) override {
    Draw([&] {
      if (image.isMask && State().fillPattern != nullptr) return FillThrough(image, matrix);
      const std::string element =
          paints_->ImageElement(image, State().fillColor, OfPixels(image, matrix));
      if (element.empty()) return;
      body_ += element;
      if (State().alpha != 1) AppendSvgAttribute(body_, "opacity", State().alpha);
      body_ += "/>";
    });
  }

  void ShadingDrawn(const CGShading& shading) override {
    Draw([&] {
      body_ += "<g shape-rendering=\"crispEdges\"";
      if (State().alpha != 1) AppendSvgAttribute(body_, "opacity", State().alpha);
      body_ += ">" + paints_->ShadingOverPage(shading) + "</g>";
    });
  }

  void GlyphsDrawn(const CGGlyphRun& run) override {
    Draw([&] {
      const CGGraphicsState state = run.isEmboldened ? Emboldened(State(), run.size) : State();
      const SvgTextFrame frame(run, *page_);
      const double scale = LengthScale(frame.Transform());
      const SvgMark mark = {
          .fills = Fills(state.textMode),
          .strokes = Strokes(state.textMode),
          .transform = frame.Transform(),
          .stroke = {static_cast<CGFloat>(scale > 0 ? TextStrokeWidth(state) / scale : 0), 1}};
      std::string paint;
      AppendSvgStyle(paint, state, mark, *paints_);
      body_ += SvgText(run, frame, paint, fonts_.FontFor(run.font));
      hasText_ = true;
    });
  }

  /// Calls `write(text)` for the document, piece by piece.
  template <class Write>
  void ForEachPiece(std::string_view opening, const Write& write) {
    write(opening);
    if (!definitions_.IsEmpty()) {
      write("<defs>");
      definitions_.ForEachPiece(write);
      write("</defs>");
    }
    if (isBlended_) write(WholePage("#fff"));
    for (const std::string& piece : pieces_)
      write(piece);
    write("</svg>\n");
  }

  void EndPiece() {
    body_.shrink_to_fit();
    pieces_.push_back(std::exchange(body_, {}));
  }

  /// Draws a mark among the clips that cut it. A group with a clip keeps to itself what is in it,
  /// so one that is mixed with the page stands in groups of its own.
  template <class DrawMark>
  void Draw(DrawMark&& draw) {
    if (!isRecording_) return;
    if (body_.size() > kPieceSize) EndPiece();
    if (State().blendMode == kCGBlendModeNormal) {
      clips_.Bring(Clips(), *this);
      return draw();
    }
    isBlended_ = true;
    clips_.End(*this);
    body_.append("<g style=\"mix-blend-mode:").append(kBlendModes[State().blendMode]).append("\">");
    for (const CGClip& clip : Clips())
      OpenClip(clip);
    draw();
    for (std::size_t i = 0; i <= Clips().size(); ++i)
      body_ += "</g>";
  }

  void OpenClip(const CGClip& clip) {
    std::string area = "><path d=\"" + SvgPathData(clip.area, page_->fromPage, page_->grid) + "\"";
    if (clip.isEvenOdd) area += " clip-rule=\"evenodd\"";
    area += "/></clipPath>";
    body_ += "<g clip-path=\"" + definitions_.Reference("clipPath", std::move(area)) + "\">";
  }

  void WriteSave() override { groups_.push_back(0); }
  void WriteRestore() override {
    for (; groups_.back() > 0; --groups_.back())
      body_ += "</g>";
    groups_.pop_back();
  }
  void WriteClip(const CGClip& clip) override {
    if (LeavesAll(clip, box_)) return;
    OpenClip(clip);
    ++groups_.back();
  }

  /// A pattern shows where a stencil lets it.
  void FillThrough(const CGImage& stencil, const CGAffineTransform& matrix) {
    const CGAffineTransform toPage = OfPixels(stencil, matrix);
    const std::string& lightness = images_.AddLightness(stencil, SvgIsSharp(stencil, toPage, 1));
    if (lightness.empty()) return;
    std::string mask = "><use xlink:href=\"#" + lightness + "\"";
    AppendSvgTransform(mask, "transform", toPage);
    mask += "/></mask>";
    CGPath square;
    square.AddMappedRectangle({{0, 0}, {1, 1}}, matrix);
    body_ += "<path";
    AppendSvgStyle(body_, State(), {.fills = true}, *paints_);
    body_ += " mask=\"" + definitions_.Reference("mask", std::move(mask)) + "\" d=\"";
    AppendSvgPath(body_, square, page_->fromPage, page_->grid);
    body_ += "\"/>";
  }

  /// @param matrix  maps the unit square, y upwards, onto the page. @return what maps the pixels of
  ///                an image, y downwards, onto it as its elements see it.
  [[nodiscard]] CGAffineTransform OfPixels(const CGImage& image,
                                           const CGAffineTransform& matrix) const {
    const CGAffineTransform toSquare = {1 / static_cast<CGFloat>(image.width),   0, 0,
                                        -1 / static_cast<CGFloat>(image.height), 0, 1};
    return CGAffineTransformConcat(CGAffineTransformConcat(toSquare, matrix), page_->fromPage);
  }

  [[nodiscard]] std::string WholePage(std::string_view color) const {
    std::string element = "<rect";
    AppendSvgAttribute(element, "width", box_.size.width);
    AppendSvgAttribute(element, "height", box_.size.height);
    return element.append(" fill=\"").append(color).append("\"/>");
  }

  [[nodiscard]] std::string Opening() const {
    std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       "\n"
                       R"(<svg xmlns="http://www.w3.org/2000/svg")"
                       R"( xmlns:xlink="http://www.w3.org/1999/xlink" version="1.1")";
    // Without the second some browsers place letters on whole pixels.
    if (hasText_) text += R"( xml:space="preserve" text-rendering="geometricPrecision")";
    // What marks are mixed with is this page alone.
    if (isBlended_) text += R"( style="isolation:isolate")";
    const char* names[] = {" width=\"", " height=\""};
    std::string view = "0 0";
    for (int i = 0; i < 2; ++i) {
      std::string length;
      AppendSvgNumber(length, i == 0 ? box_.size.width : box_.size.height);
      text.append(names[i]).append(length).append("pt\"");
      view += " " + length;
    }
    text += " viewBox=\"" + view + "\">";
    if (!description_.title.empty()) {
      text += "<title>" + SvgEscaped(description_.title) + "</title>";
    }
    std::string rules = fonts_.Rules(description_.embedsFonts);
    if (hasHairlines_) rules += kSvgHairlineRules;
    return rules.empty() ? text : text + "<style type=\"text/css\">" + rules + "</style>";
  }

  CFOwned<CGDataConsumer> consumer_;  // null once the document is closed
  CGSVGDescription description_;
  CGRect box_ = {};
  std::optional<SvgPage> page_;  // once it began
  bool isRecording_ = false;
  SvgDefinitions definitions_;
  SvgImages images_;
  SvgFonts fonts_;
  std::optional<SvgPaints> paints_;
  std::vector<std::string> pieces_;  // of the elements
  std::string body_;                 // the last one, which grows
  CGClipWriter clips_;
  std::vector<int> groups_;  // open ones, for each save
  bool isBlended_ = false;
  bool hasText_ = false;
  bool hasHairlines_ = false;
};

}  // namespace

CGContextRef CGSVGContextCreate(CGDataConsumerRef consumer, const CGSVGDescription& description) {
  if (consumer == nullptr) return nullptr;
  return new CGSVGContext(consumer, description);
}

}  // namespace kelvane
