#include "platform/raster/cg_bitmap_context.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <new>
#include <optional>
#include <stdexcept>
#include <utility>

#include "platform/quartz/cg_extent.h"
#include "platform/raster/cairo_library.h"
#include "platform/raster/png_writer.h"
#include "platform/raster/raster_clips.h"
#include "platform/raster/raster_fill.h"
#include "platform/raster/raster_geometry.h"
#include "platform/raster/raster_image.h"
#include "platform/raster/raster_operation.h"
#include "platform/raster/raster_paint.h"
#include "platform/raster/raster_pixel.h"
#include "platform/raster/raster_stroke.h"

namespace kelvane {
namespace {

constexpr std::array<cairo_operator_t, kCGBlendModes> kOperators = {
    CAIRO_OPERATOR_OVER,          CAIRO_OPERATOR_MULTIPLY,       CAIRO_OPERATOR_SCREEN,
    CAIRO_OPERATOR_OVERLAY,       CAIRO_OPERATOR_DARKEN,         CAIRO_OPERATOR_LIGHTEN,
    CAIRO_OPERATOR_COLOR_DODGE,   CAIRO_OPERATOR_COLOR_BURN,     CAIRO_OPERATOR_SOFT_LIGHT,
    CAIRO_OPERATOR_HARD_LIGHT,    CAIRO_OPERATOR_DIFFERENCE,     CAIRO_OPERATOR_EXCLUSION,
    CAIRO_OPERATOR_HSL_HUE,       CAIRO_OPERATOR_HSL_SATURATION, CAIRO_OPERATOR_HSL_COLOR,
    CAIRO_OPERATOR_HSL_LUMINOSITY};

/// A group that was painted apart, and where it lies among the page's pixels.
struct Layer {
  CairoOwned<cairo_pattern_t> pattern;
  cairo_surface_t* surface;  // the pattern's
  int left = 0;
  int top = 0;
};

/// @return how many dashes and gaps a picture has; of more of them no pixel would tell.
std::size_t MostDashes(const CGBitmapDescription& description) {
  constexpr std::size_t kAlways = std::size_t{1} << 20;
  return kAlways + 4 * description.width * description.height;
}

/// The back end of pixels.
class CGBitmapContext final : public CGContext {
 public:
  CGBitmapContext(CGDataConsumerRef consumer, const CGBitmapDescription& description)
      : consumer_(CFShare(consumer)),
        description_(description),
        dashesLeft_(MostDashes(description)) {}

  void Close() override {
    EndPage();
    const auto consumer = std::move(consumer_);
    if (!consumer || !image_) return;
    const PixelRows pixels(image_.get());
    const PngSheet sheet = {description_.width, description_.height, !description_.background,
                            description_.dotsPerInch};
    WritePng(sheet, *consumer, [&](std::size_t y, std::span<unsigned char> bytes) {
      WriteRow(pixels.Row(y), bytes);
    });
    consumer->Commit();
  }

  [[nodiscard]] CGFontFilter FontFilter() const override { return AnyFont; }
  [[nodiscard]] CGCapabilities Capabilities() const override {
    return {.holdsJpeg = false, .combinesBits = true};
  }

 private:
  ~CGBitmapContext() override = default;

