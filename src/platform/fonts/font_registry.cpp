#include "platform/fonts/font_registry.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <tuple>

#include "platform/fonts/fontconfig_catalog.h"

namespace kelvane {
namespace {

constexpr const char* kDefaultFamily = "Helvetica";
constexpr FontID kFirstFont = 10000;  // above the default's

// Names and characters come from anybody's file; what is remembered of them is bounded, for all
// fonts together. What no font has is found out as fast as it could be remembered.
constexpr std::size_t kMostNames = 4096;
constexpr std::size_t kMostStandIns = 65536;

bool IsUpright(const InstalledFace& face) {
  return face.slant == kUpright;
}

// Weights lie between 0 and 215. A slant can be made up better than a weight, and neither is worth
// another width.
int Distance(const InstalledFace& face, const InstalledFace& wanted) {
  const int slant = IsUpright(face) == IsUpright(wanted) ? 0 : 250;
  return 10 * std::abs(face.width - wanted.width) + slant + std::abs(face.weight - wanted.weight);
}

StyledFace Styled(const Typeface* typeface, const InstalledFace& face, bool isBold, bool isItalic) {
  return {typeface, isItalic && IsUpright(face), isBold && face.weight < kDemiBoldWeight};
}

// Time is asked for at each name; to a few milliseconds it costs next to nothing.
std::chrono::steady_clock::time_point CoarseTime() {
  timespec time = {};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
  return std::chrono::steady_clock::time_point(std::chrono::seconds(time.tv_sec) +
                                               std::chrono::nanoseconds(time.tv_nsec));
}

}  // namespace

std::optional<StyledFace> FontStyle::StandIn(char32_t character) const {
  return registry_.StandIn(number_, character);
}

FontRegistry& FontRegistry::Shared() {
  static auto* const kShared = new FontRegistry;  // threads may outlive static objects
  return *kShared;
}

FontRegistry::FontRegistry() : FontRegistry([] { return OpenInstalledFonts(); }) {}

FontRegistry::FontRegistry(CatalogOpener openCatalog)
    : FontRegistry(std::move(openCatalog), CoarseTime) {}

FontID FontRegistry::FindByFullName(const std::string& name) {
  const std::scoped_lock lock(mutex_);
  SeeChanges();
  return FindOnce(fullNames_, name, [&]() -> std::optional<InstalledFace> {
    const auto face = Closest(Catalog().FacesOfFullName(name), InstalledFace{}, AnyFont);
    return face ? face : RegularFace(name);
  });
}

FontID FontRegistry::FindByFamily(const std::string& name) {
  const std::scoped_lock lock(mutex_);
  SeeChanges();
  return FindOnce(families_, name, [&] { return RegularFace(name); });
}

FontID FontRegistry::FindInstalled(const std::string& name) {
  const std::scoped_lock lock(mutex_);
  SeeChanges();
  return FindOnce(installed_, name, [&] {
    const auto face = Closest(Catalog().FacesOfFamily(name), InstalledFace{}, AnyFont);
    return face ? face : Closest(Catalog().FacesOfFullName(name), InstalledFace{}, AnyFont);
  });
}

void FontRegistry::SeeChanges() {
  if (catalog_ == nullptr) return;
  const auto now = clock_();
  if (now < nextCheck_) return;
  if (!catalog_->IsUpToDate()) {
    auto current = openCatalog_();
    Forget();
    catalog_ = std::move(current);
  }
  nextCheck_ = now + kCheckInterval;
}

// Numbers, styles and faces may be in use, so they stay as they are; but a style or a stand-in that
// was chosen among other fonts is not given to anybody any more.
void FontRegistry::Forget() noexcept {
  fullNames_.clear();
  families_.clear();
  installed_.clear();
  defaultFonts_.clear();
  for (auto& [id, font] : fonts_) {
    font.family.reset();
    font.styles.clear();
  }
  for (KnownStyle& style : styles_) {
    style.candidates.reset();
    style.standIns.clear();
  }
  standInCount_ = 0;
  std::erase_if(typefaces_, [](const auto& entry) { return entry.second == nullptr; });
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
  if (catalog_ == nullptr) {
    catalog_ = openCatalog_();
    nextCheck_ = clock_() + kCheckInterval;
  }
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

// The last resort is not asked about: there is nothing else.
const Typeface* FontRegistry::OpenShown(const InstalledFace& face, CGFontFilter filter) {
  const Typeface* const typeface = Open(face);
  const bool isShown =
      typeface != nullptr && (face.path.empty() || filter(typeface->Font()->Description()));
  return isShown ? typeface : nullptr;
}

std::optional<InstalledFace> FontRegistry::Closest(std::vector<InstalledFace> faces,
                                                   const InstalledFace& wanted,
                                                   CGFontFilter filter) {
  std::ranges::sort(faces, {}, [&](const InstalledFace& face) {
    return std::tuple(Distance(face, wanted), !face.isPreferred, face.path, face.index);
  });
  const auto closest = std::ranges::find_if(
      faces, [&](const auto& face) { return OpenShown(face, filter) != nullptr; });
  if (closest == faces.end()) return std::nullopt;
  return *closest;
}

std::optional<InstalledFace> FontRegistry::RegularFace(const std::string& family) {
  for (const std::string& equivalent : Catalog().Equivalents(family)) {
    auto face = Closest(Catalog().FacesOfFamily(equivalent), InstalledFace{}, AnyFont);
    if (face) return face;
  }
  return std::nullopt;
}

FontID FontRegistry::IdOf(const InstalledFace& face) {
  const FaceKey key = {face.path, face.index};
  const auto known = ids_.find(key);
  if (known != ids_.end()) return known->second;
  const auto id = kFirstFont + static_cast<FontID>(ids_.size());
  fonts_[id] = {face, std::nullopt};
  ids_.emplace(key, id);
  return id;
}

FontRegistry::Font& FontRegistry::FontOf(FontID id, CGFontFilter filter) {
  const auto known = fonts_.find(id);
  return known != fonts_.end() ? known->second : DefaultFont(filter);
}

FontRegistry::Font& FontRegistry::DefaultFont(CGFontFilter filter) {
  const auto known = defaultFonts_.find(filter);
  if (known != defaultFonts_.end()) return known->second;
  return defaultFonts_.emplace(filter, Font{DefaultFace(filter), std::nullopt}).first->second;
}

// The face that comes closest to Helvetica; without any font, Helvetica itself as readers have it.
InstalledFace FontRegistry::DefaultFace(CGFontFilter filter) {
  const auto faces = Catalog().StandIns(kDefaultFamily, kRegularWeight, kUpright);
  for (std::size_t i = 0; i < faces->Size(); ++i) {
    if (OpenShown(faces->At(i), filter) != nullptr) return faces->At(i);
  }
  return {};
}

const FontStyle& FontRegistry::Style(FontID font, bool isBold, bool isItalic, CGFontFilter filter) {
  const std::scoped_lock lock(mutex_);
  return StyleOf(FontOf(font, filter), isBold, isItalic, filter);
}

const FontStyle& FontRegistry::StyleOf(Font& font, bool isBold, bool isItalic,
                                       CGFontFilter filter) {
  const FontStyle*& style = font.styles[filter][(isBold ? 2U : 0U) + (isItalic ? 1U : 0U)];
  if (style == nullptr) style = &MakeStyle(font, {font.face, isBold, isItalic, filter});
  return *style;
}

const FontStyle& FontRegistry::MakeStyle(Font& font, Wish wish) {
  if (wish.isBold) wish.face.weight = std::max(wish.face.weight, kBoldWeight);
  if (wish.isItalic) wish.face.slant = std::max(wish.face.slant, kItalic);
  auto face = ClosestOfFamily(font, wish);
  if (!face) {
    face = ClosestOfEquivalents(wish);
    if (!face) return StyleOf(DefaultFont(wish.filter), wish.isBold, wish.isItalic, wish.filter);
    wish.face.family = face->family;
  }
  const StyledFace styled = Styled(Open(*face), *face, wish.isBold, wish.isItalic);
  std::string family = face->path.empty() ? kDefaultFamily : face->family;
  FontStyle style(*this, styles_.size(), styled, std::move(family));
  styles_.push_back({std::move(style), std::move(wish)});
  return styles_.back().style;
}

// A catalogue may list a face under other names than it is found by.
std::optional<InstalledFace> FontRegistry::ClosestOfFamily(Font& font, const Wish& wish) {
  const bool isInstalled = !font.face.path.empty();
  if (!font.family && isInstalled) font.family = Catalog().FacesOfFamily(font.face.family);
  std::optional<InstalledFace> face;
  if (font.family) face = Closest(*font.family, wish.face, wish.filter);
  if (!face && OpenShown(font.face, wish.filter) != nullptr) face = font.face;
  return face;
}

std::optional<InstalledFace> FontRegistry::ClosestOfEquivalents(const Wish& wish) {
  for (const std::string& family : Catalog().Equivalents(wish.face.family)) {
    auto face = Closest(Catalog().FacesOfFamily(family), wish.face, wish.filter);
    if (face) return face;
  }
  return std::nullopt;
}

std::optional<StyledFace> FontRegistry::StandIn(std::size_t number, char32_t character) {
  const std::scoped_lock lock(mutex_);
  KnownStyle& style = styles_[number];
  auto known = style.standIns.find(character);
  if (known == style.standIns.end()) {
    if (!Candidates(style).CoversAnywhere(character)) return std::nullopt;
    known = Remember(style, character, FindStandIn(style, character));
  }
  if (known->second.typeface == nullptr) return std::nullopt;
  return known->second;
}

FontRegistry::StandIns::iterator FontRegistry::Remember(KnownStyle& style, char32_t character,
                                                        const StyledFace& face) {
  if (standInCount_ >= kMostStandIns) {
    for (KnownStyle& other : styles_)
      other.standIns = {};
    standInCount_ = 0;
  }
  const auto entry = style.standIns.emplace(character, face).first;
  ++standInCount_;
  return entry;
}

const FaceSet& FontRegistry::Candidates(KnownStyle& style) {
  if (!style.candidates) {
    const InstalledFace& wanted = style.wish.face;
    style.candidates = Catalog().StandIns(wanted.family, wanted.weight, wanted.slant);
  }
  return *style.candidates;
}

StyledFace FontRegistry::FindStandIn(KnownStyle& style, char32_t character) {
  const FaceSet& candidates = Candidates(style);
  for (std::size_t i = 0; i < candidates.Size(); ++i) {
    if (!candidates.Covers(i, character)) continue;
    const InstalledFace face = candidates.At(i);
    const Typeface* const typeface = OpenShown(face, style.wish.filter);
    if (typeface != nullptr && typeface->GlyphFor(character)) {
      return Styled(typeface, face, style.wish.isBold, style.wish.isItalic);
    }
  }
  return {};
}

}  // namespace kelvane
