#pragma once

#include <cerrno>
#include <csignal>
#include <ctime>

namespace kelvane {

/// While it lives, a write past the limit on the size of files fails on this thread like any other
/// write. Otherwise a signal would end the process there, and leave the unfinished file behind.
class FileSizeSignalBlocked {
 public:
  FileSizeSignalBlocked() noexcept {
    sigemptyset(&signal_);
    sigaddset(&signal_, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signal_, &previous_);
  }
  FileSizeSignalBlocked(const FileSizeSignalBlocked&) = delete;
  FileSizeSignalBlocked& operator=(const FileSizeSignalBlocked&) = delete;
  ~FileSizeSignalBlocked() {
    if (sigismember(&previous_, SIGXFSZ) == 0) TakeBack();
    pthread_sigmask(SIG_SETMASK, &previous_, nullptr);
  }

 private:
  // What was raised meanwhile would be delivered once the signal is let through again.
  void TakeBack() const noexcept {
    const timespec atOnce{};
    while (sigtimedwait(&signal_, nullptr, &atOnce) > 0 || errno == EINTR) {
    }
  }

  sigset_t signal_;
  sigset_t previous_;
};

}  // namespace kelvane
