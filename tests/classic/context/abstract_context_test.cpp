#include "classic/context/abstract_context.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

/// An object that tells when it goes.
class WatchedObject final : public Object {
 public:
  WatchedObject(int name, std::vector<int>& destroyed)
      : Object(ObjectType::kPen), name_(name), destroyed_(destroyed) {}
  WatchedObject(const WatchedObject&) = delete;
  WatchedObject& operator=(const WatchedObject&) = delete;
  ~WatchedObject() override { destroyed_.push_back(name_); }

  [[nodiscard]] std::uint32_t getColor() const override { return 0; }
  [[nodiscard]] std::uint32_t getBrushStyle() const override { return 0; }

 private:
  int name_;
  std::vector<int>& destroyed_;
};

void ExpectEqual(const XForm& actual, const XForm& expected) {
  EXPECT_EQ(actual.eM11, expected.eM11);
  EXPECT_EQ(actual.eM12, expected.eM12);
  EXPECT_EQ(actual.eM21, expected.eM21);
  EXPECT_EQ(actual.eM22, expected.eM22);
  EXPECT_EQ(actual.eDx, expected.eDx);
  EXPECT_EQ(actual.eDy, expected.eDy);
}

constexpr XForm kScaleByTwo = {2, 0, 0, 2, 0, 0};
constexpr XForm kShiftByTen = {1, 0, 0, 1, 10, 0};

TEST(AbstractContext, StartsWithItsDefaults) {
  const AbstractContext context;
  ExpectEqual(context.worldTransform, kIdentityTransform);
  EXPECT_TRUE(context.objects.empty());
  EXPECT_EQ(context.GetCurrentObject(), nullptr);
  EXPECT_EQ(context.inPath, 0);
  EXPECT_EQ(context.clockwise, 0);
  EXPECT_EQ(context.context, nullptr);
  EXPECT_TRUE(context.savedTransforms.empty());
  EXPECT_EQ(context.mapMode, 0);
  EXPECT_EQ(context.windowExt.cx, 1);
  EXPECT_EQ(context.windowExt.cy, 1);
  EXPECT_EQ(context.viewportExt.cx, 1);
  EXPECT_EQ(context.viewportExt.cy, 1);
  EXPECT_EQ(context.windowOrg.x, 0);
  EXPECT_EQ(context.viewportOrg.y, 0);
  EXPECT_EQ(context.windowExtYPositive, 1);
  EXPECT_EQ(context.hollowBrush, 0);
  EXPECT_EQ(context.bkMode, 1);
  EXPECT_EQ(context.penWidth, 1U);
  EXPECT_EQ(context.textAlign, 0U);
  EXPECT_EQ(context.textAngle, 0);
  EXPECT_EQ(context.font.lfHeight, 0);
  EXPECT_TRUE(context.font.lfFaceName.empty());
  for (const ContextColor& color : {context.bkColor, context.fillColor, context.textColor}) {
    EXPECT_EQ(color.red + color.green + color.blue, 0);
  }
}

TEST(AbstractContext, RestoresOneLevelWhateverIsAskedFor) {
  AbstractContext context;
  context.SetWorldTransform(kShiftByTen);
  context.SaveState();
  context.SetWorldTransform(kScaleByTwo);
  context.SaveState();
  context.SetWorldTransform({3, 0, 0, 3, 0, 0});
  context.RestoreState(-5);
  ExpectEqual(context.worldTransform, kScaleByTwo);
  EXPECT_EQ(context.savedTransforms.size(), 1U);
}

TEST(AbstractContext, KeepsItsTransformWhenNothingIsSaved) {
  AbstractContext context;
  context.SetWorldTransform(kShiftByTen);
  context.RestoreState(-1);
  ExpectEqual(context.worldTransform, kShiftByTen);
}

struct Modification {
  std::int32_t mode;
  XForm expected;
};

TEST(AbstractContext, ModifiesTheWorldTransformByMode) {
  const Modification modifications[] = {
      {1, kIdentityTransform}, {2, {2, 0, 0, 2, 10, 0}}, {3, {2, 0, 0, 2, 20, 0}}, {4, kScaleByTwo},
      {5, kShiftByTen},        {0, kShiftByTen},         {-1, kShiftByTen},
  };
  for (const auto& [mode, expected] : modifications) {
    SCOPED_TRACE(mode);
    AbstractContext context;
    context.SetWorldTransform(kShiftByTen);
    context.ModifyWorldTransform(mode, kScaleByTwo);
    ExpectEqual(context.worldTransform, expected);
  }
}

TEST(AbstractContext, DoesNotReadTheTransformThatAnIdentityIgnores) {
  AbstractContext context;
  const float nan = std::nanf("");
  context.ModifyWorldTransform(1, {nan, nan, nan, nan, nan, nan});
  ExpectEqual(context.worldTransform, kIdentityTransform);
}

