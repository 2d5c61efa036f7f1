#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "gdi/canvas.h"
#include "gdi/device_context.h"
#include "gdi/objects.h"
#include "gdi/painting.h"
#include "platform/trace/cg_trace_context.h"

namespace kelvane {

/// A device context on a page that is traced.
class TracedDevice {
 public:
  /// @param deviceToPage  without another a device unit is a point, and y grows downwards.
  explicit TracedDevice(const CGAffineTransform& deviceToPage = {},
                        const DeviceResolution& resolution = {})
      : canvas_(*surface_, deviceToPage, kWhole, resolution), device_(kDevice, &canvas_) {
    surface_->BeginPage({{0, 0}, {100, 100}});
    trace_.clear();
  }

  // What is drawn with the device; the functions of gdi/ take it.
  operator DeviceContext&() { return device_; }  // NOLINT(google-explicit-constructor)
  DeviceContext* operator->() { return &device_; }

  Canvas& OnCanvas() { return canvas_; }

  /// Makes an object at an index and selects it.
  template <class Object>
  void Select(std::uint32_t index, Object object) {
    device_.objects.Set(index, std::move(object));
    SelectObject(device_, index);
  }

  /// @return what was drawn since the last time, the pending marks among it.
  std::string Take() {
    DrawPendingMarks(device_);
    return std::exchange(trace_, {});
  }

  /// @return the paths and what was done with them, without colours, pens and clips.
  std::string TakeMarks() { return MarksOf(Take()); }

  static std::string MarksOf(std::string_view trace);

 private:
  static constexpr ReferenceDevice kDevice = {{1280, 960}, {320, 240}, 0, 1280};
  static constexpr RectangleD kWhole = {-1000, -1000, 1000, 1000};

  std::string trace_;
  CFOwned<CGContext> surface_{CGTraceContextCreate(trace_)};
  Canvas canvas_;
  DeviceContext device_;
};

/// @return a number of a trace in hundredths, so that curves may be told by where they end.
inline std::string Rounded(std::string_view number) {
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  constexpr double kHundredths = 100;
  const double hundredths = std::round(value * kHundredths);
  std::string text = std::to_string(std::abs(hundredths) / kHundredths);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return hundredths < 0 ? "-" + text : text;
}

inline std::vector<std::string_view> WordsOf(std::string_view line) {
  std::vector<std::string_view> words;
  while (!line.empty()) {
    const std::size_t end = std::min(line.find(' '), line.size());
    words.push_back(line.substr(0, end));
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return words;
}

/// @return lines of a trace that begin with a word, one after the other.
inline std::vector<std::string> LinesWith(std::string_view trace, std::string_view word) {
  std::vector<std::string> lines;
  while (!trace.empty()) {
    const std::size_t end = trace.find('\n');
    const std::string_view line = trace.substr(0, end);
    if (line.substr(0, line.find(' ')) == word) lines.emplace_back(line);
    trace.remove_prefix(end + 1);
  }
  return lines;
}

// Curves are told by their ends: what lies between is the business of figures.
inline std::string TracedDevice::MarksOf(std::string_view trace) {
  constexpr std::array<std::string_view, 10> kWords = {
      "move", "line",    "curve",  "rect",        "close",
      "fill", "eo-fill", "stroke", "fill-stroke", "eo-fill-stroke"};
  std::string marks;
  while (!trace.empty()) {
    const std::size_t end = trace.find('\n');
    std::vector<std::string_view> words = WordsOf(trace.substr(0, end));
    trace.remove_prefix(end + 1);
    if (std::ranges::find(kWords, words[0]) == kWords.end()) continue;
    if (words[0] == "curve") words.erase(words.begin() + 1, words.end() - 2);
    marks += words[0];
    for (std::size_t i = 1; i < words.size(); ++i)
      marks += ' ' + Rounded(words[i]);
    marks += '\n';
  }
  return marks;
}

}  // namespace kelvane
