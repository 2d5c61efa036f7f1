#include "platform/fonts/font_registries.h"

#include <algorithm>
#include <stdexcept>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/files.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

TEST(FontRegistries, LookIntoTheDirectoriesAndAmongTheInstalledFonts) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "Junction.otf", test::ReadFile(test::kJunction));
  const test::OtherFonts installed({test::kLiberationSans});
  FontRegistries registries;
  FontRegistry& registry = registries.For({folder.Path()});
  EXPECT_NE(registry.FindByFamily("Junction"), kNoFont);
  EXPECT_NE(registry.FindByFamily("Liberation Sans"), kNoFont);
}

TEST(FontRegistries, HaveOneForEachSetOfDirectories) {
  FontRegistries registries;
  FontRegistry& both = registries.For({"/nowhere/a", "/nowhere/b"});
  EXPECT_EQ(&registries.For({"/nowhere/b", "/nowhere/a", "/nowhere/b"}), &both);
  EXPECT_NE(&registries.For({"/nowhere/a"}), &both);
}

TEST(FontRegistries, HaveTheOneOfTheProcessForNoDirectories) {
  FontRegistries registries;
  EXPECT_EQ(&registries.For({}), &FontRegistry::Shared());
}

TEST(FontRegistries, GiveAllThreadsTheSame) {
  FontRegistries registries;
  std::vector<FontRegistry*> given(4);
  {
    std::vector<std::jthread> threads;
    for (FontRegistry*& registry : given)
      threads.emplace_back([&] { registry = &registries.For({"/nowhere"}); });
  }
  EXPECT_EQ(std::ranges::count(given, given.front()), 4);
}

TEST(FontRegistries, RefuseOneTooManyAndKeepThoseThatThereAre) {
  FontRegistries registries;
  FontRegistry& first = registries.For({"/nowhere/0"});
  for (std::size_t i = 1; i < FontRegistries::kMost; ++i)
    registries.For({"/nowhere/" + std::to_string(i)});
  EXPECT_THAT([&] { registries.For({"/nowhere/more"}); },
              testing::ThrowsMessage<std::runtime_error>(
                  "fonts of more than 64 sets of directories in one process"));
  EXPECT_EQ(&registries.For({"/nowhere/0"}), &first);
}

}  // namespace
}  // namespace kelvane
