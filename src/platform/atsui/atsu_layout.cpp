#include "platform/atsui/atsu_layout.h"

#include <cmath>
#include <cstring>
#include <numbers>
#include <span>

#include "platform/fonts/text_items.h"
#include "platform/fonts/text_shaper.h"

namespace kelvane {
namespace {

constexpr double kFixedOne = 65536;

std::u16string_view Part(std::u16string_view text, UniCharArrayOffset offset, UniCharCount length) {
  const std::size_t start = offset == kATSUFromTextBeginning ? 0 : offset;
  if (start >= text.size()) return {};
  return text.substr(start, length == kATSUToTextEnd ? std::u16string_view::npos : length);
}

template <class T>
OSStatus TakeValue(T& destination, ByteCount size, const void* value) {
  if (size != sizeof(T)) return kATSUInvalidAttributeSizeErr;
  std::memcpy(&destination, value, sizeof(T));
  return noErr;
}

OSStatus SetControl(ATSUTextLayoutObject& layout, ATSUAttributeTag tag, ByteCount size,
                    const void* value) {
  switch (tag) {
    case kATSULineRotationTag:
      return TakeValue(layout.rotation, size, value);
    case kATSUCGContextTag:
      return TakeValue(layout.context, size, value);
    default:
      return kATSUInvalidAttributeTagErr;
  }
}

/// A quarter turn is exact.
CGAffineTransform Rotation(Fixed degrees) {
  constexpr Fixed kQuarterTurn = 90 << 16;
  if (degrees % kQuarterTurn == 0) {
    constexpr CGFloat kCosines[] = {1, 0, -1, 0};
    const int quarters = (degrees / kQuarterTurn) & 3;
    const CGFloat cosine = kCosines[quarters];
    const CGFloat sine = kCosines[(quarters + 3) & 3];
    return {cosine, sine, -sine, cosine, 0, 0};
  }
  const double radians = degrees / kFixedOne / 180 * std::numbers::pi;
  const auto cosine = static_cast<CGFloat>(std::cos(radians));
  const auto sine = static_cast<CGFloat>(std::sin(radians));
  return {cosine, sine, -sine, cosine, 0, 0};
}

/// Where a line is drawn, in which size.
struct LinePlace {
  CGContextRef context;
  CGFloat size;
  CGAffineTransform matrix;  // text space to user space
};

void DrawGlyphs(const LinePlace& place, const StyledFace& face,
                std::span<const CGPositionedGlyph> placed) {
  place.context->DrawGlyphRun(
      {face.typeface->Font(), place.size, place.matrix, placed, face.isSlanted, face.isEmboldened});
}

/// Draws one unit, which needs no shaping.
void DrawUnit(const LinePlace& place, std::u16string_view unit, const FontStyle& style,
              bool usesStandIns) {
  if (MarksNothing(unit[0]) || OnlySteers(unit[0])) return;
  StyledFace face = style.Face();
  auto glyph = face.typeface->GlyphFor(unit[0]);
  if (!glyph) {
    face = FaceFor(unit[0], style, usesStandIns);
    glyph = face.typeface->GlyphFor(unit[0]);
  }
  if (!glyph && !face.typeface->ShowsMissing()) return;
  const CGPositionedGlyph placed = {glyph.value_or(0), {}, unit};
  DrawGlyphs(place, face, {&placed, 1});
}

void DrawLine(const LinePlace& place, std::u16string_view text, const FontStyle& style,
              bool usesStandIns) {
  double pen = 0;
  while (!text.empty()) {
    const std::u16string_view piece = FirstPiece(text);
    for (ShapedRun& run : ShapeLine(piece, style, {.usesStandIns = usesStandIns}, pen)) {
      for (CGPositionedGlyph& glyph : run.glyphs) {
        glyph.origin = {glyph.origin.x * place.size, glyph.origin.y * place.size};
      }
      DrawGlyphs(place, run.face, run.glyphs);
    }
    text.remove_prefix(piece.size());
  }
}

}  // namespace

OSStatus ATSUCreateTextLayoutWithTextPtr(const UniChar* text, UniCharArrayOffset offset,
                                         UniCharCount length, UniCharCount totalLength,
                                         ItemCount runCount, const UniCharCount* /*runLengths*/,
                                         const ATSUStyle* styles, ATSUTextLayout* layout) {
  if (runCount != 1) return paramErr;
  *layout = new ATSUTextLayoutObject(CFShare(styles[0]));
  return ATSUSetTextPointerLocation(*layout, text, offset, length, totalLength);
}

OSStatus ATSUSetTextPointerLocation(ATSUTextLayout layout, const UniChar* text,
                                    UniCharArrayOffset offset, UniCharCount length,
                                    UniCharCount totalLength) {
  layout->text = Part({text, totalLength}, offset, length);
  return noErr;
}

OSStatus ATSUSetTransientFontMatching(ATSUTextLayout layout, bool isOn) {
  layout->usesStandIns = isOn;
  return noErr;
}

OSStatus ATSUSetLayoutControls(ATSUTextLayout layout, ItemCount count, const ATSUAttributeTag* tags,
                               const ByteCount* sizes, const void* const* values) {
  OSStatus status = noErr;
  for (ItemCount i = 0; i < count; ++i) {
    const OSStatus one = SetControl(*layout, tags[i], sizes[i], values[i]);
    if (status == noErr) status = one;
  }
  return status;
}

OSStatus ATSUDrawText(ATSUTextLayout layout, UniCharArrayOffset offset, UniCharCount length,
                      ATSUTextMeasurement x, ATSUTextMeasurement y) {
  if (layout->context == nullptr) return paramErr;
  const std::u16string_view text = Part(layout->text, offset, length);
  if (text.empty() || layout->style->size <= 0) return noErr;

  LinePlace place = {layout->context, static_cast<CGFloat>(layout->style->size / kFixedOne),
                     Rotation(layout->rotation)};
  place.matrix.tx = static_cast<CGFloat>(static_cast<double>(x) / kFixedOne);
  place.matrix.ty = static_cast<CGFloat>(static_cast<double>(y) / kFixedOne);
  const FontStyle& style = layout->style->Style(layout->context->FontFilter());
  if (text.size() == 1) {
    DrawUnit(place, text, style, layout->usesStandIns);
  } else {
    DrawLine(place, text, style, layout->usesStandIns);
  }
  return noErr;
}

OSStatus ATSUDisposeTextLayout(ATSUTextLayout layout) noexcept {
  CFRelease(layout);
  return noErr;
}

}  // namespace kelvane
