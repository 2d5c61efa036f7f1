#include "gdi/text_layout.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "base/unicode.h"
#include "platform/fonts/text_shaper.h"

namespace kelvane {
namespace {

/// Ranges of characters that are set one behind the other from left to right, each by a glyph of
/// its own: no script that joins or runs left, no marks, nothing that steers its neighbours.
bool IsPlain(char16_t unit) {
  struct Range {
    char16_t first;
    char16_t last;
  };
  constexpr Range kRanges[] = {
      {0x0000, 0x02FF}, {0x0370, 0x0482}, {0x048A, 0x052F}, {0x1E00, 0x200A}, {0x2010, 0x2027},
      {0x2030, 0x205E}, {0x2070, 0x20CF}, {0x2100, 0x2DDF}, {0x2E00, 0x3029}, {0x3030, 0x3098},
      {0x309B, 0xA66E}, {0xAC00, 0xD7A3}, {0xE000, 0xFAFF}, {0xFF00, 0xFFEF}};
  return std::ranges::any_of(
      kRanges, [unit](const Range& range) { return unit >= range.first && unit <= range.last; });
}

/// Characters of the East that stand upright in lines that run downwards.
bool IsWide(char32_t character) {
  return (character >= 0x1100 && character <= 0x115F) ||
         (character >= 0x2E80 && character <= 0xA4CF) ||
         (character >= 0xAC00 && character <= 0xD7A3) ||
         (character >= 0xF900 && character <= 0xFAFF) ||
         (character >= 0xFE30 && character <= 0xFE4F) ||
         (character >= 0xFF01 && character <= 0xFF60) ||
         (character >= 0xFFE0 && character <= 0xFFE6) ||
         (character >= 0x20000 && character <= 0x3FFFD);
}

/// A line on its way from left to right.
class LinePlacer {
 public:
  LinePlacer(const WrittenText& text, const TextFont& font, const TextFrame& frame,
             const Spacing& spacing, const std::function<void(PlacedLine&)>& take)
      : take_(take),
        text_(text),
        units_(text.units),
        style_(*font.style),
        em_(frame.em),
        font_(font),
        spacing_(spacing) {}

  /// @param advances  gets those of the face, one a unit.
  void Measure(std::vector<double>& advances) { measured_ = &advances; }

  /// Characters in the order in which they stand there.
  void PlaceInOrder() {
    for (std::size_t at = 0; at < units_.size();) {
      const DecodedCharacter decoded = DecodeUTF16(units_, at);
      PlaceCharacter(decoded.character, at, decoded.units);
      at += decoded.units;
      EndPieceIfFull();
    }
  }

  void PlaceGlyphs() {
    const StyledFace& face = style_.Face();
    for (std::size_t at = 0; at < units_.size(); ++at) {
      const CGGlyph glyph = units_[at];
      if (face.typeface->HasGlyph(glyph)) {
        Put(face, {glyph, Here(), {}});
      } else {
        line_.lacksCharacters = true;
      }
      Advance(at, 1, face.typeface->Font()->Advance(glyph));
      EndPieceIfFull();
    }
  }

  void PlaceShaped(LineDirection direction) {
    const LineSetting setting = {.usesStandIns = true, .isRefined = false, .direction = direction};
    double pen = 0;
    for (std::u16string_view rest = units_; !rest.empty();) {
      const std::u16string_view piece = FirstPiece(rest);
      const PointD behind = Behind(units_.size() - rest.size(), piece.size());
      for (const ShapedRun& run : ShapeLine(piece, style_, setting, pen))
        PlaceRun(run);
      if (!text_.advances.empty()) pen_ = behind;  // what makes no glyph has advances, too
      rest.remove_prefix(piece.size());
      EndPieceIfFull();
    }
  }

  void EndPiece() {
    line_.end = pen_;
    take_(line_);
    line_.runs.clear();
    glyphs_ = 0;
  }

 private:
  void EndPieceIfFull() {
    if (glyphs_ >= kMostUnitsOfAPiece) EndPiece();
  }

  [[nodiscard]] CGPoint Here() const {
    return {static_cast<CGFloat>(pen_.x), static_cast<CGFloat>(pen_.y)};
  }

  void Put(const StyledFace& face, const CGPositionedGlyph& glyph, bool isTurned = false) {
    const bool goesOn = !line_.runs.empty() && line_.runs.back().face == face &&
                        line_.runs.back().isTurned == isTurned;
    if (!goesOn) line_.runs.push_back({face, {}, isTurned});
    line_.runs.back().glyphs.push_back(glyph);
    ++glyphs_;
  }

  /// @return where the pen comes by the advances of units that are given; here without any.
  [[nodiscard]] PointD Behind(std::size_t start, std::size_t units) const {
    PointD pen = pen_;
    for (std::size_t i = start; i < start + units && i < text_.advances.size(); ++i)
      pen = {pen.x + text_.advances[i].x, pen.y + text_.advances[i].y};
    return pen;
  }

