#include "platform/pdf/cg_pdf_context.h"

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/pdf/pdf_content.h"
#include "platform/pdf/pdf_font_choice.h"
#include "platform/pdf/pdf_group.h"
#include "platform/pdf/pdf_image.h"
#include "platform/pdf/pdf_page_patterns.h"
#include "platform/pdf/pdf_resources.h"
#include "platform/pdf/pdf_shading.h"
#include "platform/pdf/pdf_stencil.h"
#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_clip_writer.h"
#include "platform/quartz/cg_value_writer.h"

namespace kelvane {
namespace {

bool IsUsable(const CGRect& box) {
  return IsFinite(box) && box.size.width != 0 && box.size.height != 0;
}

/// @return what maps `from`, which has an area, onto `to`.
CGAffineTransform Fitting(const CGRect& from, const CGRect& to) {
  const CGFloat xScale = to.size.width / from.size.width;
  const CGFloat yScale = to.size.height / from.size.height;
  return {xScale,
          0,
          0,
          yScale,
          to.origin.x - from.origin.x * xScale,
          to.origin.y - from.origin.y * yScale};
}

/// The PDF back end. Path coordinates are page coordinates as they stand; only a stroke under an
/// uneven transform is wrapped in that transform.
class CGPDFContext final : public CGContext, private CGClipOperators, private CGValueOperators {
 public:
  CGPDFContext(CGDataConsumerRef consumer, const CGRect& documentBox)
      : consumer_(CFShare(consumer)),
        documentBox_(documentBox),
        content_(
            [this](std::string_view piece) { contents_.push_back(writer_.AddStream(piece)); }) {}

  void Close() override {
    EndPage();
    if (const auto consumer = std::move(consumer_)) writer_.Write(*consumer);
  }

  [[nodiscard]] CGFontFilter FontFilter() const override { return PdfShows; }

  void Describe(const CFDictionary& information) {
    for (const std::string_view key : {kCGPDFContextTitle, kCGPDFContextCreator}) {
      const auto found = information.texts.find(key);
      if (found != information.texts.end()) writer_.AddInformation(key, found->second);
    }
  }

  void DrawPDFPage(const CGRect& rect, const CGPDFPage& page) {
    const CGRect box = CGPDFPageGetBoxRect(&page, kCGPDFMediaBox);
    if (!(box.size.width > 0 && box.size.height > 0)) return;
    const CGAffineTransform matrix = CGAffineTransformConcat(Fitting(box, rect), State().ctm);
    if (!Shows() || !IsFinite(matrix)) return;
    if (!pending_ && IsUntouched() && matrix == CGAffineTransformIdentity && box == mediaBox_) {
      pending_ = PendingPage{CFShare(page.document), &page};
      return;
    }
    DrawForm(page, matrix);
  }

 private:
  /// A page drawn over the whole of this one, before anything else.
  struct PendingPage {
    CFOwned<CGPDFDocument> document;
    const CGPDFPage* page;
  };

  ~CGPDFContext() override = default;

  void PageBegins(const CGRect& mediaBox) override {
    mediaBox_ = IsUsable(mediaBox) ? mediaBox : documentBox_;
    page_ = writer_.AddPage(mediaBox_);
    resources_ = PdfResources(page_.getKey("/Resources"));
    patterns_.Begin(mediaBox_);
    font_ = {};
    isBlended_ = false;
    clips_ = {};
    values_ = {};
  }

  void PageEnds() override {
    if (pending_) {
      PdfWriter::AdoptContent(page_, *pending_->page);
      pending_.reset();
      return;
    }
    clips_.End(*this);
    content_.Finish();
    if (contents_.empty()) return;
    if (isBlended_) PutPaperBelow();
    page_.replaceKey("/Contents", contents_.size() == 1 ? contents_.front()
                                                        : QPDFObjectHandle::newArray(contents_));
    contents_.clear();
  }

