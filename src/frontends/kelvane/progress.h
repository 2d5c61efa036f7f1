#pragma once

#include <cstddef>
#include <string>

namespace kelvane {

/// What the tool tells while it works: lines on standard error and, below them on a terminal, how
/// far it has come. Used by one thread at a time.
class Progress {
 public:
  /// @param total  files; one alone has no progress.
  explicit Progress(std::size_t total);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { Clear(); }

  void Say(const std::string& line);
  void Show(std::size_t done);

 private:
  void Clear();

  std::size_t total_;
  bool isShown_ = false;
  bool isWanted_;
};

}  // namespace kelvane
