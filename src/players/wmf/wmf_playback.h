#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "players/record_playback.h"
#include "players/wmf/wmf_device_bitmap.h"
#include "players/wmf/wmf_slots.h"
#include "players/wmf/wmf_viewport.h"

namespace kelvane {

/// A WMF file being played.
struct WmfPlayback : RecordPlayback {
  WmfViewport viewport;
  WmfSlots slots = {};

  /// Regions by their indexes, as rectangles lie in a file; all other objects are the device's.
  std::map<std::uint16_t, std::vector<unsigned char>> regions = {};
  std::optional<std::uint16_t> palette = {};  // the index of the selected one

  /// What is drawn later, and brushes, still look at them.
  std::vector<WmfDeviceBitmap> deviceBitmaps = {};

  void LeftOut(std::string_view why) { report.LeftOut(Id(), why); }
  void OnlyNearly(std::string_view why) { report.OnlyNearly(Id(), why); }
  void Damaged(std::string_view why) { report.Damaged(Id(), why); }
};

/// @return the device's number for an object: there index 0 stands for something else.
constexpr std::uint32_t HandleOf(std::uint16_t index) {
  return index + 1U;
}

}  // namespace kelvane
