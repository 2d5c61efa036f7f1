#include "support/appkit/x_server.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelvane::test {
namespace {

constexpr int kStartMilliseconds = 30000;

/// Becomes the server, which writes the number of its display to `answer`.
[[noreturn]] void BecomeServer(int answer) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(nowhere, STDERR_FILENO);
  const std::string number = std::to_string(answer);
  execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1024x768x24", "-nolisten",
         "tcp", "-noreset", nullptr);
  _exit(127);
}

/// @return the line that comes out of a pipe, without its end; less when there is no whole line.
std::string LineFrom(int end) {
  std::string line;
  pollfd ready = {end, POLLIN, 0};
  char letter = 0;
  while (poll(&ready, 1, kStartMilliseconds) == 1 && read(end, &letter, 1) == 1 && letter != '\n') {
    line += letter;
  }
  return line;
}

}  // namespace

XServer::XServer() {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  process_ = fork();
  if (process_ == 0) BecomeServer(ends[1]);
  close(ends[1]);
  const std::string display = process_ > 0 ? LineFrom(ends[0]) : "";
  close(ends[0]);
  if (display.empty()) throw std::runtime_error("Xvfb does not start");
  setenv("DISPLAY", (":" + display).c_str(), 1);
}

XServer::~XServer() {
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

}  // namespace kelvane::test
