#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace kelvane {

constexpr std::size_t kSymbolCodes = 0x100 - 0x20;

/// The characters of a font of symbols by their codes, from 0x20 on; 0 where there is none.
struct SymbolEncoding {
  std::array<char32_t, kSymbolCodes> characters;

  /// @param unit  a code, or one in the private use area (0xF020 to 0xF0FF).
  /// @return the character; 0 when the font has none there.
  [[nodiscard]] char32_t CharacterOf(char16_t unit) const;
};

/// @param faceName  without regard to case.
/// @return the encoding of Symbol, MT Extra, the dingbats, Wingdings, Wingdings 2, Wingdings 3,
///         Webdings and of their kin, which lives as long as the program; null for a face whose
///         text is Unicode.
const SymbolEncoding* FindSymbolEncoding(std::u16string_view faceName);

}  // namespace kelvane
