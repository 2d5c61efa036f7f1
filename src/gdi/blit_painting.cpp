#include "gdi/blit_painting.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "gdi/blit_images.h"
#include "gdi/figures.h"
#include "gdi/image_marks.h"
#include "gdi/marks.h"
#include "gdi/page_color.h"
#include "gdi/raster_operation.h"

namespace kelvane {
namespace {

CGPath Quadrilateral(const std::array<PointD, 4>& corners) {
  CGPath path;
  AddQuadrilateral(path, corners);
  return path;
}

/// Cuts marks to a path until it goes.
class CutTo {
 public:
  CutTo(Canvas& canvas, CGPath path) : surface_(canvas.Surface()) {
    surface_.SaveGState();
    canvas.Load(path);
    surface_.Clip();
  }
  ~CutTo() { surface_.RestoreGState(); }
  CutTo(const CutTo&) = delete;
  CutTo& operator=(const CutTo&) = delete;

 private:
  CGContext& surface_;
};

/// A file is not decoded for the sake of a pixel.
bool IsOnePixel(const Blit& blit) {
  return blit.dib.Kind() != Dib::Content::kJpeg && blit.part.width == 1 && blit.part.height == 1 &&
         blit.shown == nullptr;
}

CFOwned<const CGImage> Masked(CFOwned<const CGImage> image, const Blit& blit) {
  if (blit.shown == nullptr || image == nullptr) return image;
  const auto mask = StencilOf(*blit.shown, blit.part.width, blit.part.height);
  return CFOwned<const CGImage>(CGImageCreateWithMask(image.get(), mask.get()));
}

/// Draws blits on a canvas that is cut to what they show.
class BlitPainter {
 public:
  BlitPainter(DeviceContext& device, const Blit& blit)
      : device_(device), canvas_(*device.canvas), blit_(blit), unitToDevice_(UnitToDevice(blit)) {
    if (blit.cut) cut_.emplace(canvas_, Quadrilateral(*blit.cut));
  }

  void Draw(CFOwned<const CGImage> image, const ImageBlending& blending) {
    image = Masked(std::move(image), blit_);
    if (image == nullptr) return device_.shortfalls.Add(Shortfall::kUnreadableBitmap);
    DrawImage(canvas_, *image, unitToDevice_, blending);
  }

  void DrawColored(const Coloring& coloring, const ImageBlending& blending) {
    if (IsOnePixel(blit_)) return FillWithPixel(coloring, blending);
    const bool holdsJpeg = canvas_.Surface().Capabilities().holdsJpeg;
    if (holdsJpeg && AreAlike(coloring.operation, SRCCOPY) && blit_.shown == nullptr) {
      if (const auto jpeg = JpegOf(blit_)) return DrawWhole(*jpeg, blending);
    }
    Draw(ImageOf({{blit_.dib, blit_.part}}, coloring, blit_.isSmooth), blending);
  }

  /// Draws the pixels as they are, their bits to be combined with the paint's and those below.
  void Combine(TernaryRasterOperation operation, const Marks& paint) {
    if (paint.count > 0) SetFill(canvas_.Surface(), paint.marks[0]);
    const auto code = static_cast<std::uint8_t>(CodeOf(operation));
    Draw(ImageOf({{blit_.dib, blit_.part}}, {}, blit_.isSmooth), {kCGBlendModeNormal, 1, code});
  }

  void FillWith(RgbColor color, const ImageBlending& blending) {
    CGContext& surface = canvas_.Surface();
    SetFill(surface, {ColorOnPage(color), nullptr, blending.mode});
    surface.SetAlpha(blending.alpha);
    FillPlace();
    surface.SetAlpha(1);
  }

