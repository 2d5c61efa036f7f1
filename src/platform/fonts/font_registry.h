#pragma once

#include <cstdint>
#include <deque>
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

/// A font in one style. Belongs to the registry.
class FontStyle {
 public:
  FontStyle(const StyledFace& face, InstalledFace wanted, bool isBold, bool isItalic)
      : face_(face), wanted_(std::move(wanted)), isBold_(isBold), isItalic_(isItalic) {}

  [[nodiscard]] const StyledFace& Face() const { return face_; }

 private:
  friend class FontRegistry;

  StyledFace face_;
  InstalledFace wanted_;
  bool isBold_;
  bool isItalic_;

  using StandIns = std::unordered_map<char32_t, StyledFace>;  // without a typeface: there is none

  // What is known of characters that the face does not have; read and written under the lock.
  mutable std::optional<FaceSet> candidates_;
  mutable StandIns standIns_;
};

/// The fonts of this process: each is looked up, opened and read once, for all threads. The
/// machine's fonts are not looked at before the first question. What is handed out lives as long
/// as the registry.
class FontRegistry {
 public:
  /// @return the one of this process, which lives until its end.
  static FontRegistry& Shared();

  /// @param name  UTF-8.
  /// @return the face installed under the name, or else the regular face of a family that the
  ///         configuration puts in the place of one with this name; kNoFont when there is none.
  FontID FindByFullName(const std::string& name);

  /// @param name  UTF-8.
  /// @return the regular face of the family, or else of one that the configuration puts in its
  ///         place; kNoFont when there is none.
  FontID FindByFamily(const std::string& name);

  /// @return the font's face, or the one of its family that comes closest to bold or italic.
  const FontStyle& Style(FontID font, bool isBold, bool isItalic);

  /// @return what a character that the style's face does not have is drawn from; nothing when no
  ///         face of the machine has it.
  std::optional<StyledFace> StandIn(const FontStyle& style, char32_t character);

 private:
  /// What a name led to.
  struct Font {
    InstalledFace face;                 // without a path: the standard Helvetica
    std::vector<InstalledFace> family;  // the faces to choose from
    std::map<std::pair<bool, bool>, const FontStyle*> styles;  // by bold and italic
  };

  using FaceKey = std::pair<std::string, unsigned>;  // file and member
  using Names = std::unordered_map<std::string, FontID>;

  // All of these are called under the lock. What is remembered is remembered whole: one that throws
  // leaves the question as open as it was.
  template <class LookUp>
  FontID FindOnce(Names& known, const std::string& name, const LookUp& lookUp);
  FontCatalog& Catalog();
  const Typeface* Open(const InstalledFace& face);
  std::optional<InstalledFace> Closest(std::vector<InstalledFace> faces,
                                       const InstalledFace& wanted);
  std::optional<InstalledFace> RegularFace(const std::string& family);
  FontID IdOf(const InstalledFace& face);
  Font& FontOf(FontID id);
  InstalledFace DefaultFace();
  const FontStyle& MakeStyle(const Font& font, bool isBold, bool isItalic);
  const FaceSet& Candidates(const FontStyle& style);
  StyledFace FindStandIn(const FontStyle& style, const FaceSet& candidates, char32_t character);
  FontStyle::StandIns::iterator Remember(const FontStyle& style, char32_t character,
                                         const StyledFace& face);

  std::mutex mutex_;
  std::optional<FontCatalog> catalog_;
  std::map<FaceKey, std::unique_ptr<const Typeface>> typefaces_;  // null for what cannot be used
  std::map<FontID, Font> fonts_;
  std::map<FaceKey, FontID> ids_;
  Names fullNames_;
  Names families_;
  std::deque<FontStyle> styles_;
  std::size_t standInCount_ = 0;  // remembered in all styles
};

}  // namespace kelvane