  /// @param natural  the advance of the face, ems.
  void Advance(std::size_t start, std::size_t units, double natural) {
    if (measured_ != nullptr) (*measured_)[start] += natural * em_;
    if (!text_.advances.empty()) {
      pen_ = Behind(start, units);
      return;
    }
    double width = natural * em_;
    if (spacing_.pixel > 0) width = std::rint(width / spacing_.pixel) * spacing_.pixel;
    pen_.x += width + spacing_.perUnit;
    if (units_[start] == u' ') pen_.x += spacing_.perSpace;
  }

  void PlaceCharacter(char32_t character, std::size_t at, std::size_t units) {
    if (MarksNothing(character) || OnlySteers(character)) return Advance(at, units, 0);
    if (font_.isVertical && IsWide(character)) return PlaceTurned(character, at, units);
    StyledFace face = style_.Face();
    auto glyph = face.typeface->GlyphFor(character);
    if (!glyph) {
      face = FaceFor(character, style_, true);
      glyph = face.typeface->GlyphFor(character);
      line_.lacksCharacters = line_.lacksCharacters || !glyph;
    }
    if (glyph || face.typeface->ShowsMissing())
      Put(face, {glyph.value_or(0), Here(), units_.substr(at, units)});
    Advance(at, units, face.typeface->Font()->Advance(glyph.value_or(0)));
  }

  /// A turned glyph has its foot to the right; its cell is as long as the line is high.
  void PlaceTurned(char32_t character, std::size_t at, std::size_t units) {
    const StyledFace face = FaceFor(character, style_, true);
    const auto glyph = face.typeface->VerticalGlyphFor(character);
    line_.lacksCharacters = line_.lacksCharacters || !glyph;
    const CGPoint foot = {static_cast<CGFloat>(pen_.x + font_.ascent),
                          static_cast<CGFloat>(pen_.y - font_.descent)};
    if (glyph || face.typeface->ShowsMissing())
      Put(face, {glyph.value_or(0), foot, units_.substr(at, units)}, true);
    Advance(at, units, (font_.ascent + font_.descent) / em_);
  }

  /// Glyphs of one cluster keep their places around its pen; each cluster moves on as its
  /// characters do.
  void PlaceRun(const ShapedRun& run) {
    for (std::size_t i = 0; i < run.glyphs.size();) {
      const std::size_t first = i;
      const double from = run.moves[first].from;
      double natural = 0;
      do {
        const CGPositionedGlyph& glyph = run.glyphs[i];
        line_.lacksCharacters = line_.lacksCharacters || glyph.glyph == 0;
        Put(run.face, {glyph.glyph,
                       {static_cast<CGFloat>(pen_.x + (glyph.origin.x - from) * em_),
                        static_cast<CGFloat>(pen_.y + glyph.origin.y * font_.em)},
                       glyph.text});
        natural += run.moves[i].by;
        ++i;
      } while (i < run.glyphs.size() && run.glyphs[i].text.empty());
      const std::u16string_view cluster = run.glyphs[first].text;
      if (cluster.empty()) {
        pen_.x += natural * em_;
      } else {
        Advance(static_cast<std::size_t>(cluster.data() - units_.data()), cluster.size(), natural);
      }
    }
  }

  const std::function<void(PlacedLine&)>& take_;
  const WrittenText& text_;
  std::u16string_view units_;
  const FontStyle& style_;
  double em_;  // logical units along the baseline
  const TextFont& font_;
  Spacing spacing_;
  std::vector<double>* measured_ = nullptr;
  PointD pen_;
  PlacedLine line_;         // since the last piece
  std::size_t glyphs_ = 0;  // in it
};

void Place(LinePlacer& placer, const WrittenText& text, const TextFont& font,
           const Reading& reading) {
  if (text.areGlyphs) {
    placer.PlaceGlyphs();
  } else if (reading.isOrdered || font.isVertical ||
             (!reading.isLeftwards && std::ranges::all_of(text.units, IsPlain))) {
    placer.PlaceInOrder();
  } else {
    placer.PlaceShaped(reading.isLeftwards ? LineDirection::kLeftwards
                                           : LineDirection::kRightwards);
  }
  placer.EndPiece();
}

}  // namespace

void PlaceText(const WrittenText& text, const TextFont& font, const TextFrame& frame,
               const Spacing& spacing, const Reading& reading,
               const std::function<void(PlacedLine& piece)>& take) {
  LinePlacer placer(text, font, frame, spacing, take);
  Place(placer, text, font, reading);
}

std::vector<double> MeasureText(const WrittenText& text, const TextFont& font,
                                const TextFrame& frame, const Reading& reading) {
  std::vector<double> advances(text.units.size());
  const std::function<void(PlacedLine&)> drop = [](PlacedLine&) {};
  LinePlacer placer(text, font, frame, {}, drop);
  placer.Measure(advances);
  Place(placer, text, font, reading);
  return advances;
}

}  // namespace kelvane
