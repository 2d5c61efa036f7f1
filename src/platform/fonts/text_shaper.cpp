#include "platform/fonts/text_shaper.h"

#include <algorithm>
#include <array>
#include <new>
#include <span>

#include "base/unicode.h"
#include "platform/quartz/harfbuzz_owned.h"

namespace kelvane {
namespace {

constexpr bool RunsLeft(const LineItem& item) {
  return item.level % 2 != 0;
}

bool IsShapedWith(const LineItem& item, const LineItem& neighbour) {
  return item.level == neighbour.level && item.script == neighbour.script &&
         item.face == neighbour.face;
}

/// A stretch of characters that are shaped together.
struct Stretch {
  std::size_t start;  // units
  std::size_t end;
  const LineItem* item;  // any of its characters
};

/// Cuts a line into stretches, from left to right.
std::vector<Stretch> Stretches(std::vector<LineItem>& items, LineDirection direction) {
  std::vector<Stretch> stretches;
  const LineItem* previous = nullptr;
  for (const int index : OrderLine(items, direction)) {
    const LineItem& item = items[static_cast<std::size_t>(index)];
    const std::size_t end = item.start + item.units;
    const bool continues = previous != nullptr && IsShapedWith(*previous, item) &&
                           (stretches.back().end == item.start || stretches.back().start == end);
    if (continues) {
      stretches.back().start = std::min(stretches.back().start, item.start);
      stretches.back().end = std::max(stretches.back().end, end);
    } else {
      stretches.push_back({item.start, end, &item});
    }
    previous = &item;
  }
  return stretches;
}

/// What of a font's features is a matter of taste. Those that a script needs stay.
constexpr std::array kRefinements = {
    hb_feature_t{HB_TAG('k', 'e', 'r', 'n'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
    hb_feature_t{HB_TAG('l', 'i', 'g', 'a'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
    hb_feature_t{HB_TAG('c', 'l', 'i', 'g'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
};

class LineShaper {
 public:
  LineShaper(std::u16string_view text, bool isRefined, double pen)
      : text_(text),
        switchedOff_(isRefined ? std::span<const hb_feature_t>() : kRefinements),
        buffer_(hb_buffer_create()),
        pen_(pen) {
    if (hb_buffer_allocation_successful(buffer_.get()) == 0) throw std::bad_alloc();
  }

  void Add(const Stretch& stretch) {
    const StyledFace& face = stretch.item->face;
    if (face.typeface == nullptr) return;
    Shape(stretch);
    if (runs_.empty() || runs_.back().face != face) runs_.push_back({face, {}, {}});
    AddGlyphs(stretch);
  }

  std::vector<ShapedRun> TakeRuns() { return std::move(runs_); }
  [[nodiscard]] double Pen() const { return pen_; }

 private:
  void Shape(const Stretch& stretch) {
    hb_buffer_t* const buffer = buffer_.get();
    hb_buffer_clear_contents(buffer);
    hb_buffer_set_flags(buffer, HB_BUFFER_FLAG_REMOVE_DEFAULT_IGNORABLES);
    hb_buffer_set_direction(buffer, RunsLeft(*stretch.item) ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer, stretch.item->script);
    hb_buffer_add_utf16(buffer, reinterpret_cast<const std::uint16_t*>(text_.data()),
                        static_cast<int>(text_.size()), static_cast<unsigned>(stretch.start),
                        static_cast<int>(stretch.end - stretch.start));
    hb_shape(stretch.item->face.typeface->Shaper(), buffer, switchedOff_.data(),
             static_cast<unsigned>(switchedOff_.size()));
  }

  void AddGlyphs(const Stretch& stretch) {
    unsigned count = 0;
    const hb_glyph_info_t* const infos = hb_buffer_get_glyph_infos(buffer_.get(), &count);
    const hb_glyph_position_t* const positions =
        hb_buffer_get_glyph_positions(buffer_.get(), nullptr);
    const Typeface& typeface = *stretch.item->face.typeface;
    const double unitsPerEm = typeface.UnitsPerEm();
    for (unsigned i = 0; i < count; ++i) {
      if (infos[i].codepoint != 0 || typeface.ShowsMissing()) {
        CGPositionedGlyph& glyph = runs_.back().glyphs.emplace_back();
        glyph.glyph = static_cast<CGGlyph>(infos[i].codepoint);
        glyph.origin.x = static_cast<CGFloat>(pen_ + positions[i].x_offset / unitsPerEm);
        glyph.origin.y = static_cast<CGFloat>(positions[i].y_offset / unitsPerEm);
        glyph.text = TextOf({infos, count}, i, stretch);
        runs_.back().moves.push_back({pen_, positions[i].x_advance / unitsPerEm});
      }
      pen_ += positions[i].x_advance / unitsPerEm;
    }
  }

  // Glyphs of one cluster stand together and share its text; the first of them carries it.
  [[nodiscard]] std::u16string_view TextOf(std::span<const hb_glyph_info_t> glyphs, std::size_t at,
                                           const Stretch& stretch) const {
    const std::size_t start = glyphs[at].cluster;
    if (at > 0 && glyphs[at - 1].cluster == start) return {};
    std::size_t end = stretch.end;
    if (RunsLeft(*stretch.item)) {
      if (at > 0) end = glyphs[at - 1].cluster;
    } else {
      const auto next = std::ranges::find_if(
          glyphs.subspan(at), [&](const hb_glyph_info_t& glyph) { return glyph.cluster != start; });
      if (next != glyphs.subspan(at).end()) end = next->cluster;
    }
    return text_.substr(start, end - start);
  }

  std::u16string_view text_;
  std::span<const hb_feature_t> switchedOff_;
  HarfBuzzOwned<hb_buffer_t> buffer_;
  double pen_;  // ems
  std::vector<ShapedRun> runs_;
};

}  // namespace

std::vector<ShapedRun> ShapeLine(std::u16string_view text, const FontStyle& style,
                                 const LineSetting& setting, double& pen) {
  std::vector<LineItem> items = ItemizeLine(text, style, setting.usesStandIns);
  LineShaper shaper(text, setting.isRefined, pen);
  for (const Stretch& stretch : Stretches(items, setting.direction))
    shaper.Add(stretch);
  pen = shaper.Pen();
  return shaper.TakeRuns();
}

std::u16string_view FirstPiece(std::u16string_view text) {
  constexpr std::size_t kMostUnits = 2000;
  if (text.size() <= kMostUnits) return text;
  const std::size_t space = text.rfind(u' ', kMostUnits - 1);
  if (space != std::u16string_view::npos) return text.substr(0, space + 1);
  const bool splitsPair = IsHighSurrogate(text[kMostUnits - 1]) && IsLowSurrogate(text[kMostUnits]);
  return text.substr(0, splitsPair ? kMostUnits - 1 : kMostUnits);
}

}  // namespace kelvane
