#pragma once

#include <cstddef>
#include <functional>
#include <span>

#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

/// A PNG file as it is to be written.
struct PngSheet {
  std::size_t width = 0;   // pixels, at least 1
  std::size_t height = 0;  // rows, at least 1
  bool hasAlpha = false;   // four bytes a pixel instead of three
  double dotsPerInch = 96;
};

/// Writes a file row by row; no more of it is in memory than the library holds back.
/// @param fill  gives the bytes of a row. Throws what the consumer throws, std::runtime_error when
///              the library fails.
void WritePng(const PngSheet& sheet, CGDataConsumer& consumer,
              const std::function<void(std::size_t row, std::span<unsigned char> bytes)>& fill);

}  // namespace kelvane
