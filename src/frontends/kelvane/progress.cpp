#include "frontends/kelvane/progress.h"

#include <cstdio>

#include <unistd.h>

namespace kelvane {

Progress::Progress(std::size_t total)
    : total_(total), isWanted_(total > 1 && isatty(STDERR_FILENO) == 1) {}

void Progress::Say(const std::string& line) {
  Clear();
  (void)std::fputs((line + "\n").c_str(), stderr);
}

void Progress::Show(std::size_t done) {
  constexpr std::size_t kWidth = 30;
  if (!isWanted_) return;
  const std::size_t filled = kWidth * done / total_;
  const std::string bar = std::string(filled, '#') + std::string(kWidth - filled, '.');
  (void)std::fprintf(stderr, "\r[%s] %zu of %zu", bar.c_str(), done, total_);
  isShown_ = true;
}

void Progress::Clear() {
  if (isShown_) (void)std::fputs("\r\033[K", stderr);
  isShown_ = false;
}

}  // namespace kelvane
