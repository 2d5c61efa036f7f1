#pragma once

#include <exception>
#include <span>

#include "frontends/picture_conversion.h"
#include "printing.h"

namespace kelvane::fuzzing {

/// Plays a file onto a page.
inline void Play(std::span<const unsigned char> file, const ConversionOptions& options = {}) {
  try {
    ConvertPicture(file, options);
  } catch (const std::exception&) {  // no document can be made of it
  }
}

/// Plays a file onto a page, and prints it.
inline void PlayAndPrint(std::span<const unsigned char> file) {
  Play(file);
  Print(file);
}

}  // namespace kelvane::fuzzing