  /// @param shown  of the part; null for all of it.
  void Fill(const Marks& marks, const std::vector<std::uint8_t>* shown) {
    CGContext& surface = canvas_.Surface();
    CFOwned<const CGImage> stencil;
    if (shown != nullptr) stencil = StencilOf(*shown, blit_.part.width, blit_.part.height);
    for (const Mark& mark : marks.All()) {
      SetFill(surface, mark);
      if (stencil != nullptr) {
        DrawImage(canvas_, *stencil, unitToDevice_, {mark.mode, 1, mark.operation});
      } else {
        FillPlace();
      }
    }
  }

 private:
  void FillPlace() {
    CGPath place = Quadrilateral(CornersOf(unitToDevice_));
    canvas_.Load(place);
    canvas_.Surface().DrawPath(kCGPathFill);
  }

  void FillWithPixel(const Coloring& coloring, const ImageBlending& blending) {
    const auto pixel = FirstPixel(blit_);
    if (!pixel) return device_.shortfalls.Add(Shortfall::kUnreadableBitmap);
    FillWith(kelvane::Combine(coloring.operation, coloring.paint, *pixel, coloring.ground),
             blending);
  }

  /// A file is not taken apart: all of it is drawn, and the rest cut off.
  void DrawWhole(const CGImage& image, const ImageBlending& blending) {
    Blit whole = blit_;
    whole.part = {0, 0, blit_.dib.Width(), blit_.dib.Height()};
    const bool isPart =
        whole.part.width != blit_.part.width || whole.part.height != blit_.part.height;
    std::optional<CutTo> cut;
    if (isPart) cut.emplace(canvas_, Quadrilateral(CornersOf(unitToDevice_)));
    DrawImage(canvas_, image, UnitToDevice(whole), blending);
  }