  void PathPainted(const CGPath& path, CGPathDrawingMode mode) override {
    const CGSharedPattern& pattern = Fills(mode) ? State().fillPattern : State().strokePattern;
    if (Fills(mode) && Strokes(mode) &&
        (patterns_.IsVeiled(pattern) || patterns_.IsVeiled(State().strokePattern))) {
      PathPainted(path, mode == kCGPathEOFillStroke ? kCGPathEOFill : kCGPathFill);
      PathPainted(path, kCGPathStroke);
      return;
    }
    BeginMark({.fill = Fills(mode), .stroke = Strokes(mode)}, State());
    BeginVeil(pattern);
    if (IsMixedMesh(pattern)) {
      DrawInGroup([&](PdfContent& content, PdfResources& resources) {
        const auto& name = resources.NameOf(patterns_.UseOf(pattern).object, kPdfPattern);
        Fills(mode) ? content.FillPattern(name) : content.StrokePattern(name);
        WritePath(content, path, mode);
      });
    } else {
      WritePath(content_, path, mode);
    }
    EndVeil(pattern);
  }

  void WritePath(PdfContent& content, const CGPath& path, CGPathDrawingMode mode) const {
    const CGStrokeGeometry stroke = StrokeGeometry(State());
    if (!Strokes(mode) || !stroke.throughTransform) {
      content.Path(path);
      content.Paint(mode);
      return;
    }
    content.Save();
    content.Concat(stroke.transform);
    content.Path(path.Mapped(stroke.inverse));
    content.Paint(mode);
    content.Restore();
  }

  void ImageDrawn(const CGImage& image, const CGAffineTransform& matrix) override {
    QPDFObjectHandle stream = images_.Add(image);
    if (stream.isNull()) return;
    BeginMark({.fill = image.isMask}, State());
    if (image.isMask && State().fillPattern != nullptr) {
      FillThrough(stream, matrix);
    } else {
      DrawXObject(resources_.NameOf(stream, kPdfImage), matrix);
    }
  }

  void ShadingDrawn(const CGShading& shading) override {
    BeginMark({}, State());
    const bool isVeiled = !IsOpaque(shading);
    if (isVeiled) content_.Save();
    if (isVeiled) content_.GraphicsState(patterns_.VeilOf(shading, {}));
    if ((isVeiled || IsMixed()) && std::holds_alternative<CGTriangleMesh>(shading)) {
      content_.DrawXObject(GroupOf({shading, {}, mediaBox_}));
    } else {
      content_.Shade(resources_.NameOf(AddShading(writer_, shading), kPdfShading));
    }
    if (isVeiled) content_.Restore();
  }

  /// Whether the state mixes marks with what lies below them.
  [[nodiscard]] bool IsMixed() const {
    return State().alpha != 1 || State().blendMode != kCGBlendModeNormal;
  }

  const std::string& GroupOf(const PdfPlacedShading& placed) {
    return resources_.NameOf(AddShadingGroup(writer_, placed), kPdfForm);
  }

  void GlyphsDrawn(const CGGlyphRun& run) override {
    if (run.isEmboldened) {
      BeginMark({.text = true}, Emboldened(State(), run.size));
    } else {
      BeginMark({.text = true}, State());
    }
    if (run.font != font_.face) SetFont(run.font);
    const CGSharedPattern& pattern = State().fillPattern;
    BeginVeil(pattern);
    if (IsMixedMesh(pattern)) {
      DrawInGroup([&](PdfContent& content, PdfResources& resources) {
        content.FillPattern(resources.NameOf(patterns_.UseOf(pattern).object, kPdfPattern));
        ShowRun(content, resources.NameOf(font_.font->Dictionary(), kPdfFont), run);
      });
    } else {
      ShowRun(content_, *font_.name, run);
    }
    EndVeil(pattern);
  }

