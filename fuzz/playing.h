#pragma once

#include <exception>
#include <span>

#include "frontends/picture_conversion.h"
#include "printing.h"

namespace kelvane::fuzzing {

/// Plays a file onto a page, and prints it.
inline void PlayAndPrint(std::span<const unsigned char> file) {
  try {
    ConvertPicture(file, {});
  } catch (const std::exception&) {  // no document can be made of it
  }
  Print(file);
}

}  // namespace kelvane::fuzzing