  DeviceContext& device_;
  Canvas& canvas_;
  const Blit& blit_;
  TransformD unitToDevice_;
  std::optional<CutTo> cut_;
};

bool IsShown(const Blit& blit, std::size_t pixel) {
  return blit.shown == nullptr || (*blit.shown)[pixel] != 0;
}

/// What lies below all that a blit can reach.
std::optional<RgbColor> GroundUnder(const DeviceContext& device, const Blit& blit) {
  return device.canvas->GroundUnder(blit.cut ? *blit.cut : CornersOf(UnitToDevice(blit)));
}

/// A blit that does not look at its brush works without one.
Marks BlitMarks(DeviceContext& device, const BrushPaint& paint, BinaryRasterOperation operation,
                std::optional<RgbColor> ground) {
  return IgnoresPaint(operation) ? MarksOf(device, RgbColor(), operation, ground)
                                 : MarksOf(device, paint, operation, ground);
}

/// White and black pixels are two binary operations on paint, each where it is to be.
void PaintHalves(DeviceContext& device, const Blit& blit, TernaryRasterOperation operation,
                 const BrushPaint& paint, const std::vector<std::uint8_t>& whites) {
  const auto ground = GroundUnder(device, blit);
  BlitPainter painter(device, blit);
  for (const bool isWhite : {false, true}) {
    const BinaryRasterOperation half = WhereSourceIs(isWhite, operation);
    std::vector<std::uint8_t> shown(whites.size());
    for (std::size_t i = 0; i < shown.size(); ++i)
      shown[i] = std::uint8_t{(whites[i] != 0) == isWhite && IsShown(blit, i)};
    if (half == R2_NOP || std::ranges::find(shown, 1) == shown.end()) continue;
    const bool isWhole = std::ranges::find(shown, 0) == shown.end();
    painter.Fill(BlitMarks(device, paint, half, ground), isWhole ? nullptr : &shown);
  }
}

/// @return the operation on source and destination that comes nearest.
BinaryRasterOperation BlendOf(DeviceContext& device, TernaryRasterOperation operation,
                              const BrushPaint& paint) {
  constexpr int kMiddle = 3 * 128;
  device.shortfalls.Add(Shortfall::kBlendedColors);
  if (const auto found = WithoutPaint(operation)) return *found;
  return WherePaintIs(paint.color.red + paint.color.green + paint.color.blue >= kMiddle, operation);
}

void PaintBlended(DeviceContext& device, const Blit& blit, BinaryRasterOperation operation) {
  BlitPainter painter(device, blit);
  for (const RasterStep& step : StepsOf(operation)) {
    switch (step.color) {
      case RasterStep::Color::kPaint:
        painter.DrawColored({SRCCOPY, {}}, {step.mode, 1});
        break;
      case RasterStep::Color::kInversePaint:
        painter.DrawColored({NOTSRCCOPY, {}}, {step.mode, 1});
        break;
      case RasterStep::Color::kBlack:
      case RasterStep::Color::kWhite: {
        Marks fill;
        fill.marks[fill.count++] = {ColorOnPage(ColorOf(step.color, {})), nullptr, step.mode};
        painter.Fill(fill, blit.shown.get());
        break;
      }
    }
  }
}

}  // namespace

void PaintBlit(DeviceContext& device, const Blit& blit, TernaryRasterOperation operation,
               const BrushPaint& paint) {
  const bool needsPaint = !WithoutPaint(operation);
  if (needsPaint && paint.kind == Brush::Kind::kNull) return;
  const bool needsDestination = NeedsDestination(operation);
  const bool needsPattern = needsPaint && paint.kind != Brush::Kind::kSolid;
  if ((needsDestination || needsPattern) && device.canvas->Surface().Capabilities().combinesBits) {
    const Marks marks = needsPaint ? BlitMarks(device, paint, R2_COPYPEN, std::nullopt) : Marks();
    return BlitPainter(device, blit).Combine(operation, marks);
  }
  if (needsDestination || needsPattern) {
    const auto whites = WhitePixels(blit);
    if (whites) return PaintHalves(device, blit, operation, paint, *whites);
  }
  const auto ground = needsDestination && !needsPattern ? GroundUnder(device, blit) : std::nullopt;
  if (needsDestination && !ground) {
    return PaintBlended(device, blit, BlendOf(device, operation, paint));
  }
  if (needsPattern) device.shortfalls.Add(Shortfall::kBlendedColors);
  BlitPainter(device, blit).DrawColored({operation, paint.color, ground.value_or(RgbColor())}, {});
}

void FillBlit(DeviceContext& device, const Blit& blit, BinaryRasterOperation operation,
              const BrushPaint& paint) {
  const Marks marks = BlitMarks(device, paint, operation, GroundUnder(device, blit));
  BlitPainter(device, blit).Fill(marks, blit.shown.get());
}

void PaintImage(DeviceContext& device, const Blit& blit, CFOwned<const CGImage> image) {
  BlitPainter(device, blit).Draw(std::move(image), {});
}

void PaintTranslucent(DeviceContext& device, const Blit& blit, CGFloat alpha, bool isMultiplied) {
  auto pixels = isMultiplied ? DecodePremultiplied(blit.dib, blit.part) : std::nullopt;
  BlitPainter painter(device, blit);
  constexpr std::uint8_t kOpaque = 255;
  const auto isOpaque = [](std::uint8_t pixel) { return pixel == kOpaque; };
  if (!pixels || std::ranges::all_of(pixels->alpha, isOpaque)) {
    return painter.DrawColored({}, {kCGBlendModeNormal, alpha});
  }
  if (IsOnePixel(blit)) {
    return painter.FillWith({pixels->rgb[0], pixels->rgb[1], pixels->rgb[2]},
                            {kCGBlendModeNormal, alpha * ChannelOnPage(pixels->alpha[0])});
  }
  const auto image = ImageOf(blit, std::move(pixels->rgb));
  const auto mask = SoftMaskOf(std::move(pixels->alpha), blit);
  painter.Draw(CFOwned<const CGImage>(CGImageCreateWithMask(image.get(), mask.get())),
               {kCGBlendModeNormal, alpha});
}

}  // namespace kelvane
