#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace kelvane {

/// @return the name of a font as names are compared: without blanks, ASCII letters in lower case.
std::string FoldFontName(std::string_view name);

/// Faces that a user wants in the place of others. Names are UTF-8, compared without regard to
/// blanks and the case of ASCII letters.
class FontMap {
 public:
  // Not inline: the library would export what the standard library makes of them.
  FontMap();
  FontMap(const FontMap& other);
  FontMap(FontMap&& other) noexcept;
  FontMap& operator=(const FontMap& other);
  FontMap& operator=(FontMap&& other) noexcept;
  ~FontMap();

  /// A later wish for the same name counts; an empty one takes back those before.
  void Add(std::string_view asked, std::string_view used);

  /// @return the name to look for; empty when the user wants nothing else than what is asked for.
  [[nodiscard]] std::string Find(std::string_view asked) const;

 private:
  std::map<std::string, std::string, std::less<>> used_;  // by folded names
};

}  // namespace kelvane
