#include "platform/corefoundation/cf_base.h"

#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

/// Counts how often it was destroyed.
class Probe final : public CFObject {
 public:
  explicit Probe(int& destroyed) : destroyed_(destroyed) {}

 private:
  ~Probe() override { ++destroyed_; }

  int& destroyed_;
};

TEST(CFObject, GoesWithTheReferenceItWasCreatedWith) {
  int destroyed = 0;
  CFRelease(new Probe(destroyed));
  EXPECT_EQ(destroyed, 1);
}

TEST(CFObject, StaysWhileAReferenceIsLeft) {
  int destroyed = 0;
  const Probe* const probe = new Probe(destroyed);
  CFRetain(probe);
  CFRelease(probe);
  EXPECT_EQ(destroyed, 0);
  CFRelease(probe);
}

TEST(CFRetain, ReturnsTheObject) {
  int destroyed = 0;
  const CFOwned<const Probe> probe(new Probe(destroyed));
  const CFOwned<const CFObject> second(CFRetain(probe.get()));
  EXPECT_EQ(second.get(), probe.get());
}

TEST(CFRetain, TakesNull) {
  EXPECT_EQ(CFRetain(nullptr), nullptr);
}

TEST(CFRelease, TakesNull) {
  EXPECT_NO_FATAL_FAILURE(CFRelease(nullptr));
}

TEST(CFObject, IsCountedRightFromManyThreads) {
  constexpr int kThreads = 8;
  constexpr int kRounds = 20000;
  int destroyed = 0;
  const Probe* const probe = new Probe(destroyed);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([probe] {
      for (int round = 0; round < kRounds; ++round) {
        CFRetain(probe);
        CFRelease(probe);
      }
    });
  }
  for (std::thread& thread : threads)
    thread.join();

  EXPECT_EQ(destroyed, 0);
  CFRelease(probe);
  EXPECT_EQ(destroyed, 1);
}

TEST(CFObject, IsDestroyedOnceWhicheverThreadIsLast) {
  constexpr int kThreads = 8;
  int destroyed = 0;
  const Probe* const probe = new Probe(destroyed);
  for (int i = 1; i < kThreads; ++i)
    CFRetain(probe);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i)
    threads.emplace_back([probe] { CFRelease(probe); });
  for (std::thread& thread : threads)
    thread.join();

  EXPECT_EQ(destroyed, 1);
}

TEST(CFOwned, GivesItsReferenceBack) {
  int destroyed = 0;
  { const CFOwned<Probe> owned(new Probe(destroyed)); }
  EXPECT_EQ(destroyed, 1);
}

TEST(CFOwned, HandsItsReferenceOnWhenMoved) {
  int destroyed = 0;
  CFOwned<Probe> first(new Probe(destroyed));
  const CFOwned<Probe> second = std::move(first);
  first.reset();
  EXPECT_EQ(destroyed, 0);
}

TEST(CFShare, TakesAReferenceOfItsOwn) {
  int destroyed = 0;
  CFOwned<Probe> owned(new Probe(destroyed));
  const CFOwned<Probe> shared = CFShare(owned.get());
  owned.reset();
  EXPECT_EQ(destroyed, 0);
}

TEST(CFShare, TakesNull) {
  EXPECT_EQ(CFShare<Probe>(nullptr), nullptr);
}

}  // namespace
}  // namespace kelvane