  /// @param name  of the run's font, for the content.
  void ShowRun(PdfContent& content, const std::string& name, const CGGlyphRun& run) const {
    const PdfTextStyle style = {name, font_.font->CodeSize(), run.size, run.matrix};
    for (const CGPositionedGlyph& glyph : run.glyphs) {
      const PdfFont::Code code = font_.font->Encode(glyph.glyph, glyph.text);
      content.ShowGlyph(style, glyph.origin, code.value, code.width);
    }
  }

  /// A face as the page knows it. What it points to stays until the page ends.
  struct PageFont {
    CGFontRef face = nullptr;
    PdfFont* font = nullptr;
    const std::string* name = nullptr;
  };

  void SetFont(CGFontRef face) {
    PdfFont& font = writer_.FontFor(face);
    font_ = {face, &font, &resources_.NameOf(font.Dictionary(), kPdfFont)};
  }

  [[nodiscard]] bool IsUntouched() const {
    return contents_.empty() && content_.IsEmpty() && Clips().empty();
  }

  void BeginMark(CGStateNeeds needs, const CGGraphicsState& state) {
    DrawPending();
    clips_.Bring(Clips(), *this);
    values_.Bring(state, needs, *this);
  }

  // A page that does not stay alone becomes a form, drawn before what follows. No clip was in
  // effect then.
  void DrawPending() {
    if (!pending_) return;
    const PendingPage first = *std::exchange(pending_, std::nullopt);
    DrawXObject(resources_.NameOf(writer_.AddForm(*first.page), kPdfForm), {});
  }

  // A form starts with the state that it is drawn in, and a page counts on starting with a fresh
  // one.
  void DrawForm(const CGPDFPage& page, const CGAffineTransform& matrix) {
    BeginMark({.fill = true, .stroke = true, .text = true}, CGGraphicsState{});
    DrawXObject(resources_.NameOf(writer_.AddForm(page), kPdfForm), matrix);
  }

  void DrawXObject(const std::string& name, const CGAffineTransform& matrix) {
    content_.Save();
    content_.Concat(matrix);
    content_.DrawXObject(name);
    content_.Restore();
  }

  // A state has one soft mask: a shading's alpha gives way to the stencil.
  void FillThrough(const QPDFObjectHandle& stencil, const CGAffineTransform& matrix) {
    CGPath square;
    square.AddMappedRectangle({{0, 0}, {1, 1}}, matrix);
    content_.Save();
    content_.GraphicsState(
        resources_.NameOf(AddStencilState(writer_, stencil, matrix), kPdfGraphicsState));
    content_.Path(square);
    content_.Paint(kCGPathFill);
    content_.Restore();
  }

  void WriteSave() override {
    content_.Save();
    values_.Save();
  }
  void WriteRestore() override {
    content_.Restore();
    values_.Restore();
  }
  void WriteClip(const CGClip& clip) override {
    content_.Path(clip.area);
    content_.Clip(clip.isEvenOdd);
  }

  void FillColor(const CGColor& color) override { content_.FillColor(color); }
  void StrokeColor(const CGColor& color) override { content_.StrokeColor(color); }
  void FillPattern(const CGSharedPattern& pattern) override {
    content_.FillPattern(*patterns_.UseOf(pattern).name);
  }
  void StrokePattern(const CGSharedPattern& pattern) override {
    content_.StrokePattern(*patterns_.UseOf(pattern).name);
  }
  void LineWidth(CGFloat width) override { content_.LineWidth(width); }
  void LineCap(CGLineCap cap) override { content_.LineCap(cap); }
  void LineJoin(CGLineJoin join) override { content_.LineJoin(join); }
  void LineDash(const CGLineDash& dash) override { content_.LineDash(dash); }
  void MiterLimit(CGFloat limit) override { content_.MiterLimit(limit); }
  void TextMode(CGTextDrawingMode mode) override { content_.TextMode(mode); }
  void Compositing(const CGCompositing& compositing) override {
    isBlended_ = isBlended_ || compositing.mode != kCGBlendModeNormal;
    content_.GraphicsState(
        resources_.NameOf(writer_.AddGraphicsState(compositing), kPdfGraphicsState));
  }

