#include "base/saved_states.h"

#include <string>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

using Saved = SavedStates<std::string>;

Saved Of(std::initializer_list<const char*> states) {
  Saved saved;
  for (const char* state : states)
    saved.Push(state);
  return saved;
}

TEST(SavedStates, GiveBackTheLastFirst) {
  Saved saved = Of({"a", "b", "b", "a"});
  EXPECT_EQ(saved.Depth(), 4U);
  for (const char* state : {"a", "b", "b", "a"})
    EXPECT_EQ(saved.Pop(), state);
  EXPECT_TRUE(saved.IsEmpty());
}

TEST(SavedStates, KeepAnEqualStateForEveryTimeItWasSaved) {
  Saved saved;
  for (int i = 0; i < 1000; ++i)
    saved.Push("a");
  for (int i = 0; i < 999; ++i)
    saved.Pop();
  EXPECT_EQ(saved.Depth(), 1U);
  EXPECT_EQ(saved.Pop(), "a");
}

TEST(SavedStates, GoBackToAnyDepth) {
  const char* const states[] = {"a", "b", "b", "b", "c"};
  for (std::size_t depth = 0; depth < 5; ++depth) {
    Saved saved = Of({"a", "b", "b", "b", "c"});
    EXPECT_EQ(saved.PopTo(depth), states[depth]);
    EXPECT_EQ(saved.Depth(), depth);
    while (!saved.IsEmpty()) {
      const char* const expected = states[saved.Depth() - 1];
      EXPECT_EQ(saved.Pop(), expected);
    }
  }
}

TEST(SavedStates, ForgetAllWhenCleared) {
  Saved saved = Of({"a"});
  saved.Clear();
  EXPECT_TRUE(saved.IsEmpty());
  saved.Push("b");
  EXPECT_EQ(saved.Pop(), "b");
}

}  // namespace
}  // namespace kelvane
