#include "platform/svg/svg_definitions.h"

#include <utility>

namespace kelvane {
namespace {

char LetterOf(std::string_view element) {
  return element == "mask" ? 'k' : element.front();
}

}  // namespace

std::string_view SvgDefinitions::Add(std::string_view element, std::string rest) {
  const auto [definition, isNew] = definitions_.try_emplace(std::move(rest));
  Name& name = definition->second;
  if (isNew) {
    const char letter = LetterOf(element);
    name = {std::string(element), letter + std::to_string(counts_[letter]++)};
    order_.push_back(&*definition);
  }
  return name.id;
}

std::string SvgDefinitions::Reference(std::string_view element, std::string rest) {
  return "url(#" + std::string(Add(element, std::move(rest))) + ")";
}

}  // namespace kelvane
