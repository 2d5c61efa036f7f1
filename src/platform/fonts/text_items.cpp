#include "platform/fonts/text_items.h"

#include <new>
#include <numeric>

#include "base/unicode.h"
#include "platform/fonts/fribidi_library.h"

namespace kelvane {
namespace {

hb_unicode_general_category_t CategoryOf(char32_t character) {
  return hb_unicode_general_category(hb_unicode_funcs_get_default(), character);
}

bool IsMark(char32_t character) {
  const auto category = CategoryOf(character);
  return category == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK ||
         category == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK ||
         category == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK;
}

/// The characters before another as one, where Unicode has one for them.
char32_t Composed(char32_t base, char32_t mark) {
  hb_codepoint_t whole = 0;
  return hb_unicode_compose(hb_unicode_funcs_get_default(), base, mark, &whole) != 0 ? whole : 0;
}

/// Chooses faces along a line. A mark stays with its base where it can, so that the face can place
/// it or has a glyph for both together.
class FaceChooser {
 public:
  FaceChooser(const FontStyle& style, bool usesStandIns)
      : style_(style), usesStandIns_(usesStandIns) {}

  StyledFace Next(char32_t character) {
    if (MarksNothing(character)) {
      before_ = {};
    } else if (before_.typeface == nullptr || !OnlySteers(character)) {
      const char32_t whole = IsMark(character) ? Composed(base_, character) : 0;
      const bool stays = before_.typeface != nullptr && IsMark(character) &&
                         (before_.typeface->GlyphFor(character) ||
                          (whole != 0 && before_.typeface->GlyphFor(whole)));
      if (!stays) before_ = FaceFor(character, style_, usesStandIns_);
      base_ = whole != 0 ? whole : character;
    }
    return before_;
  }

 private:
  const FontStyle& style_;
  bool usesStandIns_;
  StyledFace before_;  // of the character before
  char32_t base_ = 0;  // that character, together with its own base where they are one
};

FriBidiParType ParagraphType(LineDirection direction) {
  switch (direction) {
    case LineDirection::kRightwards:
      return FRIBIDI_PAR_LTR;
    case LineDirection::kLeftwards:
      return FRIBIDI_PAR_RTL;
    case LineDirection::kByText:
      break;
  }
  return FRIBIDI_PAR_ON;
}

// Punctuation, digits and marks are set as the script before them; at the start of a line, as the
// one behind.
void SpreadScripts(std::vector<LineItem>& items) {
  const auto isOpen = [](hb_script_t script) {
    return script == HB_SCRIPT_COMMON || script == HB_SCRIPT_INHERITED;
  };
  hb_script_t script = HB_SCRIPT_COMMON;
  for (const LineItem& item : items) {
    if (isOpen(item.script)) continue;
    script = item.script;
    break;
  }
  for (LineItem& item : items) {
    if (isOpen(item.script)) {
      item.script = script;
    } else {
      script = item.script;
    }
  }
}

}  // namespace

bool MarksNothing(char32_t character) {
  const auto category = CategoryOf(character);
  return category == HB_UNICODE_GENERAL_CATEGORY_CONTROL ||
         category == HB_UNICODE_GENERAL_CATEGORY_SURROGATE;
}

bool OnlySteers(char32_t character) {
  const auto category = CategoryOf(character);
  const bool isVariationSelector = (character >= 0xFE00 && character <= 0xFE0F) ||
                                   (character >= 0xE0100 && character <= 0xE01EF);
  return category == HB_UNICODE_GENERAL_CATEGORY_FORMAT ||
         category == HB_UNICODE_GENERAL_CATEGORY_LINE_SEPARATOR ||
         category == HB_UNICODE_GENERAL_CATEGORY_PARAGRAPH_SEPARATOR || isVariationSelector;
}

StyledFace FaceFor(char32_t character, const FontStyle& style, bool usesStandIns) {
  if (!usesStandIns || style.Face().typeface->GlyphFor(character)) return style.Face();
  return style.StandIn(character).value_or(style.Face());
}

std::vector<LineItem> ItemizeLine(std::u16string_view text, const FontStyle& style,
                                  bool usesStandIns) {
  std::vector<LineItem> items;
  FaceChooser faces(style, usesStandIns);
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCharacter decoded = DecodeUTF16(text, at);
    LineItem& item = items.emplace_back();
    item.start = at;
    item.units = decoded.units;
    item.character = decoded.character;
    item.face = faces.Next(decoded.character);
    item.script = hb_unicode_script(hb_unicode_funcs_get_default(), decoded.character);
    at += decoded.units;
  }
  SpreadScripts(items);
  return items;
}

std::vector<int> OrderLine(std::vector<LineItem>& items, LineDirection lineDirection) {
  const auto length = static_cast<FriBidiStrIndex>(items.size());
  std::vector<FriBidiChar> characters;
  characters.reserve(items.size());
  for (const LineItem& item : items)
    characters.push_back(item.character);
  std::vector<FriBidiCharType> types(items.size());
  std::vector<FriBidiBracketType> brackets(items.size());
  std::vector<FriBidiLevel> levels(items.size());
  std::vector<FriBidiStrIndex> order(items.size());
  std::iota(order.begin(), order.end(), 0);

  fribidi_get_bidi_types(characters.data(), length, types.data());
  fribidi_get_bracket_types(characters.data(), length, types.data(), brackets.data());
  FriBidiParType direction = ParagraphType(lineDirection);
  constexpr FriBidiFlags kPlain = 0;
  const bool isDone = fribidi_get_par_embedding_levels_ex(types.data(), brackets.data(), length,
                                                          &direction, levels.data()) != 0 &&
                      fribidi_reorder_line(kPlain, types.data(), length, 0, direction,
                                           levels.data(), nullptr, order.data()) != 0;
  if (!isDone) throw std::bad_alloc();
  for (std::size_t i = 0; i < items.size(); ++i)
    items[i].level = levels[i];
  return order;
}

}  // namespace kelvane
