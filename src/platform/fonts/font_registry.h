#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/fonts/font_catalog.h"
#include "platform/fonts/typeface.h"

namespace kelvane {

class FontRegistry;

/// The number of a font that was found. Any number that no font has means the default font.
using FontID = std::uint32_t;
inline constexpr FontID kNoFont = 0;
inline constexpr FontID kDefaultFont = 8426;

/// A face to draw from, and what has to be made up for it.
struct StyledFace {
  const Typeface* typeface = nullptr;
  bool isSlanted = false;     // upright outlines are slanted
  bool isEmboldened = false;  // regular outlines are thickened

  friend bool operator==(const StyledFace&, const StyledFace&) = default;
};

/// A font in one style, for one kind of output. Belongs to its registry.
class FontStyle {
 public:
  FontStyle(FontRegistry& registry, std::size_t number, const StyledFace& face, std::string family)
      : registry_(registry), number_(number), face_(face), family_(std::move(family)) {}

  [[nodiscard]] const StyledFace& Face() const { return face_; }

  /// @return the name of the face's family, UTF-8.
  [[nodiscard]] const std::string& Family() const { return family_; }

  /// @return what a character that the face does not have is drawn from; nothing when no face of
  ///         the registry has it that the output can show.
  [[nodiscard]] std::optional<StyledFace> StandIn(char32_t character) const;

 private:
  FontRegistry& registry_;
  std::size_t number_;  // among the registry's styles
  StyledFace face_;
  std::string family_;
};

/// Fonts, each of which is looked up, opened and read once, for all threads. The catalogue is not
/// opened before the first question, and opened anew when fonts came or went, which is found out
/// when a name is looked up. What is handed out lives as long as the registry.
class FontRegistry {
 public:
  using CatalogOpener = std::function<std::unique_ptr<FontCatalog>()>;

  /// @return the one of this process, of the installed fonts, which lives until its end.
  static FontRegistry& Shared();

  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  /// How long fonts may have come or gone unseen.
  static constexpr std::chrono::seconds kCheckInterval{5};

  FontRegistry();  // of the installed fonts
  explicit FontRegistry(CatalogOpener openCatalog);
  FontRegistry(CatalogOpener openCatalog, Clock clock)
      : openCatalog_(std::move(openCatalog)), clock_(std::move(clock)) {}

  /// @param name  UTF-8.
  /// @return the face installed under the name, or else the regular face of a family that stands
  ///         for one with this name; kNoFont when there is none.
  FontID FindByFullName(const std::string& name);

  /// @param name  UTF-8.
  /// @return the regular face of the family, or else of one that stands for it; kNoFont when there
  ///         is none.
  FontID FindByFamily(const std::string& name);

  /// @param name  UTF-8.
  /// @return the regular face of the family, or else the face of the full name; kNoFont when
  ///         neither is there itself, whatever may stand for it.
  FontID FindInstalled(const std::string& name);

  /// @param filter  refuses the faces that the output cannot show.
  /// @return the font's face, or the one of its family that comes closest to bold or italic. Where
  ///         the whole family is refused, the closest face of one that stands for it; else that of
  ///         the default font.
  const FontStyle& Style(FontID font, bool isBold, bool isItalic, CGFontFilter filter);

 private:
  friend class FontStyle;

  /// For one kind of output, by bold and italic; null until it is asked for.
  using Styles = std::array<const FontStyle*, 4>;

  /// What a name led to.
  struct Font {
    InstalledFace face;                                // without a path: the standard Helvetica
    std::optional<std::vector<InstalledFace>> family;  // the faces to choose from
    std::map<CGFontFilter, Styles> styles = {};
  };

  /// How a face was chosen.
  struct Wish {
    InstalledFace face;
    bool isBold;
    bool isItalic;
    CGFontFilter filter;
  };

  using StandIns = std::unordered_map<char32_t, StyledFace>;  // without a typeface: there is none

  /// A style, and what is known of characters that its face does not have.
  struct KnownStyle {
    FontStyle style;
    Wish wish;
    std::unique_ptr<const FaceSet> candidates = nullptr;  // null until they are asked for
    StandIns standIns = {};
  };

  using FaceKey = std::pair<std::string, unsigned>;  // file and member
  using Names = std::unordered_map<std::string, FontID>;

  std::optional<StyledFace> StandIn(std::size_t style, char32_t character);

  // All of these are called under the lock. What is remembered is remembered whole: one that throws
  // leaves the question as open as it was.
  void SeeChanges();
  void Forget() noexcept;
  template <class LookUp>
  FontID FindOnce(Names& known, const std::string& name, const LookUp& lookUp);
  FontCatalog& Catalog();
  const Typeface* Open(const InstalledFace& face);
  const Typeface* OpenShown(const InstalledFace& face, CGFontFilter filter);
  std::optional<InstalledFace> Closest(std::vector<InstalledFace> faces,
                                       const InstalledFace& wanted, CGFontFilter filter);
  std::optional<InstalledFace> RegularFace(const std::string& family);
  FontID IdOf(const InstalledFace& face);
  Font& FontOf(FontID id, CGFontFilter filter);
  Font& DefaultFont(CGFontFilter filter);
  InstalledFace DefaultFace(CGFontFilter filter);
  const FontStyle& StyleOf(Font& font, bool isBold, bool isItalic, CGFontFilter filter);
  const FontStyle& MakeStyle(Font& font, Wish wish);
  std::optional<InstalledFace> ClosestOfFamily(Font& font, const Wish& wish);
  std::optional<InstalledFace> ClosestOfEquivalents(const Wish& wish);
  const FaceSet& Candidates(KnownStyle& style);
  StyledFace FindStandIn(KnownStyle& style, char32_t character);
  StandIns::iterator Remember(KnownStyle& style, char32_t character, const StyledFace& face);

  std::mutex mutex_;
  CatalogOpener openCatalog_;
  Clock clock_;
  std::chrono::steady_clock::time_point nextCheck_;
  std::unique_ptr<FontCatalog> catalog_;                          // null until it is asked
  std::map<FaceKey, std::unique_ptr<const Typeface>> typefaces_;  // null for what cannot be read
  std::unordered_map<FontID, Font> fonts_;
  std::map<CGFontFilter, Font> defaultFonts_;
  std::map<FaceKey, FontID> ids_;
  Names fullNames_;
  Names families_;
  Names installed_;
  std::deque<KnownStyle> styles_;
  std::size_t standInCount_ = 0;  // remembered in all styles
};

}  // namespace kelvane
