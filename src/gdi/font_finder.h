#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "gdi/font_map.h"
#include "gdi/symbol_encoding.h"
#include "metafile/gdi_objects.h"
#include "platform/fonts/font_registry.h"

namespace kelvane {

/// What the name of a logical font led to.
struct FoundFont {
  FontID font = kDefaultFont;
  bool isOriginal = false;        // the very font that Windows would take
  bool isBold = false;            // whatever weight is asked for
  std::u16string_view name = {};  // of several between semicolons the one that counted; borrowed
};

/// Finds fonts by their names as Windows understands them.
class FontFinder {
 public:
  /// How many names are looked for. Each takes a good part of a millisecond, and a file may hold
  /// any number.
  static constexpr std::size_t kMostNames = 4096;

  /// @param registry  borrowed. @param map  borrowed, of what the user wants, which comes first.
  FontFinder(FontRegistry& registry, const FontMap& map) : registry_(registry), map_(map) {}

  /// @param faceName  one name, or several between semicolons, the first known of which counts.
  /// @param kind      of face, to go by when none is known.
  FoundFont Find(std::u16string_view faceName, PitchAndFamily kind);

  /// True once so many names were looked for that others lead where unknown ones do.
  [[nodiscard]] bool IsSpent() const { return names_ >= kMostNames; }

 private:
  std::optional<FoundFont> FindKnown(std::u16string_view faceName);
  std::optional<FoundFont> FindOne(const std::string& name);
  std::optional<FoundFont> FindSymbols(const std::string& name, const SymbolEncoding& symbols);
  std::optional<FoundFont> FindWished(const std::string& name);
  std::optional<FoundFont> FindNamed(std::string_view name);
  std::optional<FoundFont> FindInstead(std::string_view name);
  std::optional<FoundFont> FindAny(std::string_view name);
  std::optional<FoundFont> FindInstalled(std::string_view name);

  FontRegistry& registry_;
  const FontMap& map_;
  std::size_t names_ = 0;  // looked for
};

}  // namespace kelvane
