#include <new>
#include <string>

#include <gtest/gtest.h>

#include "limits/allocations.h"
#include "platform/fonts/font_registry.h"

namespace kelvane {
namespace {

std::string NameOf(const Typeface* typeface) {
  return typeface == nullptr ? "none" : typeface->Font()->Description().postScriptName;
}

/// The names of the faces that the registry finds, of each way in which it can be asked.
std::string Answers(FontRegistry& registry) {
  std::string names;
  for (const FontID font :
       {registry.FindByFullName("Liberation Serif Bold"), registry.FindByFamily("Arial"),
        registry.FindByFamily("No Such Font"), kDefaultFont}) {
    for (const bool isBold : {false, true}) {
      const FontStyle& style = registry.Style(font, isBold, false, AnyFont);
      names += NameOf(style.Face().typeface) + " ";
      const auto standIn = style.StandIn(U'\u4E2D');
      names += NameOf(standIn ? standIn->typeface : nullptr) + "\n";
    }
  }
  return names;
}

TEST(FontRegistry, AnswersTheSameAfterMemoryRanOut) {
  FontRegistry untroubled;
  const std::string expected = Answers(untroubled);
  bool hasFailed = true;
  for (std::uint64_t count = 0; hasFailed; ++count) {
    FontRegistry registry;
    try {
      const test::FailingRequest failing(test::Request::kNew, count);
      hasFailed = false;
      Answers(registry);
    } catch (const std::bad_alloc&) {
      hasFailed = true;
    }
    ASSERT_EQ(Answers(registry), expected) << "request " << count;
  }
}

}  // namespace
}  // namespace kelvane