  /// @param pattern  may be null, as in the next two.
  void BeginVeil(const CGSharedPattern& pattern) {
    if (!patterns_.IsVeiled(pattern)) return;
    content_.Save();
    content_.GraphicsState(*patterns_.UseOf(pattern).veil);
  }
  void EndVeil(const CGSharedPattern& pattern) {
    if (patterns_.IsVeiled(pattern)) content_.Restore();
  }

  /// Readers mix the parts of a mesh with each other, or forget the mask, unless it has a group.
  bool IsMixedMesh(const CGSharedPattern& pattern) {
    return pattern != nullptr && pattern->shading &&
           std::holds_alternative<CGTriangleMesh>(*pattern->shading) &&
           (IsMixed() || patterns_.IsVeiled(pattern));
  }

  /// Widths, dashes and the mode of text are those of the state that the group is drawn in.
  /// @param draw  writes a content that names things of its own.
  template <class Draw>
  void DrawInGroup(Draw&& draw) {
    std::string text;
    PdfContent content([&text](std::string_view piece) { text += piece; });
    PdfResources resources;
    draw(content, resources);
    content.Finish();
    content_.DrawXObject(
        resources_.NameOf(AddGroup(writer_, text, resources, mediaBox_), kPdfForm));
  }

  // Marks mix with what lies below them, which is nothing on a bare page: it does what it likes.
  // White paper is what they were made for, and their colours are red, green and blue.
  void PutPaperBelow() {
    std::string paper;
    PdfContent content([&paper](std::string_view piece) { paper += piece; });
    CGPath box;
    box.AddRectangle(mediaBox_.origin, mediaBox_.size);
    content.Save();
    content.FillColor({1, 1, 1, 1});
    content.Path(box);
    content.Paint(kCGPathFill);
    content.Restore();
    content.Finish();
    contents_.insert(contents_.begin(), writer_.AddStream(paper));
    page_.replaceKey("/Group", QPDFObjectHandle::parse("<< /S /Transparency /CS /DeviceRGB >>"));
  }

  CFOwned<CGDataConsumer> consumer_;  // null once the document is written
  CGRect documentBox_;
  PdfWriter writer_;
  PdfImages images_{writer_};
  CGRect mediaBox_;
  QPDFObjectHandle page_;
  std::vector<QPDFObjectHandle> contents_;  // the pieces of the page's content, in order
  PdfContent content_;
  CGClipWriter clips_;      // of the content
  CGValueWriter values_;    // of the content
  PdfResources resources_;  // of the page
  PdfPagePatterns patterns_{writer_, images_, resources_};
  PageFont font_;           // of the last glyphs
  bool isBlended_ = false;  // a mark on the page is mixed with what lies below it
  std::optional<PendingPage> pending_;
};

}  // namespace

CGContextRef CGPDFContextCreate(CGDataConsumerRef consumer, const CGRect* mediaBox,
                                CFDictionaryRef auxiliaryInfo) {
  if (consumer == nullptr || mediaBox == nullptr || !IsUsable(*mediaBox)) return nullptr;
  CFOwned<CGPDFContext> context(new CGPDFContext(consumer, *mediaBox));
  if (auxiliaryInfo != nullptr) context->Describe(*auxiliaryInfo);
  return context.release();
}

void CGPDFContextClose(CGContextRef context) {
  context->Close();
}

void CGContextDrawPDFDocument(CGContextRef context, const CGRect& rect, CGPDFDocumentRef document,
                              int page) {
  auto* const surface = dynamic_cast<CGPDFContext*>(context);
  if (surface == nullptr || document == nullptr || page < 1) return;
  const CGPDFPageRef found = CGPDFDocumentGetPage(document, static_cast<std::size_t>(page));
  if (found != nullptr) surface->DrawPDFPage(rect, *found);
}

}  // namespace kelvane
