#include "platform/svg/svg_text.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/unicode.h"
#include "platform/svg/svg_path.h"

namespace kelvane {
namespace {

/// @return whether the matrix, to a page whose y runs downwards, only makes upright text larger.
bool IsUpright(const CGAffineTransform& m) {
  constexpr CGFloat kAlike = 1e-5F;
  return m.b == 0 && m.c == 0 && m.a > 0 && std::abs(m.a + m.d) <= kAlike * m.a;
}

/// XML 1.0, 2.2; unpaired surrogates are none.
bool IsXmlCharacter(char32_t c) {
  const bool isControl = c < 0x20 && c != '\t' && c != '\n' && c != '\r';
  return !isControl && c != 0xFFFE && c != 0xFFFF && (c < 0xD800 || c > 0xDFFF);
}

/// The one character that a glyph stands for.
std::optional<char32_t> CharacterOf(std::u16string_view text) {
  if (text.empty()) return std::nullopt;
  const DecodedCharacter first = DecodeUTF16(text, 0);
  if (first.units != text.size() || !IsXmlCharacter(first.character)) return std::nullopt;
  return first.character;
}

/// Characters one after the other, as wide as they are.
struct TextPiece {
  std::int64_t x;  // steps of the grid, of the first
  std::int64_t y;
  std::string characters;
};

/// Gathers what may stand in one element. Places that are not those of the face's own widths are
/// told, piece by piece: not every program knows lists of them.
class TextWriter {
 public:
  TextWriter(const CGGlyphRun& run, const SvgTextFrame& frame, std::string_view paint,
             SvgFont& font)
      : run_(run), frame_(frame), paint_(paint), font_(font) {}

  void Write(const CGPositionedGlyph& glyph) {
    const auto character = CharacterOf(glyph.text);
    if (!character || !font_.Shows(glyph.glyph, *character)) return Outline(glyph);
    Gather(glyph);
  }

  std::string TakeText() {
    EndText(paint_);
    return std::move(text_);
  }

 private:
  void Gather(const CGPositionedGlyph& glyph) {
    constexpr double kTolerance = 0.01;  // ems
    const CGPoint at = frame_.At(glyph.origin);
    const std::int64_t y = frame_.Grid().Steps(at.y);
    const bool goesOn = !pieces_.empty() && pieces_.back().y == y &&
                        std::abs(at.x - pen_) <= kTolerance * frame_.FontSize();
    if (!goesOn) {
      pieces_.push_back({frame_.Grid().Steps(at.x), y, {}});
      pen_ = at.x;
    }
    pieces_.back().characters += SvgEscaped(glyph.text);
    pen_ += run_.font->Advance(glyph.glyph) * frame_.FontSize();
  }

  void Outline(const CGPositionedGlyph& glyph) {
    EndText(paint_);
    const CGPath outline = run_.font->Outline(glyph.glyph);
    if (outline.HasSegments()) {
      text_.append("<path").append(paint_);
      AppendSvgTransform(text_, "transform", frame_.Transform());
      text_ += " d=\"";
      text_ +=
          SvgPathData(outline, frame_.FromGlyph(glyph.origin, run_.font->Description().unitsPerEm),
                      frame_.Grid());
      text_ += "\"/>";
    }
    if (SvgEscaped(glyph.text).empty()) return;
    Gather(glyph);
    EndText(" fill-opacity=\"0\"");
  }

  void EndText(std::string_view paint) {
    if (pieces_.empty()) return;
    const TextPiece& first = pieces_.front();
    text_.append("<text class=\"").append(font_.Name()).append("\"");
    AppendSvgAttribute(text_, "font-size", frame_.FontSize());
    AppendSvgTransform(text_, "transform", frame_.Transform());
    text_ += paint;
    AppendPlace("x", first.x);
    AppendPlace("y", first.y);
    text_.append(">").append(first.characters);
    for (std::size_t i = 1; i < pieces_.size(); ++i) {
      text_ += "<tspan";
      AppendPlace("x", pieces_[i].x);
      if (pieces_[i].y != pieces_[i - 1].y) AppendPlace("y", pieces_[i].y);
      text_.append(">").append(pieces_[i].characters).append("</tspan>");
    }
    text_ += "</text>";
    pieces_.clear();
  }

  void AppendPlace(const char* name, std::int64_t place) {
    text_.append(" ").append(name).append("=\"");
    frame_.Grid().Append(text_, place);
    text_ += '"';
  }

  const CGGlyphRun& run_;
  const SvgTextFrame& frame_;
  std::string_view paint_;
  SvgFont& font_;
  std::string text_;
  std::vector<TextPiece> pieces_;  // of the element on its way
  double pen_ = 0;                 // behind the last character
};

}  // namespace

SvgTextFrame::SvgTextFrame(const CGGlyphRun& run, const SvgPage& page)
    : size_(run.size), fontSize_(run.size), grid_(page.grid) {
  constexpr CGAffineTransform kFlip = {1, 0, 0, -1, 0, 0};
  const CGAffineTransform toPage = CGAffineTransformConcat(run.matrix, page.fromPage);
  if (IsUpright(toPage)) {
    fromText_ = toPage;
    fontSize_ *= toPage.a;
    return;
  }
  fromText_ = kFlip;
  transform_ = CGAffineTransformConcat(kFlip, toPage);
  const double scale = LengthScale(transform_);
  if (scale > 0) grid_ = SvgGrid(page.Extent() / scale);
}

CGAffineTransform SvgTextFrame::FromGlyph(CGPoint origin, unsigned unitsPerEm) const {
  const CGFloat scale = size_ / static_cast<CGFloat>(unitsPerEm);
  return CGAffineTransformConcat({scale, 0, 0, scale, origin.x, origin.y}, fromText_);
}

std::string SvgText(const CGGlyphRun& run, const SvgTextFrame& frame, std::string_view paint,
                    SvgFont& font) {
  TextWriter writer(run, frame, paint, font);
  for (const CGPositionedGlyph& glyph : run.glyphs)
    writer.Write(glyph);
  return writer.TakeText();
}

std::string SvgEscaped(std::u16string_view text) {
  std::string escaped;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCharacter next = DecodeUTF16(text, at);
    switch (next.character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      default:
        if (IsXmlCharacter(next.character)) escaped += ToUTF8(text.substr(at, next.units));
    }
    at += next.units;
  }
  return escaped;
}

}  // namespace kelvane
