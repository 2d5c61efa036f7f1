#pragma once

#include <string>

#include <sys/types.h>

namespace kelvane::test {

/// An X server without a screen to look at, on a display that it picks itself and that DISPLAY
/// names. It ends with the object, and with the process at the latest.
class XServer {
 public:
  /// Throws std::runtime_error when the server does not come up.
  XServer();
  XServer(const XServer&) = delete;
  XServer& operator=(const XServer&) = delete;
  ~XServer();

 private:
  pid_t process_ = 0;
};

}  // namespace kelvane::test
