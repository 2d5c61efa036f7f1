#pragma once

#include <ostream>
#include <span>
#include <streambuf>

#include "frontends/inspection/dump.h"
#include "frontends/inspection/info.h"

namespace kelvane::fuzzing {

/// Takes everything, keeps nothing.
class Nowhere final : public std::streambuf {
  std::streamsize xsputn(const char* /*text*/, std::streamsize size) override { return size; }
};

/// Prints every record of a file, and what can be said of it as a whole.
inline void Print(std::span<const unsigned char> file) {
  Nowhere nowhere;
  std::ostream out(&nowhere);
  Dump(file, out);
  InfoOf(file, "fuzz");
}

}  // namespace kelvane::fuzzing
