#pragma once

#include <cstdint>

#include "players/text_setting.h"

namespace kelvane {

/// Which records of a file that has EMF+ make the picture.
enum class EmfPlusChoice : std::uint8_t {
  kAuto,    // those of EMF+ when all of them can be played, or there are no others
  kAlways,  // those of EMF+
  kNever,   // those of EMF
};

/// How a picture is played.
struct PlaySetting {
  TextSetting text;
  EmfPlusChoice emfPlus = EmfPlusChoice::kAuto;
};

}  // namespace kelvane
