#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvane {

/// The map that leads from the two-byte codes of a font back to text (ISO 32000-1, 9.10.3).
class ToUnicodeMap {
 public:
  /// @param text  UTF-16. A code without text is left out: its neighbour carries the text.
  void Add(std::uint16_t code, std::u16string_view text);

  /// @return the map as the stream to be stored.
  [[nodiscard]] std::string Text() const;

 private:
  std::vector<std::string> lines_;  // "<0001> <0041>"
};

/// The map that leads from the two-byte codes of a font to the identifiers of its characters (ISO
/// 32000-1, 9.7.5), for a font that shows some character by several codes.
class EncodingMap {
 public:
  static constexpr const char* kName = "Glyphs-H";

  void Add(std::uint16_t code, std::uint16_t identifier);

  /// @return the map as the stream to be stored, whose dictionary repeats kName.
  [[nodiscard]] std::string Text() const;

 private:
  std::vector<std::string> lines_;  // "<0001> 34"
};

}  // namespace kelvane
