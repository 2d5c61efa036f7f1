#include "frontends/file_size_signal.h"

#include <csignal>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

bool IsBlocked() {
  sigset_t mask;
  pthread_sigmask(SIG_SETMASK, nullptr, &mask);
  return sigismember(&mask, SIGXFSZ) == 1;
}

bool IsPending() {
  sigset_t pending;
  sigpending(&pending);
  return sigismember(&pending, SIGXFSZ) == 1;
}

TEST(FileSizeSignalBlocked, BlocksTheSignalWhileItLives) {
  {
    const FileSizeSignalBlocked blocked;
    EXPECT_TRUE(IsBlocked());
  }
  EXPECT_FALSE(IsBlocked());
}

TEST(FileSizeSignalBlocked, TakesBackASignalRaisedMeanwhile) {
  {
    const FileSizeSignalBlocked blocked;
    raise(SIGXFSZ);
    ASSERT_TRUE(IsPending());
  }
  EXPECT_FALSE(IsPending());
}

TEST(FileSizeSignalBlocked, LeavesASignalBlockedThatWasBlockedBefore) {
  const FileSizeSignalBlocked before;
  { const FileSizeSignalBlocked blocked; }
  EXPECT_TRUE(IsBlocked());
}

TEST(FileSizeSignalBlocked, LeavesASignalToWhoeverBlockedItBefore) {
  const FileSizeSignalBlocked before;
  raise(SIGXFSZ);
  { const FileSizeSignalBlocked blocked; }
  EXPECT_TRUE(IsPending());
}

}  // namespace
}  // namespace kelvane