  void PageBegins(const CGRect& box) override {
    isPainting_ = !image_;
    if (!isPainting_) return;
    const PixelCount size = {static_cast<int>(description_.width),
                             static_cast<int>(description_.height)};
    image_.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height));
    if (cairo_surface_status(image_.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
    drawing_.reset(cairo_create(image_.get()));
    if (const auto& color = description_.background) {
      cairo_set_source_rgba(drawing_.get(), color->red, color->green, color->blue, 1);
      cairo_paint(drawing_.get());
    }
    const CGFloat x = static_cast<CGFloat>(description_.width) / box.size.width;
    const CGFloat y = static_cast<CGFloat>(description_.height) / box.size.height;
    toPixels_ = {x, 0, 0, -y, -box.origin.x * x, (box.origin.y + box.size.height) * y};
    paints_.emplace(toPixels_, size, images_);
    clips_.emplace(drawing_.get(), toPixels_, size);
  }

  void PageEnds() override {
    if (!isPainting_) return;
    clips_->End();
    CheckDrawing();
    isPainting_ = false;
  }

  void PathPainted(const CGPath& path, CGPathDrawingMode mode) override {
    if (Fills(mode)) {
      const bool isEvenOdd = mode == kCGPathEOFill || mode == kCGPathEOFillStroke;
      Draw(State(), BoxOf(path), State().fillColor, State().fillPattern,
           [&] { FillPath(drawing_.get(), path, toPixels_, isEvenOdd); });
    }
    if (Strokes(mode)) {
      Draw(State(), Grown(BoxOf(path), StrokeReach(State())), State().strokeColor,
           State().strokePattern, [&] { Stroke(path, StrokeGeometry(State()), State()); });
    }
  }

  void GlyphsDrawn(const CGGlyphRun& run) override {
    const CGGraphicsState state = run.isEmboldened ? Emboldened(State(), run.size) : State();
    const CGPath outlines = OutlinesOf(run);
    if (!outlines.HasSegments()) return;
    if (Fills(state.textMode)) {
      Draw(state, ExtentOf(run), state.fillColor, state.fillPattern,
           [&] { FillPath(drawing_.get(), outlines, toPixels_, false); });
    }
    if (Strokes(state.textMode)) {
      Draw(state, Grown(ExtentOf(run), StrokeReach(state)), state.strokeColor, state.strokePattern,
           [&] {
             Stroke(outlines, {TextStrokeWidth(state), 1, false}, state);
           });
    }
  }

  void ImageDrawn(const CGImage& image, const CGAffineTransform& matrix) override {
    if (!isPainting_) return;
    cairo_surface_t* const pixels = images_.PixelsOf(image, State().fillColor);
    if (pixels == nullptr) return;
    const CGAffineTransform toTarget =
        CGAffineTransformConcat(CGAffineTransformConcat(PixelsToSquare(pixels), matrix), toPixels_);
    const auto pattern = RasterPaints::ImagePattern(pixels, image, toTarget);
    if (!RasterPaints::Shows(pattern.get())) return;
    const CGBox extent = BoxOf(CGRectApplyAffineTransform({{0, 0}, {1, 1}}, matrix));
    if (image.isMask && State().fillPattern != nullptr) {
      cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_NONE);
      return Draw(State(), extent, {}, State().fillPattern,
                  [&] { cairo_mask(drawing_.get(), pattern.get()); });
    }
    Draw(
        State(), extent, [&] { cairo_set_source(drawing_.get(), pattern.get()); },
        [&] { FillSquare(CGAffineTransformConcat(matrix, toPixels_)); });
  }

  void ShadingDrawn(const CGShading& shading) override {
    if (!isPainting_) return;
    Draw(
        State(), ExtentOf(shading, Clips()), [&] { paints_->SetSource(drawing_.get(), shading); },
        [&] { cairo_paint(drawing_.get()); });
  }

  void Stroke(const CGPath& path, const CGStrokeGeometry& stroke, const CGGraphicsState& state) {
    StrokePath(drawing_.get(), path, toPixels_, stroke, state, dashesLeft_);
  }

  /// An upright image has whole pixels: those of two that meet would let through what lies below.
  void FillSquare(const CGAffineTransform& toTarget) {
    const bool isUpright =
        (toTarget.b == 0 && toTarget.c == 0) || (toTarget.a == 0 && toTarget.d == 0);
    CGPath square;
    square.AddRectangle({0, 0}, {1, 1});
    SetPath(drawing_.get(), square, toTarget);
    cairo_set_antialias(drawing_.get(), isUpright ? CAIRO_ANTIALIAS_NONE : CAIRO_ANTIALIAS_DEFAULT);
    cairo_set_fill_rule(drawing_.get(), CAIRO_FILL_RULE_WINDING);
    cairo_fill(drawing_.get());
    cairo_set_antialias(drawing_.get(), CAIRO_ANTIALIAS_DEFAULT);
  }

  template <class PaintIt>
  void Draw(const CGGraphicsState& state, const CGBox& extent, const CGColor& color,
            const CGSharedPattern& pattern, PaintIt&& paint) {
    if (!isPainting_) return;
    Draw(
        state, extent, [&] { paints_->SetSource(drawing_.get(), color, pattern); }, paint);
  }

