#pragma once

#include <string>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/lines.h"
#include "gdi/text_output.h"
#include "gdi/written_device.h"

namespace kelvane {

// Liberation Sans has 2048 units an em, so that this height halves its numbers. The cell reaches
// from 927 above the baseline to 217 below it, A is 683 wide, an l 69 to 159 of 228 and 742 high.
inline constexpr std::int32_t kTextHeight = -1024;

inline constexpr ColorRef kTextRed = {0x0000FF};
inline constexpr ColorRef kTextGreen = {0x00FF00};

inline LogFont Plain() {
  return FontOf(u"Liberation Sans", kTextHeight);
}

inline LogFont Turned(std::int32_t escapement) {
  LogFont font = Plain();
  font.escapement = escapement;
  return font;
}

inline TextAlign Aligned(int bits) {
  return static_cast<TextAlign>(bits);
}

inline ExtTextOutOptions Options(int bits) {
  return static_cast<ExtTextOutOptions>(bits);
}

/// Writes in Liberation Sans on a transparent background, at its baseline.
class TextOnADevice : public testing::Test {
 protected:
  TextOnADevice() {
    device.Select(1, Plain());
    SetBkMode(device, TRANSPARENT);
    SetTextAlign(device, TA_BASELINE);
  }

  void Write(PointL at, const std::u16string& text = u"A") {
    TextPlacing placing;
    placing.reference = at;
    ExtTextOut(device, placing, text);
  }

  void WriteIn(const RectangleL& rectangle, int options, const std::u16string& text) {
    TextPlacing placing;
    placing.rectangle = rectangle;
    placing.options = Options(options);
    ExtTextOut(device, placing, text);
  }

  std::string OriginOf(PointL at, int align) {
    SetTextAlign(device, Aligned(align));
    Write(at);
    return device.TakeOrigins();
  }

  [[nodiscard]] PointD Current() { return device->state.currentPosition; }

  /// @return how far a line moves the current position.
  double WidthOf(const std::u16string& text) {
    SetTextAlign(device, Aligned(TA_BASELINE | TA_UPDATECP));
    MoveToEx(device, {0, 0});
    Write({}, text);
    return Current().x;
  }

  WrittenDevice device;
};

}  // namespace kelvane
