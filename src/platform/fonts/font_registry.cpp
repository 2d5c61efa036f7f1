#include "platform/fonts/font_registry.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace kelvane {
namespace {

constexpr const char* kDefaultFamily = "Helvetica";
constexpr FontID kFirstFont = 10000;  // above the default's

// Names and characters come from anybody's file; what is remembered of them is bounded, for all
// fonts together. What no font has is found out as fast as it could be remembered.
constexpr std::size_t kMostNames = 4096;
constexpr std::size_t kMostStandIns = 65536;

InstalledFace Regular() {
  InstalledFace face;
  face.weight = FC_WEIGHT_REGULAR;
  face.slant = FC_SLANT_ROMAN;
  face.width = FC_WIDTH_NORMAL;
  return face;
}

bool IsUpright(const InstalledFace& face) {
  return face.slant == FC_SLANT_ROMAN;
}

// Weights lie between 0 and 215. A slant can be made up better than a weight, and neither is worth
// another width.
int Distance(const InstalledFace& face, const InstalledFace& wanted) {
  const int slant = IsUpright(face) == IsUpright(wanted) ? 0 : 250;
  return 10 * std::abs(face.width - wanted.width) + slant + std::abs(face.weight - wanted.weight);
}

StyledFace Styled(const Typeface* typeface, const InstalledFace& face, bool isBold, bool isItalic) {
  return {typeface, isItalic && IsUpright(face), isBold && face.weight < FC_WEIGHT_DEMIBOLD};
}

}  // namespace

FontRegistry& FontRegistry::Shared() {
  static auto* const kShared = new FontRegistry;  // threads may outlive static objects
  return *kShared;
}

FontID FontRegistry::FindByFullName(const std::string& name) {
  const std::scoped_lock lock(mutex_);
  return FindOnce(fullNames_, name, [&]() -> std::optional<InstalledFace> {
    const auto face = Closest(Catalog().FacesOfFullName(name), Regular());
    return face ? face : RegularFace(name);
  });
}

FontID FontRegistry::FindByFamily(const std::string& name) {
  const std::scoped_lock lock(mutex_);
  return FindOnce(families_, name, [&] { return RegularFace(name); });
}

template <class LookUp>
FontID FontRegistry::FindOnce(Names& known, const std::string& name, const LookUp& lookUp) {
  const auto entry = known.find(name);
  if (entry != known.end()) return entry->second;
  if (known.size() >= kMostNames) known.clear();
  const std::optional<InstalledFace> face = name.empty() ? std::nullopt : lookUp();
  return known[name] = face ? IdOf(*face) : kNoFont;
}

FontCatalog& FontRegistry::Catalog() {
  if (!catalog_) catalog_.emplace();
  return *catalog_;
}

const Typeface* FontRegistry::Open(const InstalledFace& face) {
  const FaceKey key = {face.path, face.index};
  auto entry = typefaces_.find(key);
  if (entry == typefaces_.end()) {
    entry = typefaces_
                .emplace(key, face.path.empty() ? Typeface::StandardHelvetica()
                                                : Typeface::Open(face.path, face.index))
                .first;
  }
  return entry->second.get();
}

std::optional<InstalledFace> FontRegistry::Closest(std::vector<InstalledFace> faces,
                                                   const InstalledFace& wanted) {
  std::ranges::sort(faces, {}, [&](const InstalledFace& face) {
    return std::tuple(Distance(face, wanted), face.path, face.index);
  });
  const auto closest =
      std::ranges::find_if(faces, [this](const auto& face) { return Open(face) != nullptr; });
  if (closest == faces.end()) return std::nullopt;
  return *closest;
}

std::optional<InstalledFace> FontRegistry::RegularFace(const std::string& family) {
  for (const std::string& equivalent : Catalog().Equivalents(family)) {
    auto face = Closest(Catalog().FacesOfFamily(equivalent), Regular());
    if (face) return face;
  }
  return std::nullopt;
}