  /// Paints a mark as its state says.
  /// @param extent     nothing of it is painted elsewhere, page space.
  /// @param setSource  of the mark. @param paint  paints it.
  template <class SetSource, class PaintIt>
  void Draw(const CGGraphicsState& state, const CGBox& extent, SetSource&& setSource,
            PaintIt&& paint) {
    clips_->Bring(Clips());
    if (state.bitOperation || state.blendMode != kCGBlendModeNormal) PutPaperBelow();
    if (state.alpha == 1 && !state.bitOperation && clips_->Mask() == nullptr) {
      setSource();
      cairo_set_operator(drawing_.get(), kOperators[state.blendMode]);
      paint();
      cairo_set_operator(drawing_.get(), CAIRO_OPERATOR_OVER);
      return;
    }
    cairo_save(drawing_.get());
    CutTo(extent);
    if (state.bitOperation) {
      Combine(*state.bitOperation, setSource, paint);
    } else {
      Fade(state, setSource, paint);
    }
    cairo_restore(drawing_.get());
  }

  /// So that layers are no larger than what is painted on them.
  void CutTo(const CGBox& extent) {
    const CGRect box = {{static_cast<CGFloat>(extent.left), static_cast<CGFloat>(extent.bottom)},
                        {static_cast<CGFloat>(extent.right - extent.left),
                         static_cast<CGFloat>(extent.top - extent.bottom)}};
    const CGRect pixels = CGRectApplyAffineTransform(box, toPixels_);
    CGPath around;  // whole pixels, one more on each side
    const CGFloat left = std::floor(pixels.origin.x) - 1;
    const CGFloat top = std::floor(pixels.origin.y) - 1;
    around.AddRectangle({left, top},
                        {std::ceil(pixels.size.width) + 3, std::ceil(pixels.size.height) + 3});
    SetPath(drawing_.get(), around, {});
    cairo_clip(drawing_.get());
  }

  template <class SetSource, class PaintIt>
  void Fade(const CGGraphicsState& state, SetSource&& setSource, PaintIt&& paint) {
    const Layer layer = Apart([&] {
      setSource();
      paint();
    });
    PaintLayer(layer, state.alpha, kOperators[state.blendMode]);
  }

  void PaintLayer(const Layer& layer, CGFloat alpha, cairo_operator_t how) {
    if (clips_->Mask() != nullptr && alpha != 1) {
      const Layer faded = Apart([&] {
        cairo_set_source(drawing_.get(), layer.pattern.get());
        cairo_paint_with_alpha(drawing_.get(), alpha);
      });
      return PaintLayer(faded, 1, how);
    }
    cairo_set_source(drawing_.get(), layer.pattern.get());
    cairo_set_operator(drawing_.get(), how);
    if (clips_->Mask() != nullptr) return cairo_mask(drawing_.get(), clips_->Mask());
    cairo_paint_with_alpha(drawing_.get(), alpha);
  }

  /// What is mixed with the page finds white paper there.
  void PutPaperBelow() {
    if (description_.background || hasPaper_) return;
    hasPaper_ = true;
    const CairoOwned<cairo_t> below(cairo_create(image_.get()));
    cairo_set_operator(below.get(), CAIRO_OPERATOR_DEST_OVER);
    cairo_set_source_rgba(below.get(), 1, 1, 1, 1);
    cairo_paint(below.get());
  }

  /// Once it has failed, nothing is drawn any more.
  void CheckDrawing() const {
    const cairo_status_t status = cairo_status(drawing_.get());
    if (status == CAIRO_STATUS_SUCCESS) return;
    if (status == CAIRO_STATUS_NO_MEMORY) throw std::bad_alloc();
    throw std::runtime_error("Cairo cannot draw the picture");
  }

  template <class PaintIt>
  Layer Apart(PaintIt&& paint) {
    cairo_push_group(drawing_.get());
    paint();
    Layer layer = {CairoOwned<cairo_pattern_t>(cairo_pop_group(drawing_.get())), nullptr};
    CheckDrawing();
    double x = 0;
    double y = 0;
    cairo_pattern_get_surface(layer.pattern.get(), &layer.surface);
    cairo_surface_get_device_offset(layer.surface, &x, &y);
    layer.left = static_cast<int>(-x);
    layer.top = static_cast<int>(-y);
    return layer;
  }