TEST(AbstractContext, MultipliesItsTransformByItself) {
  AbstractContext context;
  context.SetWorldTransform({2, 0, 0, 3, 1, 1});
  context.ModifyWorldTransform(2, context.worldTransform);
  ExpectEqual(context.worldTransform, {4, 0, 0, 9, 3, 4});
}

TEST(CrossMultiply, AppliesTheFirstThenTheSecond) {
  const XForm a = {1, 2, 3, 4, 5, 6};
  const XForm b = {7, 8, 9, 10, 11, 12};
  ExpectEqual(CrossMultiply(a, b), {25, 28, 57, 64, 100, 112});
}

TEST(ObjectTable, ReplacesTheObjectOfAnIndex) {
  std::vector<int> destroyed;
  AbstractContext context;
  context.CreateObject(std::make_unique<WatchedObject>(1, destroyed), 7);
  context.CreateObject(std::make_unique<WatchedObject>(2, destroyed), 7);
  EXPECT_EQ(destroyed, std::vector<int>{1});
  EXPECT_EQ(context.objects.size(), 1U);
}

TEST(ObjectTable, CreatesNoSelection) {
  std::vector<int> destroyed;
  AbstractContext context;
  context.CreateObject(std::make_unique<WatchedObject>(1, destroyed), 7);
  EXPECT_EQ(context.GetCurrentObject(), nullptr);
}

TEST(ObjectTable, SelectsWhatItKnows) {
  std::vector<int> destroyed;
  AbstractContext context;
  context.CreateObject(std::make_unique<WatchedObject>(1, destroyed), 7);
  EXPECT_TRUE(context.SelectObject(7));
  EXPECT_EQ(context.GetCurrentObject(), context.objects.at(7).get());
}

TEST(ObjectTable, KeepsTheSelectionWhenAnIndexIsUnknown) {
  std::vector<int> destroyed;
  AbstractContext context;
  context.CreateObject(std::make_unique<WatchedObject>(1, destroyed), 7);
  context.SelectObject(7);
  Object* const selected = context.GetCurrentObject();
  EXPECT_FALSE(context.SelectObject(8));
  for (std::uint32_t stock = 0; stock <= 19; ++stock) {
    EXPECT_FALSE(context.SelectObject(0x80000000 | stock));
  }
  EXPECT_EQ(context.GetCurrentObject(), selected);
}

TEST(ObjectTable, KnowsADeletedIndexWithoutItsObject) {
  std::vector<int> destroyed;
  AbstractContext context;
  context.CreateObject(std::make_unique<WatchedObject>(1, destroyed), 7);
  context.DeleteObject(7);
  EXPECT_EQ(destroyed, std::vector<int>{1});
  EXPECT_TRUE(context.SelectObject(7));
  EXPECT_EQ(context.GetCurrentObject(), nullptr);
}

TEST(ObjectTable, IgnoresDeletingWhatItDoesNotKnow) {
  AbstractContext context;
  context.DeleteObject(7);
  EXPECT_TRUE(context.objects.empty());
}

TEST(ObjectTable, NeverLeavesASelectionWithoutItsObject) {
  std::vector<int> destroyed;
  AbstractContext context;
  const auto createAndSelect = [&] {
    context.CreateObject(std::make_unique<WatchedObject>(1, destroyed), 7);
    context.SelectObject(7);
  };
  createAndSelect();
  context.DeleteObject(7);
  EXPECT_EQ(context.GetCurrentObject(), nullptr);
  createAndSelect();
  context.CreateObject(std::make_unique<WatchedObject>(2, destroyed), 7);
  EXPECT_EQ(context.GetCurrentObject(), nullptr);
  createAndSelect();
  context.CleanContext();
  EXPECT_EQ(context.GetCurrentObject(), nullptr);
}

TEST(ObjectTable, IsCleanedInOrderOfIndexAndOnlyOnce) {
  std::vector<int> destroyed;
  {
    AbstractContext context;
    for (const int index : {9, 3, 6}) {
      context.CreateObject(std::make_unique<WatchedObject>(index, destroyed),
                           static_cast<std::uint32_t>(index));
    }
    context.CleanContext();
    EXPECT_EQ(destroyed, (std::vector<int>{3, 6, 9}));
    EXPECT_EQ(context.objects.size(), 3U);
    for (const auto& [index, object] : context.objects)
      EXPECT_EQ(object, nullptr);
  }
  EXPECT_EQ(destroyed.size(), 3U);
}

TEST(ObjectTable, GoesWithTheContextInOrderOfIndex) {
  std::vector<int> destroyed;
  {
    AbstractContext context;
    for (const int index : {9, 3, 6}) {
      context.CreateObject(std::make_unique<WatchedObject>(index, destroyed),
                           static_cast<std::uint32_t>(index));
    }
  }
  EXPECT_EQ(destroyed, (std::vector<int>{3, 6, 9}));
}

}  // namespace
}  // namespace kelvane
