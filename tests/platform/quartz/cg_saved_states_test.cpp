#include "platform/quartz/cg_saved_states.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

CGGraphicsState OfWidth(CGFloat width) {
  CGGraphicsState state;
  state.lineWidth = width;
  return state;
}

TEST(CGSavedStates, GivesBackTheLastFirst) {
  CGSavedStates saved;
  for (const CGFloat width : {1.F, 2.F, 2.F, 1.F})
    saved.Push(OfWidth(width));
  EXPECT_EQ(saved.Depth(), 4U);
  for (const CGFloat width : {1.F, 2.F, 2.F, 1.F})
    EXPECT_EQ(saved.Pop().lineWidth, width);
  EXPECT_TRUE(saved.IsEmpty());
}

TEST(CGSavedStates, KeepsAnEqualStateForEveryTimeItWasSaved) {
  CGSavedStates saved;
  for (int i = 0; i < 1000; ++i)
    saved.Push(OfWidth(3));
  for (int i = 0; i < 999; ++i)
    saved.Pop();
  EXPECT_EQ(saved.Depth(), 1U);
  EXPECT_EQ(saved.Pop().lineWidth, 3);
}

TEST(CGSavedStates, ForgetsAllWhenCleared) {
  CGSavedStates saved;
  saved.Push(OfWidth(1));
  saved.Clear();
  EXPECT_TRUE(saved.IsEmpty());
  saved.Push(OfWidth(2));
  EXPECT_EQ(saved.Pop().lineWidth, 2);
}

}  // namespace
}  // namespace kelvane
