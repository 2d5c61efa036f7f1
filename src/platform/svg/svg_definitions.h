#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kelvane {

/// What a document defines once and refers to: clips, gradients, patterns, images and masks. Names
/// are given in order, so equal pages make equal documents.
class SvgDefinitions {
 public:
  SvgDefinitions() = default;
  SvgDefinitions(const SvgDefinitions&) = delete;
  SvgDefinitions& operator=(const SvgDefinitions&) = delete;

  /// @param element  its name, which decides how the definition's begins.
  /// @param rest     all that follows the attribute `id`, from a blank or a bracket on.
  /// @return the name of the definition, the same one for the same text.
  std::string_view Add(std::string_view element, std::string rest);

  /// @return `url(#name)`.
  std::string Reference(std::string_view element, std::string rest);

  [[nodiscard]] bool IsEmpty() const { return order_.empty(); }

  /// Calls `write(text)` for what the definitions are, piece by piece.
  template <class Write>
  void ForEachPiece(Write&& write) const {
    for (const auto* definition : order_) {
      const auto& [rest, name] = *definition;
      write("<" + name.element + " id=\"" + name.id + "\"");
      write(rest);
    }
  }

 private:
  struct Name {
    std::string element;
    std::string id;
  };
  using Definitions = std::unordered_map<std::string, Name>;

  Definitions definitions_;  // by their text, in which elements differ
  std::vector<const Definitions::value_type*> order_;
  std::unordered_map<char, std::size_t> counts_;  // by the first letter of names
};

}  // namespace kelvane
