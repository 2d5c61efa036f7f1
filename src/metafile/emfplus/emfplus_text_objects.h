#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

// FontStyle ([MS-EMFPLUS] 2.1.2.4).
inline constexpr std::int32_t kEmfPlusFontBold = 1;
inline constexpr std::int32_t kEmfPlusFontItalic = 2;
inline constexpr std::int32_t kEmfPlusFontUnderline = 4;
inline constexpr std::int32_t kEmfPlusFontStrikeout = 8;

/// EmfPlusFont ([MS-EMFPLUS] 2.2.1.3).
struct EmfPlusFont {
  float emSize = 0;
  EmfPlusUnit unit = EmfPlusUnit::kWorld;  // of emSize
  std::int32_t style = 0;
  std::u16string family;

  friend bool operator==(const EmfPlusFont&, const EmfPlusFont&) = default;
};

/// @param bytes  the object from its version on. @return nullopt for what is no font.
std::optional<EmfPlusFont> ReadEmfPlusFont(ByteView& bytes);

// StringFormat flags ([MS-EMFPLUS] 2.1.2.8).
inline constexpr std::uint32_t kEmfPlusRightToLeft = 0x1;
inline constexpr std::uint32_t kEmfPlusVertical = 0x2;
inline constexpr std::uint32_t kEmfPlusNoFitBlackBox = 0x4;
inline constexpr std::uint32_t kEmfPlusShowControls = 0x20;
inline constexpr std::uint32_t kEmfPlusNoFontFallback = 0x400;
inline constexpr std::uint32_t kEmfPlusMeasureTrailingSpaces = 0x800;
inline constexpr std::uint32_t kEmfPlusNoWrap = 0x1000;
inline constexpr std::uint32_t kEmfPlusLineLimit = 0x2000;
inline constexpr std::uint32_t kEmfPlusNoClip = 0x4000;

struct EmfPlusCharacterRange {
  std::int32_t first = 0;
  std::int32_t length = 0;

  constexpr auto Fields() { return std::tie(first, length); }
  friend bool operator==(const EmfPlusCharacterRange&, const EmfPlusCharacterRange&) = default;
};

/// EmfPlusStringFormat ([MS-EMFPLUS] 2.2.1.9). Text without one has this.
struct EmfPlusStringFormat {
  std::uint32_t flags = 0;
  std::uint32_t language = 0;
  EmfPlusStringAlignment alignment = EmfPlusStringAlignment::kNear;
  EmfPlusStringAlignment lineAlignment = EmfPlusStringAlignment::kNear;
  EmfPlusDigitSubstitution digits = EmfPlusDigitSubstitution::kUser;
  std::uint32_t digitLanguage = 0;
  float firstTab = 0;
  EmfPlusHotkeyPrefix hotkeys = EmfPlusHotkeyPrefix::kNone;
  float leadingMargin = 1.0F / 6;   // ems
  float trailingMargin = 1.0F / 6;  // ems
  float tracking = 1.03F;
  EmfPlusStringTrimming trimming = EmfPlusStringTrimming::kCharacter;
  std::vector<float> tabs;  // each counted from the one before
  std::vector<EmfPlusCharacterRange> ranges;

  friend bool operator==(const EmfPlusStringFormat&, const EmfPlusStringFormat&) = default;
};

/// @param bytes  the object from its version on. @return nullopt for what is no format.
std::optional<EmfPlusStringFormat> ReadEmfPlusStringFormat(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