FontID FontRegistry::IdOf(const InstalledFace& face) {
  const FaceKey key = {face.path, face.index};
  const auto known = ids_.find(key);
  if (known != ids_.end()) return known->second;
  const auto id = kFirstFont + static_cast<FontID>(ids_.size());
  fonts_[id] = {face, Catalog().FacesOfFamily(face.family), {}};
  ids_.emplace(key, id);
  return id;
}

FontRegistry::Font& FontRegistry::FontOf(FontID id) {
  const auto known = fonts_.find(id);
  if (known != fonts_.end()) return known->second;
  const auto standard = fonts_.find(kDefaultFont);
  if (standard != fonts_.end()) return standard->second;
  const InstalledFace face = DefaultFace();
  Font font = {face, {face}, {}};
  if (!face.path.empty()) font.family = Catalog().FacesOfFamily(face.family);
  return fonts_.emplace(kDefaultFont, std::move(font)).first->second;
}

// The face that comes closest to Helvetica; without any font, Helvetica itself as readers have it.
InstalledFace FontRegistry::DefaultFace() {
  const FaceSet faces = Catalog().StandIns(kDefaultFamily, FC_WEIGHT_REGULAR, FC_SLANT_ROMAN);
  for (std::size_t i = 0; i < faces.Size(); ++i) {
    if (Open(faces.At(i)) != nullptr) return faces.At(i);
  }
  return Regular();
}

const FontStyle& FontRegistry::Style(FontID font, bool isBold, bool isItalic) {
  const std::scoped_lock lock(mutex_);
  Font& found = FontOf(font);
  const FontStyle*& style = found.styles[{isBold, isItalic}];
  if (style == nullptr) style = &MakeStyle(found, isBold, isItalic);
  return *style;
}

const FontStyle& FontRegistry::MakeStyle(const Font& font, bool isBold, bool isItalic) {
  InstalledFace wanted = font.face;
  if (isBold) wanted.weight = std::max(wanted.weight, FC_WEIGHT_BOLD);
  if (isItalic) wanted.slant = std::max(wanted.slant, FC_SLANT_ITALIC);
  const InstalledFace face = Closest(font.family, wanted).value_or(font.face);
  return styles_.emplace_back(Styled(Open(face), face, isBold, isItalic), wanted, isBold, isItalic);
}

std::optional<StyledFace> FontRegistry::StandIn(const FontStyle& style, char32_t character) {
  const std::scoped_lock lock(mutex_);
  auto known = style.standIns_.find(character);
  if (known == style.standIns_.end()) {
    const FaceSet& candidates = Candidates(style);
    if (!candidates.CoversAnywhere(character)) return std::nullopt;
    known = Remember(style, character, FindStandIn(style, candidates, character));
  }
  if (known->second.typeface == nullptr) return std::nullopt;
  return known->second;
}

FontStyle::StandIns::iterator FontRegistry::Remember(const FontStyle& style, char32_t character,
                                                     const StyledFace& face) {
  if (standInCount_ >= kMostStandIns) {
    for (const FontStyle& other : styles_)
      other.standIns_ = {};
    standInCount_ = 0;
  }
  const auto entry = style.standIns_.emplace(character, face).first;
  ++standInCount_;
  return entry;
}

const FaceSet& FontRegistry::Candidates(const FontStyle& style) {
  if (!style.candidates_) {
    const InstalledFace& wanted = style.wanted_;
    style.candidates_ = Catalog().StandIns(wanted.family, wanted.weight, wanted.slant);
  }
  return *style.candidates_;
}

StyledFace FontRegistry::FindStandIn(const FontStyle& style, const FaceSet& candidates,
                                     char32_t character) {
  for (std::size_t i = 0; i < candidates.Size(); ++i) {
    if (!candidates.Covers(i, character)) continue;
    const InstalledFace face = candidates.At(i);
    const Typeface* const typeface = Open(face);
    if (typeface != nullptr && typeface->GlyphFor(character)) {
      return Styled(typeface, face, style.isBold_, style.isItalic_);
    }
  }
  return {};
}

}  // namespace kelvane
