#include "gdi/font_finder.h"

#include <algorithm>

#include "base/unicode.h"
#include "gdi/font_names.h"

namespace kelvane {
namespace {

std::u16string_view Trimmed(std::u16string_view name) {
  name.remove_prefix(std::min(name.find_first_not_of(u' '), name.size()));
  return name.substr(0, name.find_last_not_of(u' ') + 1);
}

/// @param name  with a mark before it when the face is for vertical writing.
std::u16string_view WithoutMark(std::u16string_view name) {
  return name.starts_with(u'@') ? name.substr(1) : name;
}

/// True when a face has the symbols by their codes, or as the characters that they are.
bool Shows(const Typeface& face, const SymbolEncoding& symbols) {
  constexpr char16_t kAnyCode = u'a';
  return face.Font()->Description().hasSymbolCodes ||
         face.GlyphFor(symbols.CharacterOf(kAnyCode)).has_value();
}

}  // namespace

FoundFont FontFinder::Find(std::u16string_view faceName, PitchAndFamily kind) {
  if (const auto found = FindKnown(faceName)) return *found;
  for (const std::string_view face : {FaceOfKind(kind), kFaceOfLastResort}) {
    if (auto found = FindInstead(face)) {
      found->name = faceName;
      return *found;
    }
  }
  return {.name = faceName};
}

std::optional<FoundFont> FontFinder::FindKnown(std::u16string_view faceName) {
  if (IsSpent()) return std::nullopt;
  ++names_;
  if (auto found = FindWished(ToUTF8(faceName))) {
    found->name = WithoutMark(faceName);
    return found;
  }
  for (std::u16string_view rest = faceName; !rest.empty();) {
    const std::size_t end = std::min(rest.find(u';'), rest.size());
    const std::u16string_view name = WithoutMark(Trimmed(rest.substr(0, end)));
    const SymbolEncoding* const symbols = FindSymbolEncoding(name);
    auto found = symbols == nullptr ? FindOne(ToUTF8(name)) : FindSymbols(ToUTF8(name), *symbols);
    if (found) {
      found->name = name;
      return found;
    }
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (!rest.empty()) ++names_;
  }
  return std::nullopt;
}

std::optional<FoundFont> FontFinder::FindOne(const std::string& name) {
  if (auto found = FindWished(name)) return found;
  if (auto found = FindNamed(name)) return found;
  const auto shorter = WithoutScript(name);
  return shorter ? FindOne(*shorter) : std::nullopt;
}

// What stands elsewhere for a font of symbols may have them in the place of letters and signs.
std::optional<FoundFont> FontFinder::FindSymbols(const std::string& name,
                                                 const SymbolEncoding& symbols) {
  if (auto found = FindWished(name)) return found;
  const auto found = FindInstalled(name);
  if (found) {
    const StyledFace& face = registry_.Style(found->font, false, false, AnyFont).Face();
    if (Shows(*face.typeface, symbols)) return found;
  }
  return FindInstead(BaseOfSymbols(symbols));
}

// A wish is taken by the letter where it can be: a font is had by its name even if Windows means
// another by that.
std::optional<FoundFont> FontFinder::FindWished(const std::string& name) {
  const std::string wish = map_.Find(name);
  if (wish.empty()) return std::nullopt;
  auto found = FindInstalled(wish);
  if (!found) return FindInstead(wish);
  found->isOriginal = false;
  return found;
}

std::optional<FoundFont> FontFinder::FindNamed(std::string_view name) {
  const WindowsFontName* const known = FindWindowsFontName(name);
  if (known == nullptr) return FindAny(name);
  std::optional<FoundFont> found;
  for (const std::string_view face : known->faces) {
    if (!found) found = FindInstalled(face);
  }
  if (!found) found = FindAny(known->base);
  if (found) found->isBold = known->isBold;
  return found;
}

/// @param name  not the one that was asked for.
std::optional<FoundFont> FontFinder::FindInstead(std::string_view name) {
  auto found = FindNamed(name);
  if (found) found->isOriginal = false;
  return found;
}

std::optional<FoundFont> FontFinder::FindAny(std::string_view name) {
  if (auto found = FindInstalled(name)) return found;
  const FontID font = registry_.FindByFamily(std::string(name));
  if (font == kNoFont) return std::nullopt;
  return FoundFont{.font = font};
}

std::optional<FoundFont> FontFinder::FindInstalled(std::string_view name) {
  const FontID font = registry_.FindInstalled(std::string(name));
  if (font == kNoFont) return std::nullopt;
  return FoundFont{.font = font, .isOriginal = true};
}

}  // namespace kelvane