  /// Combines the bits of a mark, of paint and of what is there.
  template <class SetSource, class PaintIt>
  void Combine(std::uint8_t operation, SetSource&& setSource, PaintIt&& paint) {
    const Layer mark = Apart([&] {
      setSource();
      paint();
    });
    const Layer ground = Apart([&] {
      paints_->SetSource(drawing_.get(), State().fillColor, State().fillPattern);
      cairo_paint(drawing_.get());
    });
    CombinePixels(operation, mark, ground);
    PaintLayer(mark, 1, CAIRO_OPERATOR_OVER);
  }

  /// Both layers are as large as the clip.
  void CombinePixels(std::uint8_t operation, const Layer& mark, const Layer& paint) {
    const PixelRows page(image_.get());
    const PixelRows marks(mark.surface);
    const PixelRows paints(paint.surface);
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    cairo_clip_extents(drawing_.get(), &left, &top, &right, &bottom);
    for (int y = static_cast<int>(std::floor(top)); y < static_cast<int>(std::ceil(bottom)); ++y) {
      const std::uint32_t* const there = page.Row(static_cast<std::size_t>(y));
      std::uint32_t* const row = marks.Row(static_cast<std::size_t>(y - mark.top));
      const std::uint32_t* const paintRow = paints.Row(static_cast<std::size_t>(y - paint.top));
      for (int x = static_cast<int>(std::floor(left)); x < static_cast<int>(std::ceil(right));
           ++x) {
        std::uint32_t& pixel = row[x - mark.left];
        const std::uint8_t alpha = AlphaOf(pixel);
        if (alpha == 0) continue;
        const std::uint32_t result =
            CombinedBits(operation, Opaque(paintRow[x - paint.left]), Unfaded(pixel), there[x]);
        pixel = Faded(result, alpha);
      }
    }
  }

  static std::uint32_t Opaque(std::uint32_t pixel) {
    return AlphaOf(pixel) == 0 ? 0xFF000000U : Unfaded(pixel);
  }

  CGPath OutlinesOf(const CGGlyphRun& run) {
    CGPath outlines;
    const CGFloat scale = run.size / static_cast<CGFloat>(run.font->Description().unitsPerEm);
    for (const CGPositionedGlyph& glyph : run.glyphs) {
      const auto [known, isNew] = outlines_.try_emplace({run.font, glyph.glyph});
      if (isNew) known->second = run.font->Outline(glyph.glyph);
      outlines.AddPath(known->second,
                       CGAffineTransformConcat({scale, 0, 0, scale, glyph.origin.x, glyph.origin.y},
                                               run.matrix));
    }
    return outlines;
  }

  void WriteRow(const std::uint32_t* row, std::span<unsigned char> bytes) const {
    const bool hasAlpha = !description_.background;
    unsigned char* to = bytes.data();
    for (std::size_t x = 0; x < description_.width; ++x) {
      const std::uint8_t alpha = AlphaOf(row[x]);
      const std::uint32_t pixel = hasAlpha && alpha != 0 ? Unfaded(row[x]) : row[x];
      *to++ = static_cast<unsigned char>(pixel >> 16);
      *to++ = static_cast<unsigned char>(pixel >> 8);
      *to++ = static_cast<unsigned char>(pixel);
      if (hasAlpha) *to++ = alpha;
    }
  }

  CFOwned<CGDataConsumer> consumer_;  // null once the picture is written
  CGBitmapDescription description_;
  CairoOwned<cairo_surface_t> image_;  // null before the first page
  CairoOwned<cairo_t> drawing_;
  CGAffineTransform toPixels_;
  RasterImages images_;
  std::optional<RasterPaints> paints_;
  std::map<std::pair<CGFontRef, CGGlyph>, CGPath> outlines_;
  std::optional<RasterClips> clips_;
  std::size_t dashesLeft_;
  bool isPainting_ = false;
  bool hasPaper_ = false;
};

bool IsSide(std::size_t pixels) {
  return pixels >= 1 && pixels <= kCGBitmapMostASide;
}

}  // namespace

CGContextRef CGBitmapContextCreate(CGDataConsumerRef consumer,
                                   const CGBitmapDescription& description) {
  if (consumer == nullptr) return nullptr;
  if (!IsSide(description.width) || !IsSide(description.height)) return nullptr;
  if (!kCairo.IsThere()) {
    throw std::runtime_error("PNG needs Cairo, which is not installed (libcairo2)");
  }
  return new CGBitmapContext(consumer, description);
}

}  // namespace kelvane
